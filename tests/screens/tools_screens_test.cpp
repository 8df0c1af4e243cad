#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QHeaderView>
#include <QLabel>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QSettings>
#include <QTest>

#include "core/database_files.h"
#include "provision/orthogonal_systems.h"
#include "screens/DiDiSO.h"
#include "screens/SistemiOrtogonali.h"
#include "screens/kit/side_splitter.h"
#include "screens/kit/theme.h"
#include "window_world.h"

namespace trv5 {
namespace {

// A program with every screen that it has, its window of the smallest size.
struct ToolsWorld {
  ToolsWorld() {
    std::vector<DrawRow> rows;
    for (int draw = 1; draw <= 30; ++draw) rows.push_back(drawOf(dateOfDraw(draw), {{"BA", {draw, 2, 3, 4, 5}}}));
    const std::string archive = files.makeArchive(rows).string();
    createMainDatabase(files.folder / "DbTRV5.mdb",
                       {.parameters = {{.Parametro = "PercorsoArchivio", .Valore1 = archive},
                                       {.Parametro = "EstrazioneIniziale", .Valore1 = "1"}},
                        .systems = shippedSystems()},
                       Existing::Replace);
    shell.attach(program);
    shell.show("INIZIO");
    static_cast<Inizio&>(*shell.form("INIZIO")).Command2.press();
    settle();
    container = qobject_cast<ContainerScreen*>(shell.widget("Container"));
    container->resize(1280, 720);
    container->activateWindow();
    settle();
  }
  ~ToolsWorld() {
    shell.closeAll();
    shell.purge();
  }
  Container& shellForm() { return static_cast<Container&>(*shell.form("Container")); }
  DiDiSO& openDraw() {
    shellForm().Command7.press();
    settle();
    return static_cast<DiDiSO&>(*shell.form("DiDiSO"));
  }
  SistemiOrtogonali& openSystems() {
    shellForm().Command6.press();
    settle();
    return static_cast<SistemiOrtogonali&>(*shell.form("SistemiOrtogonali"));
  }
  GridView& view(const char* screen, const char* name) { return *qobject_cast<GridView*>(shell.widget(screen, name)); }
  QWidget& widget(const char* screen, const char* name) { return *shell.widget(screen, name); }
  int left(const char* screen, const char* name) { return widget(screen, name).mapTo(container, QPoint()).x(); }
  static void click(GridView& view, int row, int column) {
    view.sync();
    const QModelIndex index = view.model()->index(view.gridModel().modelRow(row), column);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
    settle();
  }

