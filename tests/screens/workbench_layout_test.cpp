#include <gtest/gtest.h>

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QSplitter>
#include <set>

#include "screens/kit/click_label.h"
#include "support/temp_folder.h"
#include "workbench_screen.h"

namespace trv5 {
namespace {

const std::set<std::string> kPlaceless = {
    "FgZ100", "Fg99",   "FgDett",     "FgS1",      "FgS2",      "FgS3",      "FgS4",         "FgS5",
    "FgS6",   "FgSort", "Command117", "Command94", "Command95", "Command69", "LblCasoBreve", "LblRicerche"};

bool isText(const QWidget& widget) {
  return qobject_cast<const QAbstractButton*>(&widget) != nullptr || qobject_cast<const QLabel*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr;
}

// Whether an ancestor below the screen scrolls it up and down.
bool scrolls(const QWidget& widget) {
  for (const QWidget* w = widget.parentWidget(); w != nullptr; w = w->parentWidget())
    if (const auto* const area = qobject_cast<const QScrollArea*>(w); area != nullptr)
      if (area->verticalScrollBar()->isVisible()) return true;
  return false;
}

// Every visible caption, list and button has the room that it asks for, inside everything that it stands in.
void expectNothingCut(const Sommativi1Screen& screen) {
  for (const auto* const widget : screen.findChildren<QWidget*>()) {
    if (!widget->isVisibleTo(&screen) || !isText(*widget)) continue;
    if (widget->parentWidget()->inherits("QTabBar") || widget->inherits("QLineEditIconButton")) continue;
    const auto* const label = qobject_cast<const QLabel*>(widget);
    const std::string name = widget->objectName().toStdString() + " " +
                             (label != nullptr ? label->text() : widget->accessibleName()).toStdString();
    const bool fixed = widget->minimumWidth() == widget->maximumWidth();  // icons alone, lists of known items
    if (!fixed && (label == nullptr || !label->wordWrap())) {
      EXPECT_GE(widget->width(), widget->sizeHint().width()) << name;
    }
    const QWidget* const whole = screen.findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly)->viewport();
    for (const QWidget* w = widget->parentWidget(); w != whole; w = w->parentWidget()) {
      const QRect inside(widget->mapTo(w, QPoint(0, 0)), widget->size());
      EXPECT_GE(inside.left(), 0) << name << " in " << w->metaObject()->className();
      EXPECT_LE(inside.right(), w->width() - 1) << name << " in " << w->metaObject()->className();
      if (scrolls(*widget)) continue;
      EXPECT_GE(inside.top(), 0) << name << " in " << w->metaObject()->className();
      EXPECT_LE(inside.bottom(), w->height() - 1) << name << " in " << w->metaObject()->className();
    }
  }
}

TEST(WorkbenchLayout, ShowsEveryControlOfTheFormThatHasAPlace) {
  WorkbenchScreen world;
  for (const Control* const control : world.world.w.controls()) {
    const int widgets = static_cast<int>(world.screen->findChildren<QWidget*>(qs(control->name())).size());
    EXPECT_EQ(widgets, kPlaceless.contains(control->name()) ? 0 : 1) << control->name();
  }
}

class WorkbenchSizes : public testing::TestWithParam<std::pair<QSize, double>> {};

TEST_P(WorkbenchSizes, CutNothingOnAnyTab) {
  const auto [window, points] = GetParam();
  Theme::edit().setBasePoints(points);
  WorkbenchScreen world(window);
  Workbench& w = world.world.w;
  EXPECT_EQ(world.screen->width(), window.width() - 52);
  EXPECT_EQ(world.screen->height(), window.height() - 28);
  for (const int page : {0, 1}) {
    w.SSTab1.set(page);
    for (const auto& [tab, caption] : w.SSTab3.captions()) {
      SCOPED_TRACE(caption + " beside page " + std::to_string(page));
      w.SSTab3.set(tab);
      w.SSTab4.set(page);
      settle();
      expectNothingCut(*world.screen);
    }
  }
}

TEST_P(WorkbenchSizes, NeedNoScrollBarOfTheWindow) {
  const auto [window, points] = GetParam();
  Theme::edit().setBasePoints(points);
  WorkbenchScreen world(window);
  const QScrollArea& whole = *world.screen->findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly);
  for (const auto& [tab, caption] : world.world.w.SSTab3.captions()) {
    world.world.w.SSTab3.set(tab);
    settle();
    EXPECT_FALSE(whole.horizontalScrollBar()->isVisible()) << caption << whole.widget()->minimumSizeHint().width();
    EXPECT_FALSE(whole.verticalScrollBar()->isVisible()) << caption << whole.widget()->minimumSizeHint().height();
  }
}

