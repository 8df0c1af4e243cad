// From the click on a search to its painted candidates, the scrolling of a long table of hits, the walk through the
// draws of the look at one: what the user waits for, without a display. Processor times, so that other programs of the
// machine don't count.
//
//   screen_bench [HISTORY]    HISTORY: as for the other benches
#include <fmt/format.h>

#include <QAbstractButton>
#include <QApplication>
#include <QScrollBar>
#include <random>
#include <stdexcept>

#include "bench_tools.h"
#include "screens/DiDiSO.h"
#include "screens/kit/grid_view.h"
#include "screens/kit/theme.h"
#include "screens/shell/qt_shell.h"
#include "screens/workbench/Sommativi1.h"
#include "support/program_world.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

constexpr double kSeconds = 1.0;        // spent on each measurement
constexpr double kMostOfSearch = 30;    // ms from the click to the picture
constexpr double kMostOfOpening = 100;  // ms from the click on TRV5 to the picture
constexpr double kMostOfStep = 16;      // ms of a step of scrolling: sixty pictures a second
constexpr double kMostOfPairs = 15;     // ms from the click on DS to the picture

// A box would wait for a user who isn't there.
class BenchShell : public QtShell {
 public:
  void message(const Box& box) override { throw std::runtime_error(box.text); }
  void quit() override {}
};