  ProgramWorld files;
  QuietShell shell{allScreens()};
  Program program{shell, files.folder.path()};
  ContainerScreen* container = nullptr;
};

TEST(ToolsScreens, FillTheAreaOfTheShell) {
  ToolsWorld world;
  world.openDraw();
  world.openSystems();
  for (const char* const screen : {"DiDiSO", "SistemiOrtogonali"}) {
    const auto* const window = qobject_cast<QMdiSubWindow*>(world.shell.widget(screen)->parentWidget());
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isMaximized()) << screen;
  }
}

TEST(DrawScreen, StandsFromTheDrawOverThePairsToTheFrequencies) {
  ToolsWorld world;
  world.openDraw();
  EXPECT_LT(world.left("DiDiSO", "fG2"), world.left("DiDiSO", "fG3"));
  EXPECT_LT(world.left("DiDiSO", "fG3"), world.left("DiDiSO", "Fg1"));
  EXPECT_LT(world.left("DiDiSO", "Fg1"), world.left("DiDiSO", "Fg5"));
}

TEST(DrawScreen, NumbersAndClassesOfAWheelStandOnOneLineAndAllWheelsAreInSight) {
  ToolsWorld world;
  for (const double points : {0.0, 14.0}) {
    Theme::edit().setBasePoints(points);
    world.openDraw();
    const GridView &numbers = world.view("DiDiSO", "fG2"), &classes = world.view("DiDiSO", "fG3");
    EXPECT_EQ(numbers.height(), classes.height()) << points;
    for (int row = 0; row < 11; ++row) EXPECT_EQ(numbers.rowHeight(row), classes.rowHeight(row)) << points;
    EXPECT_EQ(numbers.verticalScrollBar()->maximum(), 0) << points;
    EXPECT_NEAR(numbers.columnWidth(3), classes.columnWidth(3), 4) << points;
  }
  Theme::edit().setBasePoints(0);
}

TEST(DrawScreen, TheNumbersAreTheLargestOnTheScreen) {
  ToolsWorld world;
  world.openDraw();
  for (const char* const name : {"fG2", "fG3"}) {
    const GridView& view = world.view("DiDiSO", name);
    EXPECT_GT(view.cellFont(false).pointSizeF(), Theme::current().basePoints()) << name;
    EXPECT_GE(view.rowHeight(0), 2 * world.view("DiDiSO", "Fg5").rowHeight(0)) << name;
  }
}

TEST(DrawScreen, TheArrowKeysWalkTheDrawsAtOnce) {
  ToolsWorld world;
  DiDiSO& form = world.openDraw();
  QWidget* const focused = world.container->focusWidget();
  ASSERT_NE(focused, nullptr);
  EXPECT_EQ(focused->objectName(), QStringLiteral("hs1"));
  QTest::keyClick(focused, Qt::Key_Left);
  QTest::keyClick(focused, Qt::Key_Left);
  EXPECT_EQ(form.hs1.value(), 28);
  EXPECT_EQ(form.fG2.text(1, 1), "28");
}

TEST(DrawScreen, TheModeButtonsAreEquallyWideAndBearTheirColours) {
  ToolsWorld world;
  DiDiSO& form = world.openDraw();
  auto& figures = *qobject_cast<QAbstractButton*>(world.shell.widget("DiDiSO", "Command5"));
  figures.click();
  settle();
  EXPECT_EQ(form.Command5.back(), VerdeMedio);
  EXPECT_TRUE(hasColour(figures.grab().toImage(), VerdeMedio, 0.3));
  const QWidget& other = world.widget("DiDiSO", "Command3");
  EXPECT_TRUE(hasColour(world.widget("DiDiSO", "Command3").grab().toImage(), GialloMedio, 0.3));
  EXPECT_NEAR(other.width(), figures.width(), 2);
}

TEST(DrawScreen, AClickOnAFrequencyListsItsPairsOverTheWholeWidth) {
  ToolsWorld world;
  DiDiSO& form = world.openDraw();
  GridView &frequencies = world.view("DiDiSO", "Fg5"), &pairs = world.view("DiDiSO", "Fg1");
  ToolsWorld::click(frequencies, 5, 1);
  EXPECT_GT(form.Fg1.dataRows(), 0);
  EXPECT_EQ(form.Fg5.back(5, 1), Verde);
  EXPECT_EQ(pairs.horizontalHeader()->length(), pairs.viewport()->width());
  EXPECT_TRUE(pairs.isColumnHidden(2));
  EXPECT_TRUE(pairs.isColumnHidden(5));
}

TEST(DrawScreen, TheFrequenciesKeepTheirPlaceFromDrawToDraw) {
  ToolsWorld world;
  DiDiSO& form = world.openDraw();
  GridView& frequencies = world.view("DiDiSO", "Fg5");
  frequencies.verticalScrollBar()->setValue(30);
  form.hs1.set(7);
  settle();
  EXPECT_EQ(frequencies.verticalScrollBar()->value(), 30);
}

TEST(DrawScreen, ThePrintTellsTheDraw) {
  ToolsWorld world;
  DiDiSO& form = world.openDraw();
  form.hs1.set(7);
  const auto& screen = *qobject_cast<DiDiSOScreen*>(world.shell.widget("DiDiSO"));
  EXPECT_EQ(screen.printHeader(form.Fg1), (std::vector<std::string>{"Coppie", "Estrazione 7 del " + dateOfDraw(7)}));
}

TEST(SystemsScreen, StandsFromTheListOverThePicksToTheResult) {
  ToolsWorld world;
  world.openSystems();
  const char* const screen = "SistemiOrtogonali";
  EXPECT_LT(world.left(screen, "FgSistemi"), world.left(screen, "Fg99"));
  EXPECT_LT(world.left(screen, "Fg99"), world.left(screen, "Fg99x"));
  EXPECT_LT(world.left(screen, "Fg99x"), world.left(screen, "fG88"));
  EXPECT_EQ(world.left(screen, "FgSy"), world.left(screen, "Fg99"));
}

TEST(SystemsScreen, ShowsNamesOnlyInTheListAndNoHeadingWithoutAText) {
  ToolsWorld world;
  world.openSystems();
  const GridView& list = world.view("SistemiOrtogonali", "FgSistemi");
  for (const int column : {0, 1, 3}) EXPECT_TRUE(list.isColumnHidden(column)) << column;
  EXPECT_FALSE(list.isColumnHidden(2));
  EXPECT_FALSE(list.horizontalHeader()->isHidden());
  for (const char* const name : {"FgSy", "Fg99", "fG88", "Fg99x"})
    EXPECT_TRUE(world.view("SistemiOrtogonali", name).horizontalHeader()->isHidden()) << name;
}

TEST(SystemsScreen, QnStandsOverAnEmptyPlace) {
  ToolsWorld world;
  world.openSystems();
  const QLabel* caption = nullptr;
  for (const QLabel* const label : world.shell.widget("SistemiOrtogonali")->findChildren<QLabel*>())
    if (label->text() == QStringLiteral("QN")) caption = label;
  ASSERT_NE(caption, nullptr);
  EXPECT_TRUE(caption->isVisible());
  const QLabel* const count = qobject_cast<QLabel*>(world.shell.widget("SistemiOrtogonali", "Label20"));
  const QRect after(caption->geometry().topRight() + QPoint(1, 0), count->geometry().bottomLeft() - QPoint(1, 0));
  EXPECT_GT(after.width(), QFontMetrics(Theme::current().base()).horizontalAdvance(QStringLiteral("888")));
  for (const QLabel* const label :
       caption->parentWidget()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
    EXPECT_TRUE(label->text().isEmpty() || !label->geometry().intersects(after)) << label->text().toStdString();
}

TEST(SystemsScreen, ASystemIsLoadedByTheKeyboardAndItsNumbersArePickedByTheMouse) {
  ToolsWorld world;
  SistemiOrtogonali& form = world.openSystems();
  QWidget* const focused = world.container->focusWidget();
  ASSERT_NE(focused, nullptr);
  EXPECT_EQ(focused->objectName(), QStringLiteral("FgSistemi"));
  QTest::keyClick(focused, Qt::Key_Down);
  QTest::keyClick(focused, Qt::Key_Return);
  settle();
  EXPECT_EQ(form.LblSistema.text(), "4 numeri in 6 ambi");
  GridView& pad = world.view("SistemiOrtogonali", "Fg99x");
  for (const int column : {0, 3, 7, 14}) ToolsWorld::click(pad, 1, column);
  EXPECT_EQ(form.Label20.text(), "4");
  QLabel& count = *qobject_cast<QLabel*>(world.shell.widget("SistemiOrtogonali", "Label20"));
  EXPECT_TRUE(hasColour(count.grab().toImage(), Verde, 0.3));
  qobject_cast<QAbstractButton*>(world.shell.widget("SistemiOrtogonali", "Command36"))->click();
  EXPECT_EQ(form.fG88.text(1, 1), "16");
  EXPECT_EQ(form.fG88.dataRows(), 6);
}

TEST(SystemsScreen, TheLongestPromiseFindsRoomWithoutMovingTheList) {
  ToolsWorld world;
  SistemiOrtogonali& form = world.openSystems();
  const int before = world.view("SistemiOrtogonali", "FgSistemi").height();
  for (int row = 1; row < form.FgSistemi.rows(); ++row) {
    form.FgSistemi.clickCell(row, 2);
    settle();
    EXPECT_FALSE(form.LblPromessa.text().empty()) << row;
    EXPECT_EQ(world.view("SistemiOrtogonali", "FgSistemi").height(), before) << form.LblPromessa.text();
  }
}

TEST(SystemsScreen, EveryButtonHasACaptionAndTheIdleOneAHint) {
  ToolsWorld world;
  world.openSystems();
  for (const char* const name : {"Command12", "Command34", "Command36", "Command9", "Command44"}) {
    const auto* const button = qobject_cast<QAbstractButton*>(world.shell.widget("SistemiOrtogonali", name));
    ASSERT_NE(button, nullptr) << name;
    EXPECT_FALSE(button->text().isEmpty()) << name;
  }
  EXPECT_FALSE(world.widget("SistemiOrtogonali", "Command44").toolTip().isEmpty());
}

TEST(SideSplitter, GivesTheMiddleTheRestAndRemembersMovedHandles) {
  const TempFolder folder;
  QSettings settings(QString::fromStdString((folder / "prova.ini").string()), QSettings::IniFormat);
  const auto make = [] {
    return new SideSplitter(QStringLiteral("Prova"), new QWidget, new QWidget, new QWidget, 200, 150);
  };
  const std::unique_ptr<SideSplitter> first(make());
  shown(*first, 900, 200);
  const QList<int> usual = first->sizes();
  EXPECT_NEAR(usual[0], 200, 40);
  EXPECT_GT(usual[1], usual[0] + usual[2]);
  first->resize(1100, 200);
  settle();
  EXPECT_EQ(first->sizes().first(), usual.first());
  EXPECT_EQ(first->sizes().last(), usual.last());

  QTest::mousePress(first->handle(1), Qt::LeftButton, {}, QPoint(1, 50));
  QTest::mouseMove(first->handle(1), QPoint(61, 50));
  QTest::mouseRelease(first->handle(1), Qt::LeftButton, {}, QPoint(61, 50));
  settle();
  const int moved = first->sizes().first();
  EXPECT_NE(moved, usual.first());
  first->store(settings);
  const std::unique_ptr<SideSplitter> second(make());
  second->restore(settings);
  shown(*second, 1100, 200);
  EXPECT_EQ(second->sizes().first(), moved);
}

}  // namespace
}  // namespace trv5