TEST(WorkbenchLayout, ALargeFontInASmallWindowScrollsRatherThanBeingCut) {
  Theme::edit().setBasePoints(14);
  WorkbenchScreen world({1366, 768});
  const QScrollArea& whole = *world.screen->findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly);
  EXPECT_TRUE(whole.horizontalScrollBar()->isVisible());
  expectNothingCut(*world.screen);
}

TEST_P(WorkbenchSizes, HaveNoControlThatIsTooSmallToHit) {
  const auto [window, points] = GetParam();
  Theme::edit().setBasePoints(points);
  WorkbenchScreen world(window);
  for (const auto& [tab, caption] : world.world.w.SSTab3.captions()) {
    world.world.w.SSTab3.set(tab);
    settle();
    for (const auto* const widget : world.screen->findChildren<QWidget*>()) {
      const bool control = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                           qobject_cast<const QComboBox*>(widget) != nullptr ||
                           (qobject_cast<const ClickLabel*>(widget) != nullptr && !widget->objectName().isEmpty()) ||
                           (qobject_cast<const QLineEdit*>(widget) != nullptr && !widget->objectName().isEmpty());
      if (!control || !widget->isVisible() || widget->objectName().isEmpty() ||
          world.world.w.find(widget->objectName().toStdString()) == nullptr)
        continue;
      // The chip of the reference draw is as high as a word among words; a key does the same.
      EXPECT_GE(widget->height(), widget->objectName() == QStringLiteral("LblUltima") ? 18 : 24)
          << widget->objectName().toStdString();
      EXPECT_GE(widget->width(), 24) << widget->objectName().toStdString();
    }
  }
}

std::string nameOf(const testing::TestParamInfo<std::pair<QSize, double>>& tested) {
  const auto& [size, points] = tested.param;
  return "W" + std::to_string(size.width()) + "x" + std::to_string(size.height()) +
         (points > 0 ? "At" + std::to_string(static_cast<int>(points)) : std::string());
}

INSTANTIATE_TEST_SUITE_P(Windows, WorkbenchSizes,
                         testing::Values(std::pair(QSize(1280, 680), 0.0), std::pair(QSize(1280, 720), 0.0),
                                         std::pair(QSize(1366, 768), 0.0), std::pair(QSize(1600, 900), 0.0),
                                         std::pair(QSize(1920, 1080), 0.0), std::pair(QSize(1920, 1080), 14.0)),
                         nameOf);

TEST(WorkbenchLayout, SelectionsScrollOnlyWhereTheWindowIsLow) {
  WorkbenchScreen world({1366, 768});
  const QWidget* area = &world.find("FgNu");
  while (qobject_cast<const QScrollArea*>(area) == nullptr) area = area->parentWidget();
  const auto* const scroll = static_cast<const QScrollArea*>(area)->verticalScrollBar();
  EXPECT_FALSE(scroll->isVisible());
  world.resize({1280, 720});
  EXPECT_FALSE(scroll->isVisible());
  world.resize({1280, 680});
  EXPECT_TRUE(scroll->isVisible());
  EXPECT_TRUE(world.find("Command44").isVisible());
  EXPECT_FALSE(area->isAncestorOf(&world.find("Command44")));
}