// Counts the pictures of a view.
class Paintings : public QObject {
 public:
  explicit Paintings(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
  int count = 0;
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

void requirePicture(const Paintings& paintings, int before, const char* name) {
  if (paintings.count > before) return;
  fmt::print("{}: NOTHING WAS PAINTED\n", name);
  g_good = false;
}

// Fifty cases, twenty colpi, all wheels, a hundred candidates, every fix: what a search can be asked for at most.
void prepare(WorkbenchWorld& world) {
  Workbench& w = world.w;
  for (const int n : {1, 30, 60, 90}) w.FgNu.clickCell((n - 1) / 10, (n - 1) % 10);
  world.press("Command6");
  world.positions({1, 2, 3, 4, 5});
  w.Label17.click();
  WorkbenchWorld::choose(w.ComboNC, "50");
  WorkbenchWorld::choose(w.ComboColpi, "20");
  WorkbenchWorld::choose(w.ComboEle, "100");
  WorkbenchWorld::choose(w.Combo1R_2N, "N1 + N2");
  w.ChFix1R.set(true);
  world.press("Command44");
}

// `luck`: as the program does it, with the luck of the search to be worked out when the user sees the candidates.
void benchSearches(WorkbenchWorld& world, Sommativi1Screen& screen, bool luck) {
  world.shell.holdSteps = true;
  world.w.Ch_Caso.set(luck);
  auto& view = *screen.findChild<GridView*>(QStringLiteral("FgF"));
  Paintings paintings(*view.viewport());
  for (const auto& [button, name] : {std::pair("Command20", "1N 1R"), std::pair("Command23", "2N 1R"),
                                     std::pair("Command18", "3N 1R"), std::pair("Command10", "2N 2R")}) {
    auto& widget = *screen.findChild<QAbstractButton*>(QLatin1String(button));
    const int before = paintings.count;
    const double seconds = secondsOf(
        [&] {
          widget.click();
          showAll();
        },
        kSeconds);
    requirePicture(paintings, before, name);
    g_good = g_good && world.shell.steps.empty() != luck;
    world.shell.steps.clear();
    tell(fmt::format("click on {} to {} painted candidates{}", name, world.w.FgF.dataRows(), luck ? ", luck" : ""),
         seconds * 1e3, kMostOfSearch);
  }
}

void benchHits(WorkbenchWorld& world, Sommativi1Screen& screen) {
  constexpr int kRows = 5000;
  Grid& hits = world.w.FgZ1.grid();
  {
    const Grid::Batch batch(hits);
    hits.cutToHeading();
    hits.setRows(kRows + 1);
    for (int row = 1; row <= kRows; ++row)
      for (int column = 0; column < hits.columns(); ++column) {
        hits.setNumber(row, column, (row * 7 + column) % 90 + 1);
        hits.setBack(row, column, column % 3 == 0 ? VerdeMedio : kWhite);
      }
  }
  auto& view = *screen.findChild<GridView*>(QStringLiteral("FgZ1"));
  Paintings paintings(*view.viewport());
  tell(fmt::format("{} hits shown after a verification", kRows),
       1e3 * secondsOf(
                 [&] {
                   hits.setNumber(1, 0, hits.number(1, 0) % 90 + 1);
                   showAll();
                 },
                 kSeconds),
       kMostOfSearch);
  QScrollBar& bar = *view.verticalScrollBar();
  for (const auto& [step, name] : {std::pair(1, "a row"), std::pair(bar.pageStep(), "a page"), std::pair(997, "far")}) {
    const int before = paintings.count;
    const double seconds = secondsOf(
        [&, step = step] {
          bar.setValue((bar.value() + step) % (bar.maximum() + 1));
          showAll();
        },
        kSeconds);
    requirePicture(paintings, before, name);
    tell(fmt::format("{} hits scrolled by {}", kRows, name), seconds * 1e3, kMostOfStep);
  }
}

// A held-down arrow shows every draw; all pairs of one are 2970 rows.
void benchDraw(const Archive& archive) {
  FakeShell shell;
  DiDiSO form(archive, shell);
  DiDiSOScreen screen(form);
  form.load();
  form.Command5.press();
  screen.resize(1868, 1028);
  screen.show();
  showAll();
  Paintings numbers(*screen.findChild<GridView*>(QStringLiteral("fG2"))->viewport());
  const int last = archive.UltimaEstrazione();
  const double change = secondsOf(
      [&] {
        form.hs1.set(form.hs1.value() % last + 1);
        showAll();
      },
      kSeconds);
  requirePicture(numbers, 0, "change of draw");
  tell("change of draw to the painted screen", change * 1e3, kMostOfStep);

  Paintings pairs(*screen.findChild<GridView*>(QStringLiteral("Fg1"))->viewport());
  const auto empty = [&] {
    form.hs1.set(form.hs1.value() % last + 1);
    showAll();
  };
  const double list = secondsOf(
      [&] {
        form.Command1.press();
        showAll();
      },
      kSeconds, empty);
  requirePicture(pairs, 0, "DS");
  tell("click on DS to the painted pairs", list * 1e3, kMostOfPairs);
}

void benchScreen(WorkbenchWorld& world) {
  const double seconds = secondsOf([&] { Sommativi1Screen(world.w).resize(1314, 740); }, kSeconds);
  fmt::print("{:<56} {:>8.2f} ms\n", "the workbench's widgets made", seconds * 1e3);
}

// From the click on TRV5 to the picture of the workbench, in the program's own windows.
void benchOpening() {
  ProgramWorld files;
  std::mt19937 rng(1);
  files.makeBoth(randomRows(rng, 7370));
  BenchShell shell;
  Program program(shell, files.folder.path());
  shell.attach(program);
  shell.show("INIZIO");
  qobject_cast<QAbstractButton*>(shell.widget("INIZIO", "Command2"))->click();
  showAll();
  QWidget& window = *shell.widget("Container");
  window.resize(1920, 1080);
  showAll();
  const auto close = [&] {
    shell.close("Sommativi1");
    shell.purge();
    showAll();
  };
  int painted = 0;
  const auto open = [&] {
    qobject_cast<QAbstractButton*>(shell.widget("Container", "Command4"))->click();
    Paintings paintings(*shell.widget("Sommativi1"));
    // As far as the first picture: what is made when the program is idle comes after it.
    while (paintings.count == 0) {
      QCoreApplication::sendPostedEvents();
      if (paintings.count == 0) QCoreApplication::processEvents(QEventLoop::AllEvents, 0);
    }
    ++painted;
  };
  tell("click on TRV5 to the painted workbench", 1e3 * secondsOf(open, kSeconds, close), kMostOfOpening);
  if (painted == 0) g_good = false;
  shell.closeAll();
  shell.purge();
}

int run(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  Theme theme(app);
  theme.setWindowHeight(1080);
  WorkbenchWorld world(archiveToMeasure(argc, argv));
  benchScreen(world);
  benchOpening();
  Sommativi1Screen screen(world.w);
  screen.resize(1868, 1052);
  screen.show();
  prepare(world);
  showAll();
  fmt::print("{} cases\n", world.w.FgEv.dataRows());
  for (const bool luck : {false, true}) benchSearches(world, screen, luck);
  benchHits(world, screen);
  benchDraw(world.w.archive);
  return g_good ? 0 : 1;
}

}  // namespace
}  // namespace trv5

int main(int argc, char** argv) {
  return trv5::run(argc, argv);
}
