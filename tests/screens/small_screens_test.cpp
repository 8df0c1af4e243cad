#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QHeaderView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QTest>
#include <map>

#include "cases/case_list.h"
#include "cases/case_map.h"
#include "engine/result_forms.h"
#include "maintenance/mini_list.h"
#include "screens/EvoluzioneGrafica.h"
#include "screens/kit/icons.h"
#include "screens/kit/theme.h"
#include "window_world.h"

namespace trv5 {
namespace {

// A program with every screen that it has.
struct SmallScreensWorld {
  SmallScreensWorld() {
    std::vector<DrawRow> rows;
    for (int draw = 1; draw <= 30; ++draw) rows.push_back(drawOf(dateOfDraw(draw), {{"BA", {draw, 2, 3, 4, 5}}}));
    files.makeBoth(rows);
    shell.attach(program);
    shell.show("INIZIO");
    static_cast<Inizio&>(*shell.form("INIZIO")).Command2.press();
    settle();
    container = qobject_cast<ContainerScreen*>(shell.widget("Container"));
    container->resize(1366, 768);
    container->activateWindow();
    settle();
  }
  ~SmallScreensWorld() {
    shell.closeAll();
    shell.purge();
  }
  QMdiSubWindow& window(const char* screen) {
    return *qobject_cast<QMdiSubWindow*>(shell.widget(screen)->parentWidget());
  }
  GridView& view(const char* screen, const char* name) { return *qobject_cast<GridView*>(shell.widget(screen, name)); }