TEST(WorkbenchLayout, FromSixteenHundredPixelsOnBothPagesStandSideBySide) {
  WorkbenchScreen world({1599, 900});
  const auto both = [&] { return world.find("Command44").isVisible() && world.find("FgEv").isVisible(); };
  EXPECT_FALSE(both());
  EXPECT_TRUE(world.find("SSTab1").isVisible());
  world.resize({1600, 900});
  EXPECT_TRUE(both());
  EXPECT_FALSE(world.find("SSTab1").isVisible());
  EXPECT_LT(world.find("Command44").mapTo(world.screen.get(), QPoint()).x(),
            world.find("FgEv").mapTo(world.screen.get(), QPoint()).x());
  world.resize({1366, 768});
  EXPECT_FALSE(both());
  world.world.w.SSTab1.set(0);
  settle();
  EXPECT_TRUE(world.find("FgEv").isVisible());
  EXPECT_FALSE(world.find("Command44").isVisible());
}

TEST(WorkbenchLayout, ALargeFontPutsThePagesBehindTheirTabsAgain) {
  WorkbenchScreen world({1920, 1080});
  EXPECT_FALSE(world.find("SSTab1").isVisible());
  Theme::edit().setBasePoints(14);
  for (int i = 0; i < 3; ++i) settle();
  EXPECT_TRUE(world.find("SSTab1").isVisible());
}

TEST(WorkbenchLayout, ThePageThatAnOperationBringsToTheFrontGetsTheFocus) {
  WorkbenchScreen world({1920, 1080});
  world.world.w.SSTab1.set(0);
  settle();
  EXPECT_TRUE(world.find("FgEv").hasFocus());
  const auto underlined = [&](const QString& caption) {
    for (auto* const label : world.screen->findChildren<ClickLabel*>())
      if (label->text() == caption && label->isVisible()) {
        const QImage picture = label->grab().toImage();
        return pixel(picture, picture.width() / 2, picture.height() - 2) == Theme::current().colours().accent;
      }
    ADD_FAILURE() << "no heading " << caption.toStdString();
    return false;
  };
  EXPECT_TRUE(underlined(QStringLiteral("Elenco estrazioni")));
  EXPECT_FALSE(underlined(QStringLiteral("Selezioni")));
  world.world.press("Command44");  // one value is missing: it asks for it
  world.world.w.SSTab1.set(1);
  settle();
  EXPECT_TRUE(world.find("ComboFiltro").hasFocus());
  EXPECT_TRUE(underlined(QStringLiteral("Selezioni")));
}

TEST(WorkbenchLayout, TotalsStandExactlyUnderTheirColumns) {
  for (const QSize window : {QSize(1280, 720), QSize(1366, 768), QSize(1920, 1080)}) {
    WorkbenchScreen world(window);
    world.chooseSituation();
    WorkbenchWorld::choose(world.world.w.ComboNC, "30");
    world.world.press("Command44");
    settle();
    ASSERT_EQ(world.world.w.FgEv.dataRows(), 30);
    auto& cases = world.find<GridView>("FgEv");
    auto& totals = world.find<GridView>("FgSSS");
    for (const int column : {0, 1, 2, 5}) {
      const auto [left, width] = cases.columnSpan(case_column::kHits + column);
      const auto [totalLeft, totalWidth] = totals.columnSpan(column);
      EXPECT_EQ(cases.mapTo(world.screen.get(), QPoint(left, 0)).x(),
                totals.mapTo(world.screen.get(), QPoint(totalLeft, 0)).x());
      EXPECT_EQ(width, totalWidth);
    }
  }
}

TEST(WorkbenchLayout, CasesOfOneElementFoldTheColumnsOfTheSecond) {
  WorkbenchScreen world;
  world.chooseSituation();
  world.world.press("Command44");
  settle();
  auto& cases = world.find<GridView>("FgEv");
  EXPECT_TRUE(cases.isColumnHidden(9));
  EXPECT_TRUE(cases.isColumnHidden(16));
  EXPECT_FALSE(cases.isColumnHidden(17));
  world.world.w.FgEv.setText(1, 9, "12");
  settle();
  EXPECT_FALSE(cases.isColumnHidden(9));
}

