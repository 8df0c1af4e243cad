// "Esegue procedura" in the window: nothing is drawn on the way but the bar.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include "workbench_shell.h"

namespace trv5 {
namespace {

// Counts what is drawn inside a widget, itself included, as long as it lives.
class Drawn : public QObject {
 public:
  explicit Drawn(const QWidget& where) : m_where(where) { qApp->installEventFilter(this); }
  ~Drawn() override { qApp->removeEventFilter(this); }
  int times() const { return m_times; }

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override {
    const auto* const widget = qobject_cast<const QWidget*>(receiver);
    if (event->type() == QEvent::Paint && (widget == &m_where || m_where.isAncestorOf(widget))) ++m_times;
    return false;
  }

 private:
  const QWidget& m_where;
  int m_times = 0;
};

// Looks at what is drawn anew behind the box that `open` shows, when all of the workbench has to be; then closes it.
int drawnBehindBox(WorkbenchShell& world, const std::function<void()>& open) {
  int times = -1;
  QTimer::singleShot(0, [&] {
    auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    const Drawn drawn(world.bench());
    for (QWidget* const widget : world.bench().findChildren<QWidget*>()) widget->update();
    settle();
    times = drawn.times();
    box->reject();
  });
  open();
  return times;
}

void saveMethods(WorkbenchShell& world, int count) {
  Workbench& w = world.form();
  WorkbenchWorld::addFormula(w.Fg11, {.fix = 7, .nr = "0"});
  for (int i = 0; i < count; ++i) {
    w.Txt_Denominazione.set("metodo " + std::to_string(i));
    w.button("Command4").press();
  }
  w.button("Cmd_Elenco").press();
  for (int i = 0; i < 3; ++i) settle();
}

TEST(ProcedureWindow, DrawsNothingOnTheWayButTheBar) {
  WorkbenchShell world;
  saveMethods(world, 6);
  const Drawn bench(world.bench()), bar(*world.shell.widget("Container", "Pb1"));
  for (QWidget* const widget : world.bench().findChildren<QWidget*>()) widget->update();
  world.form().button("Command106").press();
  EXPECT_EQ(bench.times(), 0) << "also of what waited to be drawn";
  EXPECT_GT(bar.times(), 0);
  for (int i = 0; i < 3; ++i) settle();
  EXPECT_GT(bench.times(), 0);
  EXPECT_GT(world.form().FgRagg.dataRows(), 0);
}

TEST(ProcedureWindow, KeepsItsPictureBehindABoxInTheMidstOfTheWork) {
  WorkbenchShell world;
  const auto midst = [&world] {
    world.shell.progress(1, 3);
    world.form().FgEv.appendRow();
    world.shell.QtShell::message({.text = "Errore imprevisto. "});
  };
  world.form().button("Command106").onEvent(midst);
  EXPECT_EQ(drawnBehindBox(world, [&] { world.form().button("Command106").press(); }), 0);
  const Drawn after(world.bench());
  for (int i = 0; i < 3; ++i) settle();
  EXPECT_GT(after.times(), 0) << "the work is over";
  EXPECT_TRUE(world.bench().updatesEnabled());
}

TEST(ProcedureWindow, IsDrawnBehindABoxAtTheEndOfTheWork) {
  WorkbenchShell world;
  const auto end = [&world] {
    world.shell.progress(3, 3);
    world.shell.QtShell::message({.text = "Fatto"});
  };
  world.form().button("Command106").onEvent(end);
  EXPECT_GT(drawnBehindBox(world, [&] { world.form().button("Command106").press(); }), 0);
}

}  // namespace
}  // namespace trv5
