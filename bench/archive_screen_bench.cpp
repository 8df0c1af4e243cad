// What the user waits for on the screen that keeps the archive, in the program's own windows without a display:
// its opening, a save with the reload, the list of all draws, a held arrow of the scroller. Processor times, so that
// neither other programs of the machine nor the disk's sync count.
//
//   archive_screen_bench [HISTORY]    HISTORY: as for the other benches
#include <fmt/format.h>

#include <QAbstractButton>
#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <stdexcept>

#include "bench_tools.h"
#include "core/dates.h"
#include "core/text.h"
#include "maintenance/archivio.h"
#include "screens/kit/theme.h"
#include "screens/shell/qt_shell.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

constexpr double kSeconds = 1.0;        // spent on each measurement
constexpr double kMostOfOpening = 100;  // ms from the click to the picture
constexpr double kMostOfSave = 60;      // ms of a save with its reload, with all windows painted again
constexpr double kMostOfList = 50;      // ms from the tab to the picture of all draws
constexpr double kMostOfStep = 33;      // ms of a step of the scroller: a key repeats thirty times a second

// Says yes to everything; a box that tells of a failure ends the bench.
class BenchShell : public QtShell {
 public:
  void message(const Box& box) override {
    if (box.icon == Icon::Critical) throw std::runtime_error(box.text + " " + box.reason);
  }
  bool confirm(const Box&) override { return true; }
  void quit() override {}
};

void showAll() {
  for (int i = 0; i < 2; ++i) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }
}

bool g_good = true;

void tell(const std::string& name, double milliseconds, double most) {
  const bool good = milliseconds <= most;
  g_good = g_good && good;
  fmt::print("{:<56} {:>8.2f} ms{}\n", name, milliseconds, good ? "" : fmt::format("   MORE THAN {} ms", most));
}

std::vector<DrawRow> rowsOf(const Archive& archive) {
  std::vector<DrawRow> rows;
  for (int draw = 1; draw <= archive.NumEstrazioni(); ++draw) {
    DrawRow& row = rows.emplace_back();
    row.date = archive.DateEstrazioni(draw);
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      if (archive.NumeriEstratti(draw, wheel, 1) == 0) continue;
      std::string& text = row.wheels[static_cast<std::size_t>(wheel)];
      for (int p = 1; p <= kPositions; ++p)
        text += (p > 1 ? "-" : "") + twoDigits(archive.NumeriEstratti(draw, wheel, p));
    }
  }
  return rows;
}

class Bench {
 public:
  explicit Bench(const std::vector<DrawRow>& rows) {
    m_files.makeBoth(rows);
    m_shell.attach(m_program);
    m_shell.show("INIZIO");
    press("INIZIO", "Command2");
    m_shell.widget("Container")->resize(1366, 768);
    showAll();
  }
  ~Bench() {
    m_shell.closeAll();
    m_shell.purge();
  }

  void opening() {
    const auto close = [this] {
      m_shell.close("archivio");
      m_shell.purge();
      showAll();
    };
    tell("click on Gestione archivio to its picture",
         1e3 * secondsOf([this] { press("Container", "Command1"); }, kSeconds, close), kMostOfOpening);
  }
  void save() {
    Archivio& a = form();
    const int before = m_program.archive.NumEstrazioni();
    Day day = *dayOfText(m_program.archive.DateEstrazioni(before));
    const auto next = [&] { a.MonthView1.show(dateText(day += std::chrono::days(1))); };
    const double seconds = secondsOf([this] { press("archivio", "Command8"); }, kSeconds, next);
    tell(fmt::format("a draw saved among {}, all windows painted", before), 1e3 * seconds, kMostOfSave);
    if (m_program.archive.NumEstrazioni() <= before) throw std::runtime_error("nothing was saved");
  }
  void list() {
    const auto leave = [this] {
      form().SSTab1.set(Archivio::kGestione);
      showAll();
    };
    tell("the list of all draws shown",
         1e3 * secondsOf(
                   [this] {
                     form().SSTab1.set(Archivio::kElenco);
                     showAll();
                   },
                   kSeconds, leave),
         kMostOfList);
    form().SSTab1.set(Archivio::kElenco);
    int row = 0;
    tell("a click on a row of the list",
         1e3 * secondsOf(
                   [&] {
                     form().FgDB.clickCell(++row, 1);
                     showAll();
                   },
                   kSeconds),
         kMostOfList);
    leave();
  }
  void step() {
    QWidget& scroller = *m_shell.widget("archivio", "HScrestrazione");
    scroller.setFocus();
    tell("a step of the scroller",
         1e3 * secondsOf(
                   [&] {
                     QTest::keyClick(&scroller, Qt::Key_Left);
                     showAll();
                   },
                   kSeconds),
         kMostOfStep);
  }

 private:
  Archivio& form() { return static_cast<Archivio&>(*m_shell.form("archivio")); }
  void press(const char* screen, const char* button) {
    qobject_cast<QAbstractButton*>(m_shell.widget(screen, button))->click();
    showAll();
  }

  ProgramWorld m_files;
  BenchShell m_shell;
  Program m_program{m_shell, m_files.folder.path()};
};

int run(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  Theme theme(app);
  theme.setWindowHeight(768);
  Bench bench(rowsOf(archiveToMeasure(argc, argv)));
  bench.opening();
  bench.save();
  bench.list();
  bench.step();
  return g_good ? 0 : 1;
}

}  // namespace
}  // namespace trv5

int main(int argc, char** argv) {
  return trv5::run(argc, argv);
}
