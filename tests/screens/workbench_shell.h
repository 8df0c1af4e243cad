#pragma once

#include <QAbstractButton>
#include <random>

#include "screens/kit/theme.h"
#include "screens/workbench/Sommativi1.h"
#include "support/workbench_world.h"
#include "window_world.h"

namespace trv5 {

/// The whole program with the workbench open inside the shell's window, as the user has it.
struct WorkbenchShell {
  /// `window`: the size of the shell's window, without the desktop's frame, before the workbench opens.
  explicit WorkbenchShell(QSize window = {1366, 768}, int draws = 120) {
    std::mt19937 rng(3);
    files.makeBoth(randomRows(rng, draws));
    shell.attach(program);
    shell.show("INIZIO");
    settle();
    button("INIZIO", "Command2").click();
    settle();
    resize(window);
    main().activateWindow();
    button("Container", "Command4").click();
    for (int i = 0; i < 3; ++i) settle();
  }
  ~WorkbenchShell() {
    shell.closeAll();
    shell.purge();
    Theme::edit().setBasePoints(0);
    Theme::edit().setWindowHeight(1080);
  }

  ContainerScreen& main() { return *qobject_cast<ContainerScreen*>(shell.widget("Container")); }
  Sommativi1Screen& bench() { return *qobject_cast<Sommativi1Screen*>(shell.widget("Sommativi1")); }
  Workbench& form() { return static_cast<Workbench&>(*shell.form("Sommativi1")); }
  QWidget& find(const char* name) {
    QWidget* const found = shell.widget("Sommativi1", name);
    if (found == nullptr) throw std::logic_error(std::string("no widget ") + name);
    return *found;
  }
  QAbstractButton& button(const char* screen, const char* name) {
    auto* const found = qobject_cast<QAbstractButton*>(shell.widget(screen, name));
    if (found == nullptr) throw std::logic_error(std::string("no button ") + name);
    return *found;
  }
  void resize(QSize window) {
    main().resize(window);
    for (int i = 0; i < 3; ++i) settle();
  }
  /// Whether all of a widget lies inside everything that holds it.
  bool wholeInSight(const char* name) {
    const QWidget& widget = find(name);
    return widget.isVisible() && widget.visibleRegion().boundingRect().size() == widget.size();
  }

  ProgramWorld files;
  QuietShell shell{allScreens()};
  Program program{shell, files.folder.path()};
};

}  // namespace trv5
