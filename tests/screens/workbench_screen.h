#pragma once

#include <QAbstractButton>
#include <random>
#include <string>
#include <vector>

#include "form_world.h"
#include "screens/kit/lazy_page.h"
#include "screens/kit/theme.h"
#include "screens/workbench/Sommativi1.h"
#include "support/workbench_world.h"

namespace trv5 {

/// The workbench in a window of its own, as large as the shell's area is in a window of the size given.
struct WorkbenchScreen {
  explicit WorkbenchScreen(QSize window = {1366, 768})
      : world([] {
          std::mt19937 rng(11);
          return randomArchive(rng, 400);
        }()),
        screen(std::make_unique<Sommativi1Screen>(world.w)) {
    Theme::edit().dressWindow(*screen);
    resize(window);
    makePages(*screen);
    screen->show();
    screen->activateWindow();
    settle();
  }
  ~WorkbenchScreen() {
    screen.reset();
    Theme::edit().setBasePoints(0);
    Theme::edit().setWindowHeight(1080);
  }

  /// Beside the folded panel, above the status bar.
  void resize(QSize window) const {
    Theme::edit().setWindowHeight(window.height());
    screen->resize(window.width() - 52, window.height() - 28);
    for (int i = 0; i < 3; ++i) settle();
  }
  template <class Widget = QWidget>
  Widget& find(const std::string& name) const {
    auto* const found = screen->findChild<Widget*>(qs(name));
    if (found == nullptr) throw std::logic_error("no widget " + name);
    return *found;
  }
  /// A situation that random draws show often: one of ten numbers on BA, played on BA and CA.
  void chooseSituation() {
    for (int column = 0; column < 10; ++column) world.w.FgNu.clickCell(0, column);
    world.press("Command6");
    world.positions({1, 2, 3, 4, 5});
    world.playOn({0, 1});
  }

  WorkbenchWorld world;
  std::unique_ptr<Sommativi1Screen> screen;
};

}  // namespace trv5