TEST(WorkbenchLayout, HandlesStayWhereTheUserPutThemForEachDensity) {
  const TempFolder folder;
  const QString file = qs((folder / "finestre.ini").string());
  const auto top = [](const WorkbenchScreen& world) -> QSplitter& {
    for (auto* const splitter : world.screen->findChildren<QSplitter*>())
      if (splitter->orientation() == Qt::Vertical) return *splitter;
    throw std::logic_error("no rows");
  };
  QList<int> moved;
  {
    WorkbenchScreen world({1366, 768});
    QSplitter& rows = top(world);
    const QList<int> before = rows.sizes();
    rows.setSizes({before[0] - 40, before[1] + 40});
    Q_EMIT rows.splitterMoved(rows.sizes()[0], 1);  // as a dragged handle does
    moved = rows.sizes();
    EXPECT_NE(moved, before);
    QSettings settings(file, QSettings::IniFormat);
    world.screen->store(settings);
  }
  const WorkbenchScreen other({1920, 1080});
  const QList<int> comfortable = top(other).sizes();
  const QSettings settings(file, QSettings::IniFormat);
  other.screen->restore(settings);
  settle();
  EXPECT_EQ(top(other).sizes(), comfortable);
  other.resize({1366, 768});
  EXPECT_EQ(top(other).sizes(), moved);
}

TEST(WorkbenchLayout, DisabledButtonsSayWhy) {
  WorkbenchScreen world;
  int buttons = 0;
  for (const auto* const button : world.screen->findChildren<QAbstractButton*>()) {
    if (button->objectName().isEmpty() || world.world.w.find(button->objectName().toStdString()) == nullptr) continue;
    ++buttons;
    EXPECT_FALSE(!button->isEnabled() && button->toolTip().isEmpty()) << button->objectName().toStdString();
  }
  EXPECT_GT(buttons, 100);
}

TEST(WorkbenchLayout, EveryEmptyGridSaysWhatToPress) {
  WorkbenchScreen world;
  for (const Control* const control : world.world.w.controls()) {
    const auto* const grid = dynamic_cast<const GridControl*>(control);
    if (grid == nullptr || grid->headingRows() == 0 || kPlaceless.contains(grid->name())) continue;
    EXPECT_FALSE(grid->emptyText().empty()) << grid->name();
  }
}

TEST(WorkbenchLayout, WhatTheKindDoesNotReadIsShownQuietlyAndStaysEnabled) {
  WorkbenchScreen world;
  Workbench& w = world.world.w;
  const auto quiet = [&](const char* name) { return world.find(name).property("aside").toBool(); };
  const auto expectRead = [&](const char* kind, bool two, const std::set<std::string>& read) {
    SCOPED_TRACE(kind);
    WorkbenchWorld::choose(w.ComboFiltro, kind);
    w.Ch_analisi2ruote.set(two);
    settle();
    for (const char* const name : {"ComboPar", "ComboR1", "ComboQNu", "Ch_ultima", "LblPN_1", "TxtNumeri", "ComboRetro",
                                   "ComboQNR1", "ComboQNR2", "ChDDS", "Ch_ISO"}) {
      EXPECT_EQ(!quiet(name), read.contains(name)) << name;
      EXPECT_TRUE(world.find(name).isEnabled()) << name;
    }
    EXPECT_EQ(!w.FgRR.aside(), read.contains("FgRR"));
  };
  expectRead("Mensile", false, {"ComboPar", "ComboR1", "Ch_ultima"});
  expectRead("Numeri", false, {"ComboR1", "ComboQNu", "LblPN_1", "TxtNumeri", "ComboRetro"});
  expectRead("Somma", false, {"ComboR1", "ComboQNu", "LblPN_1", "TxtNumeri"});
  expectRead("Ciclo", false, {"ComboPar", "ComboR1"});
  expectRead("Num Pari", false, {"ComboPar", "ComboR1", "LblPN_1"});
  expectRead("Numeri", true, {"FgRR", "LblPN_1", "TxtNumeri", "ComboRetro", "ComboQNR1", "ComboQNR2", "Ch_ISO"});
  expectRead("Distanza", true, {"FgRR", "LblPN_1", "TxtNumeri", "ComboRetro", "ChDDS", "Ch_ISO"});
  expectRead("Mensile", true, {});
}

}  // namespace
}  // namespace trv5
