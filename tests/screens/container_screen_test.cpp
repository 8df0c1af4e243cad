#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QProgressBar>
#include <QScrollBar>
#include <QTest>

#include "screens/kit/theme.h"
#include "screens/shell/help_viewer.h"
#include "support/temp_folder.h"
#include "window_world.h"

namespace trv5 {
namespace {

TEST(ContainerScreen, ShowsTheStatusBlockAndTheListOfDraws) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  EXPECT_EQ(window.windowTitle(), QStringLiteral("TRV 5"));
  const auto text = [&](const char* name) { return window.findChild<QLabel*>(QLatin1String(name))->text(); };
  EXPECT_EQ(text("LblInizio"), QStringLiteral("07/01/1939"));
  EXPECT_EQ(text("LblFine"), QStringLiteral("04/02/1939"));
  EXPECT_EQ(text("Lbl_inizioNE"), QStringLiteral("1"));
  EXPECT_EQ(text("Lbl_fineNE"), QStringLiteral("3"));
  EXPECT_EQ(text("Lbl_Ev"), QStringLiteral("3"));
  EXPECT_EQ(text("LblTitoloNE"), QStringLiteral("N° estr"));
  const auto* const draws = window.findChild<GridView*>(QStringLiteral("FG5"));
  ASSERT_NE(draws, nullptr);
  EXPECT_EQ(draws->model()->rowCount(), 3);
  EXPECT_TRUE(draws->isColumnHidden(0)) << "empty in all rows";
}

TEST(ContainerScreen, TheListOfDrawsOpensAtItsEnd) {
  WindowWorld world;
  std::vector<DrawRow> rows;
  for (int day = 1; day <= 28; ++day)
    for (int month = 1; month <= 12; ++month)
      rows.push_back(drawOf(QStringLiteral("%1/%2/1950")
                                .arg(day, 2, 10, QLatin1Char('0'))
                                .arg(month, 2, 10, QLatin1Char('0'))
                                .toStdString(),
                            {{"BA", {1, 2, 3, 4, 5}}}));
  std::sort(rows.begin(), rows.end(), [](const DrawRow& a, const DrawRow& b) {
    return a.date.substr(3, 2) + a.date < b.date.substr(3, 2) + b.date;
  });
  const auto archive = world.files.makeArchive(rows, "Lungo.mdb");
  world.start();
  world.shell.files.push_back(archive);
  world.button("INIZIO", "Command4").click();
  world.button("INIZIO", "Command2").click();
  settle();
  auto* const draws = world.shell.widget("Container")->findChild<GridView*>(QStringLiteral("FG5"));
  ASSERT_EQ(draws->model()->rowCount(), 336);
  for (const int height : {700, 1000, 620}) {
    world.shell.widget("Container")->resize(1366, height);
    settle();
    EXPECT_GT(draws->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(draws->verticalScrollBar()->value(), draws->verticalScrollBar()->maximum());
  }
  for (const double points : {14.0, 0.0}) {
    Theme::edit().setBasePoints(points);
    settle();
    EXPECT_EQ(draws->verticalScrollBar()->value(), draws->verticalScrollBar()->maximum()) << points;
  }
  draws->verticalScrollBar()->setValue(100);
  Theme::edit().setBasePoints(14);
  settle();
  EXPECT_EQ(draws->verticalScrollBar()->value(), 100) << "the user's place is kept";
  Theme::edit().setBasePoints(0);
}

TEST(ContainerScreen, NothingOfThePanelIsCutWithALargeFont) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  window.resize(1280, 720);
  auto* const rail = window.findChild<QWidget*>(QStringLiteral("rail"));
  for (const bool dark : {false, true}) {
    Theme::edit().setDark(dark);
    for (const double points : {10.0, 14.0, 16.0}) {
      Theme::edit().setBasePoints(points);
      settle();
      for (const auto* const button : rail->findChildren<QAbstractButton*>())
        EXPECT_GE(button->width(), button->sizeHint().width()) << points << " " << button->text().toStdString();
      for (const auto* const label : rail->findChildren<QLabel*>()) {
        EXPECT_GE(label->width(), label->sizeHint().width()) << points << " " << label->text().toStdString();
        EXPECT_GE(label->height(), label->sizeHint().height()) << points << " " << label->text().toStdString();
      }
    }
  }
  Theme::edit().setDark(false);
  Theme::edit().setBasePoints(0);
}

TEST(ContainerScreen, AButtonOfAScreenThatDoesNotExistIsDisabledAndSaysSo) {
  WindowWorld world;
  world.proceed();
  QAbstractButton& missing = world.button("Container", "Command6");
  EXPECT_FALSE(missing.isEnabled());
  EXPECT_TRUE(missing.toolTip().contains(QStringLiteral("non esiste ancora")));
  EXPECT_TRUE(world.button("Container", "Command4").isEnabled());
}

TEST(ContainerScreen, APanelThatIsFoldedHasTheCaptionsAsTooltips) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  EXPECT_TRUE(window.railWide());
  QTest::keyClick(&window, Qt::Key_F4);
  settle();
  EXPECT_FALSE(window.railWide());
  EXPECT_EQ(window.findChild<QWidget*>(QStringLiteral("rail"))->width(), 52);
  EXPECT_EQ(world.button("Container", "Command4").toolTip(), QStringLiteral("TRV5"));
  QTest::keyClick(&window, Qt::Key_F4);
  settle();
  EXPECT_EQ(window.findChild<QWidget*>(QStringLiteral("rail"))->width(), 304);
}

