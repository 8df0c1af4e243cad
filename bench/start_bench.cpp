// From the click on PROCEDI to the painted shell: what the user waits for at the start, without a display, on random
// archives of as many draws as the history has and as an archive can hold. Processor times, so that other programs of
// the machine don't count.
#include <fmt/format.h>

#include <QAbstractButton>
#include <QApplication>
#include <random>
#include <stdexcept>

#include "bench_tools.h"
#include "core/archive_load.h"
#include "screens/kit/grid_view.h"
#include "screens/kit/theme.h"
#include "screens/shell/qt_shell.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

constexpr double kSeconds = 3.0;      // spent on each measurement
constexpr double kMostOfShell = 150;  // ms from the click to the picture, for the draws of the history
constexpr double kMostOfLoad = 40;    // ms of them in the load

// A box would wait for a user who isn't there: the run ends with its text.
class BenchShell : public QtShell {
 public:
  void message(const Box& box) override { throw std::runtime_error(box.text); }
  std::optional<std::filesystem::path> chooseOpen(const FileBox&) override { return std::nullopt; }
  void quit() override {}
};

void showAll() {
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }
}

bool g_good = true;

void tell(const std::string& name, double seconds, double most) {
  const double milliseconds = 1000 * seconds;
  const bool good = milliseconds <= most;
  g_good = g_good && good;
  fmt::print("{:<56} {:>8.2f} ms{}\n", name, milliseconds, good ? "" : fmt::format("   MORE THAN {} ms", most));
}

void benchStart(int draws, double mostOfLoad, double mostOfShell) {
  ProgramWorld files;
  std::mt19937 rng(1);
  files.makeBoth(randomRows(rng, draws));
  BenchShell shell;
  Program program(shell, files.folder.path());
  shell.attach(program);

  const auto inizio = [&] {
    shell.closeAll();
    shell.purge();
    shell.show("INIZIO");
    showAll();
  };
  const auto proceed = [&] {
    auto* const button = qobject_cast<QAbstractButton*>(shell.widget("INIZIO", "Command2"));
    if (button == nullptr) throw std::logic_error("no PROCEDI");
    button->click();
    showAll();
  };
  inizio();
  tell(fmt::format("load of PROCEDI, {} draws", draws), secondsOf([&] { loadArchive(program); }, kSeconds), mostOfLoad);
  tell(fmt::format("click on PROCEDI to the painted shell, {} draws", draws), secondsOf(proceed, kSeconds, inizio),
       mostOfShell);
  const auto* const list = qobject_cast<GridView*>(shell.widget("Container", "FG5"));
  if (list == nullptr || !list->isVisible() || list->model()->rowCount() != draws) {
    fmt::print("THE SHELL DOES NOT SHOW THE {} DRAWS\n", draws);
    g_good = false;
  }
  shell.closeAll();
  shell.purge();
}

int run(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  Theme theme(*qApp);
  benchStart(7370, kMostOfLoad, kMostOfShell);
  benchStart(9999, kMostOfLoad * 9999 / 7370, kMostOfShell * 9999 / 7370);
  return g_good ? 0 : 1;
}

}  // namespace
}  // namespace trv5

int main(int argc, char** argv) {
  return trv5::run(argc, argv);
}