  ProgramWorld files;
  QuietShell shell{allScreens()};
  Program program{shell, files.folder.path()};
  ContainerScreen* container = nullptr;
};

TEST(SmallScreens, ExistWithTheirTitles) {
  SmallScreensWorld world;
  const std::map<std::string, std::string> titles = {{"Estrazioni_minielenco", "Mini elenco"},
                                                     {"ElencoRiscontri", "Elenco"},
                                                     {"EvoluzioneGrafica", "Evoluzione"},
                                                     {"Speciale", "Sfaldamenti configurazioni"}};
  for (const auto& [screen, title] : titles) {
    EXPECT_EQ(world.shell.show(screen).title(), title);
    settle();
    EXPECT_EQ(world.window(screen.c_str()).windowTitle().toStdString(), title);
  }
}

TEST(SmallScreens, HaveATitleInTheColoursOfTheTheme) {
  SmallScreensWorld world;
  for (const bool dark : {false, true}) {
    Theme::edit().setDark(dark);
    const ChromeColours& c = Theme::current().colours();
    world.shell.show("ElencoRiscontri");
    world.shell.show("Estrazioni_minielenco");
    settle();
    for (const auto& [screen, ground] :
         {std::pair("Estrazioni_minielenco", c.accent), std::pair("ElencoRiscontri", c.heading)}) {
      QMdiSubWindow& window = world.window(screen);
      const int height = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
      const QImage bar = window.grab(QRect(window.width() / 4, 2, window.width() / 2, height - 4)).toImage();
      EXPECT_TRUE(hasColour(bar, ground, 0.7)) << screen << dark;
      double most = 0;
      for (int y = 0; y < bar.height(); ++y)
        for (int x = 0; x < bar.width(); ++x) most = std::max(most, contrast(pixel(bar, x, y), ground));
      EXPECT_GE(most, 4.5) << screen << dark;
    }
  }
  Theme::edit().setDark(false);
}

// Each icon of its own would leave its pictures' names in Qt's cache for ever.
TEST(SmallScreens, ShareTheProgramsIconWithAllWindows) {
  SmallScreensWorld world;
  world.shell.show("Estrazioni_minielenco");
  settle();
  const qint64 mark = QApplication::windowIcon().cacheKey();
  ASSERT_FALSE(QApplication::windowIcon().isNull());
  EXPECT_EQ(world.window("Estrazioni_minielenco").windowIcon().cacheKey(), mark);
  EXPECT_EQ(world.container->windowIcon().cacheKey(), mark);
  EXPECT_EQ(programMark().cacheKey(), mark);
}

TEST(SmallScreens, CloseWithEsc) {
  SmallScreensWorld world;
  for (const char* const screen : {"Estrazioni_minielenco", "ElencoRiscontri", "EvoluzioneGrafica", "Speciale"}) {
    world.shell.show(screen);
    settle();
    QTest::keyClick(&world.window(screen), Qt::Key_Escape);
    settle();
    const std::vector<std::string> open = world.shell.openScreens();
    EXPECT_EQ(std::find(open.begin(), open.end(), screen), open.end()) << screen;
  }
}

TEST(SmallScreens, TheButtonOfTheShellOpensTheMiniListAtTheRightEdge) {
  SmallScreensWorld world;
  static_cast<Container&>(*world.shell.form("Container")).Command5.press();
  settle();
  const QMdiSubWindow& window = world.window("Estrazioni_minielenco");
  const int free = window.mdiArea()->width() - window.geometry().right();
  EXPECT_GE(free, 0);
  EXPECT_LE(free, 20);
}

TEST(SmallScreens, GrowAndShrinkWithTheFontAtTheRightEdge) {
  SmallScreensWorld world;
  world.shell.show("Estrazioni_minielenco");
  settle();
  const QMdiSubWindow& window = world.window("Estrazioni_minielenco");
  const QRect usual = window.geometry();
  const int free = window.mdiArea()->width() - usual.right();
  Theme::edit().setBasePoints(14);
  settle();
  EXPECT_GT(window.width(), usual.width());
  EXPECT_EQ(window.mdiArea()->width() - window.geometry().right(), free);
  EXPECT_EQ(world.view("Estrazioni_minielenco", "fG2").verticalScrollBar()->maximum(), 0);
  Theme::edit().setBasePoints(0);
  settle();
  EXPECT_EQ(window.size(), usual.size());
  EXPECT_EQ(window.geometry().right(), usual.right());
}

TEST(SmallScreens, KeepTheSizeThatTheUserGaveThem) {
  SmallScreensWorld world;
  world.shell.show("Estrazioni_minielenco");
  settle();
  QMdiSubWindow& window = world.window("Estrazioni_minielenco");
  window.resize(window.width() + 40, window.height() + 20);
  const QSize chosen = window.size();
  Theme::edit().setBasePoints(11);
  settle();
  EXPECT_EQ(window.size(), chosen);
  Theme::edit().setBasePoints(0);
}

TEST(SmallScreens, StayInSightWhenTheShellGetsSmaller) {
  SmallScreensWorld world;
  world.container->resize(1900, 1000);
  settle();
  world.shell.show("Estrazioni_minielenco");
  settle();
  world.container->resize(1280, 720);
  settle();
  const QMdiSubWindow& window = world.window("Estrazioni_minielenco");
  EXPECT_LE(window.geometry().right(), window.mdiArea()->width());
  EXPECT_LE(window.geometry().bottom(), window.mdiArea()->height());
}

TEST(MiniListScreen, ShowsTwoEqualPanels) {
  SmallScreensWorld world;
  world.shell.show("Estrazioni_minielenco");
  settle();
  const GridView& left = world.view("Estrazioni_minielenco", "fG2");
  const GridView& right = world.view("Estrazioni_minielenco", "fG3");
  EXPECT_NEAR(left.width(), right.width(), 1);
  EXPECT_EQ(left.height(), right.height());
  EXPECT_EQ(left.verticalScrollBar()->maximum(), 0) << "all eleven wheels are in sight";
  EXPECT_LT(left.mapToGlobal(QPoint()).x(), right.mapToGlobal(QPoint()).x());
}

TEST(MiniListScreen, ShowsAllWheelsWithALargeFontToo) {
  SmallScreensWorld world;
  Theme::edit().setBasePoints(14);
  world.shell.show("Estrazioni_minielenco");
  settle();
  EXPECT_EQ(world.view("Estrazioni_minielenco", "fG2").verticalScrollBar()->maximum(), 0);
  Theme::edit().setBasePoints(0);
}

TEST(MiniListScreen, AClickMarksANumberOnTheLeftOnly) {
  SmallScreensWorld world;
  auto& list = static_cast<MiniList&>(world.shell.show("Estrazioni_minielenco"));
  settle();
  for (const char* const name : {"fG2", "fG3"}) {
    GridView& view = world.view("Estrazioni_minielenco", name);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(view.model()->index(0, 3)).center());
  }
  EXPECT_EQ(list.fG2.back(1, 3), Verde);
  EXPECT_EQ(list.fG3.back(1, 3), kWhite);
}

TEST(MiniListScreen, EveryButtonHasAName) {
  SmallScreensWorld world;
  world.shell.show("Estrazioni_minielenco");
  settle();
  for (const char* const name : {"Command56", "Command42_0", "Command42_1", "Command81", "Command1"}) {
    const auto* const button = qobject_cast<QAbstractButton*>(world.shell.widget("Estrazioni_minielenco", name));
    ASSERT_NE(button, nullptr) << name;
    EXPECT_FALSE(button->text().isEmpty() && button->accessibleName().isEmpty()) << name;
  }
}

TEST(HitListScreen, UsesTheUtilitiesOfTheTables) {
  SmallScreensWorld world;
  auto& list = static_cast<ElencoRiscontri&>(world.shell.show("ElencoRiscontri"));
  const int row = list.Fg1.appendRow();
  list.Fg1.setNumber(row, 17, 45);
  list.Fg1.setNumber(row, 18, 46);
  list.Fg1.setBack(row, 18, Verde);
  list.Pulisce_Fg1.press();
  EXPECT_EQ(list.Fg1.text(row, 17), "");
  EXPECT_EQ(list.Fg1.text(row, 18), "46");
  EXPECT_EQ(list.Stampa_Fg1.caption(), "Stampa");
  EXPECT_EQ(list.Copia_Fg1.caption(), "Copia tabella");
  EXPECT_EQ(list.Pulisce_Fg1.caption(), "Pulisce celle esiti");
}

TEST(OutcomesScreen, HidesTwoColumnsAtOpening) {
  SmallScreensWorld world;
  const auto& form = static_cast<Speciale&>(world.shell.show("Speciale"));
  EXPECT_EQ(form.Fg1.hiddenColumns(), (std::set<int>{2, 6}));
  EXPECT_EQ(form.Fg1.columns(), 20);
  EXPECT_EQ(form.Fg1.text(0, 4), "Data Rilev");
  EXPECT_EQ(form.Fg1.text(0, 19), "Ruota");
}

// The map of cases `step` draws apart, ten colpi each, in a window of that size.
struct MapWorld {
  MapWorld(int cases, int step, int width = 980, int height = 480) {
    Grid& map = form.Fg1;
    const int oldest = 5000, newest = oldest + (cases - 1) * step;
    map.setColumns(newest + 10 - oldest + 1);
    map.setRows(cases + 1);
    for (int column = 1; column < map.columns(); ++column) map.setNumber(0, column, oldest + column - 1);
    for (int row = 1; row <= cases; ++row) {
      map.setNumber(row, 0, row);
      for (int colpo = 1; colpo <= 10; ++colpo) {
        const int column = newest - (row - 1) * step + colpo - oldest + 1;
        if (column < map.columns()) map.setBack(row, column, Rosso);
      }
    }
    shown(screen, width, height);
    view = screen.findChild<GridView*>();
  }