TEST(ContainerScreen, F1ShowsThePageOfTheScreenInFront) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  QTest::keyClick(&window, Qt::Key_F1);
  EXPECT_EQ(world.shell.helpViewer()->page().toString(), QStringLiteral("qrc:/help/finestra.html#finestra"));
  world.button("Container", "Command5").click();
  window.activateWindow();
  settle();
  QTest::keyClick(&window, Qt::Key_F1);
  EXPECT_EQ(world.shell.helpViewer()->page().toString(), QStringLiteral("qrc:/help/mini-elenco.html#mini-elenco"));
  world.button("Container", "Command33").click();
  EXPECT_EQ(world.shell.helpViewer()->page().toString(), QStringLiteral("qrc:/help/finestra.html#finestra"));
}

TEST(ContainerScreen, FineAndTheCrossEndTheProgram) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  world.button("Container", "Command45").click();
  EXPECT_EQ(world.shell.quits, 1);
  window.close();
  EXPECT_EQ(world.shell.quits, 2);
}

TEST(ContainerScreen, ProgressAndStatusStandInTheStatusBar) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  auto* const bar = window.findChild<QProgressBar*>(QStringLiteral("Pb1"));
  const int place = bar->x();
  world.shell.progress(50, 100);
  world.shell.status("Verifica tutte le righe: 20 casi, 40 esiti");
  settle();
  EXPECT_EQ(bar->value(), 50);
  EXPECT_EQ(bar->x(), place);
  const QList<QLabel*> labels = window.findChildren<QLabel*>();
  EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
    return label->text() == QStringLiteral("Verifica tutte le righe: 20 casi, 40 esiti");
  }));
}

TEST(ContainerScreen, ALowWindowIsCompactAndCtrlPlusEnlargesTheFont) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  EXPECT_EQ(Theme::current().density(), Theme::Density::Compact);
  window.resize(1600, 950);
  settle();
  EXPECT_EQ(Theme::current().density(), Theme::Density::Comfortable);
  QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(Theme::current().basePoints(), 11);
  QTest::keyClick(&window, Qt::Key_Minus, Qt::ControlModifier);
  QTest::keyClick(&window, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(Theme::current().basePoints(), 10);
  QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(Theme::current().basePoints(), 10.5);
}

TEST(ContainerScreen, RemembersItsPlaceAndItsPanel) {
  const TempFolder folder;
  const std::filesystem::path file = folder / "TRV5.ini";
  {
    WindowWorld world;
    world.shell.useSettings(file);
    ContainerScreen& window = world.proceed();
    window.showNormal();
    window.setGeometry(30, 40, 1111, 700);
    QTest::keyClick(&window, Qt::Key_F4);
    Theme::edit().setBasePoints(12);
    settle();
  }
  Theme::edit().setBasePoints(0);
  WindowWorld world;
  world.shell.useSettings(file);
  EXPECT_EQ(Theme::current().basePoints(), 12);
  world.start();
  world.button("INIZIO", "Command2").click();
  settle();
  auto& window = *qobject_cast<ContainerScreen*>(world.shell.widget("Container"));
  EXPECT_FALSE(window.railWide());
  EXPECT_EQ(window.height(), 700);
  Theme::edit().setBasePoints(0);
}

}  // namespace
}  // namespace trv5