  FakeShell shell;
  EvoluzioneGrafica form{shell};
  EvoluzioneGraficaScreen screen{form};
  GridView* view = nullptr;
};

TEST(MapScreen, ColumnsAreEqualAndAtLeastThreePixelsWide) {
  for (const auto& [cases, step] : {std::pair(1, 1), std::pair(2, 5), std::pair(50, 2), std::pair(50, 20)}) {
    MapWorld world(cases, step);
    const int columns = world.form.Fg1.columns();
    int least = 9999, most = 0;
    for (int column = 1; column < columns; ++column) {
      least = std::min(least, world.view->columnWidth(column));
      most = std::max(most, world.view->columnWidth(column));
    }
    EXPECT_GE(least, 3) << cases << " cases";
    EXPECT_LE(most - least, 1) << cases << " cases";
  }
}

TEST(MapScreen, AShortSpanFillsTheWidthAndALongOneScrolls) {
  MapWorld brief(10, 4);
  EXPECT_EQ(brief.view->horizontalScrollBar()->maximum(), 0);
  EXPECT_EQ(brief.view->horizontalHeader()->length(), brief.view->viewport()->width());
  MapWorld wide(50, 20);
  EXPECT_GT(wide.view->horizontalScrollBar()->maximum(), 0);
}

TEST(MapScreen, RowsAreEightToTwentyFourPixelsHigh) {
  MapWorld few(2, 5);
  EXPECT_EQ(few.view->rowHeight(0), 24);
  MapWorld many(50, 5);
  EXPECT_GE(many.view->rowHeight(0), 8);
  EXPECT_LE(many.view->rowHeight(0), 24);
  MapWorld low(50, 5, 980, 200);
  EXPECT_EQ(low.view->rowHeight(0), 8);
  EXPECT_GT(low.view->verticalScrollBar()->maximum(), 0);
}

TEST(MapScreen, TheColumnOfTheCasesIsAsWideAsItsNumbers) {
  MapWorld world(50, 20);
  EXPECT_GE(world.view->columnWidth(0), QFontMetrics(world.view->headingFont()).horizontalAdvance(u"50"_qs));
}

TEST(MapScreen, ACellTellsItsCaseDrawAndColpo) {
  MapWorld world(3, 4);
  EXPECT_EQ(mapCellText(world.form.Fg1, 1, 9), "Caso 1, estrazione 5008");
  EXPECT_EQ(mapCellText(world.form.Fg1, 1, 10), "Caso 1, estrazione 5009, colpo 1");
  EXPECT_EQ(mapCellText(world.form.Fg1, 2, 15), "Caso 2, estrazione 5014, colpo 10");
  EXPECT_EQ(mapCellText(world.form.Fg1, 3, 0), "Caso 3");
  EXPECT_EQ(mapCellText(world.form.Fg1, 0, 3), "");
  EXPECT_EQ(mapCellText(world.form.Fg1, 4, 3), "");
  ASSERT_TRUE(world.view->look().toolTip);
  EXPECT_EQ(world.view->look().toolTip(1, 10), QStringLiteral("Caso 1, estrazione 5009, colpo 1"));
}

TEST(MapScreen, PaintsTheColpiRedAtEverySpan) {
  for (const int step : {1, 9, 20}) {
    MapWorld world(50, step);
    EXPECT_TRUE(hasColour(world.view->viewport()->grab().toImage(), Rosso, 0.005)) << step;
  }
}

TEST(MapScreen, AMapWithFewerColumnsThanTheOneBeforeIsMeasuredAtOnce) {
  MapWorld world(50, 9);
  world.form.Fg1.setColumns(3);
  world.view->updateGeometry();
  EXPECT_GT(world.view->sizeHint().width(), 0);
  world.screen.resize(700, 300);
  settle();
  EXPECT_EQ(world.view->model()->columnCount(), 3);
}

}  // namespace
}  // namespace trv5
