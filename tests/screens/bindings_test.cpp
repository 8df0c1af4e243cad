#include "screens/kit/bindings.h"

#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "form_world.h"
#include "screens/kit/click_label.h"
#include "screens/kit/kit.h"

namespace trv5 {
namespace {

struct Bindings : testing::Test {
  FormWorld world;
  int events = 0;

  void count(Control& control) {
    control.onEvent([this] { ++events; });
  }
};

TEST_F(Bindings, AButtonCarriesNameCaptionTooltipAndPressesTheControl) {
  Button control(world.form, "Command44", "RICAVA ELENCO", "Cerca i casi");
  count(control);
  QPushButton widget;
  bind(widget, control, u'E');
  EXPECT_EQ(widget.objectName(), QStringLiteral("Command44"));
  EXPECT_EQ(widget.text(), QStringLiteral("RICAVA &ELENCO"));
  EXPECT_EQ(widget.accessibleName(), QStringLiteral("RICAVA ELENCO"));
  EXPECT_EQ(widget.toolTip(), QStringLiteral("Cerca i casi"));
  QTest::mouseClick(&shown(widget, 200, 30), Qt::LeftButton);
  EXPECT_EQ(events, 1);
  control.setEnabled(false);
  QTest::mouseClick(&widget, Qt::LeftButton);
  EXPECT_EQ(events, 1);
  control.setEnabled(true);
  control.setCaption("FERMA & BASTA");
  EXPECT_EQ(widget.text(), QStringLiteral("F&ERMA && BASTA"));
}

TEST_F(Bindings, AButtonWithoutCaptionIsKnownByItsTooltip) {
  Button control(world.form, "Command103", "", "Mappa dei casi");
  Kit kit(world.form);
  const std::unique_ptr<QPushButton> widget(kit.button("Command103", {.icon = "map", .iconOnly = true}));
  EXPECT_EQ(widget->text(), QString());
  EXPECT_EQ(widget->accessibleName(), QStringLiteral("Mappa dei casi"));
}

TEST_F(Bindings, DataColoursOfAControlHaveReadableInk) {
  Button control(world.form, "Cmd_LaSorte_1", "1");
  QWidget window;
  QPushButton widget(&window);
  bind(widget, control);
  widget.resize(60, 30);
  shown(window, 60, 30);
  control.setBack(0x00FF00);
  settle();
  QImage picture = widget.grab().toImage();
  EXPECT_TRUE(hasColour(picture, 0x00FF00, 0.5));
  EXPECT_TRUE(widget.styleSheet().contains(QStringLiteral("#101010")));
  control.setBack(std::nullopt);
  settle();
  EXPECT_FALSE(hasColour(widget.grab().toImage(), 0x00FF00));
}

TEST_F(Bindings, ALabelFollowsItsTextAndColour) {
  Label control(world.form, "Lbl_Ev", "1");
  QLabel widget;
  bind(widget, control);
  control.setText("7370");
  EXPECT_EQ(widget.text(), QStringLiteral("7370"));
  control.setFore(0x008000);
  EXPECT_TRUE(widget.styleSheet().contains(QStringLiteral("#008000")));
}

TEST_F(Bindings, ALabelWithAnOperationCanBeClickedAndPressedBySpace) {
  Label control(world.form, "Label17", "Seleziona tutti");
  count(control);
  ClickLabel widget;
  bind(widget, control);
  shown(widget, 150, 30);
  QTest::mouseClick(&widget, Qt::LeftButton);
  QTest::keyClick(&widget, Qt::Key_Space);
  EXPECT_EQ(events, 2);
}

TEST_F(Bindings, APickOfTheSameItemFiresToo) {
  Combo control(world.form, "ComboR1");
  control.setItems({"BA", "CA", "FI"});
  control.select(1);
  count(control);
  QComboBox widget;
  bind(widget, control);
  EXPECT_EQ(widget.currentText(), QStringLiteral("CA"));
  shown(widget, 100, 30);
  QTest::keyClick(&widget, Qt::Key_Down);
  EXPECT_EQ(control.index(), 2);
  EXPECT_EQ(events, 1);
  Q_EMIT widget.activated(2);
  EXPECT_EQ(events, 2);
}

TEST_F(Bindings, AListFollowsItsItemsAndIndexWithoutFiring) {
  Combo control(world.form, "ComboPar");
  QComboBox widget;
  bind(widget, control);
  count(control);
  control.setItems({"U", "1", "2"});
  EXPECT_EQ(widget.count(), 3);
  EXPECT_EQ(widget.currentIndex(), -1);
  control.select(2);
  EXPECT_EQ(widget.currentIndex(), 2);
  EXPECT_EQ(events, 1) << "set by an operation, once";
}

TEST_F(Bindings, ATextTypedIntoAnEditableListIsItsOwnOrAnItem) {
  Combo control(world.form, "ComboNC", Combo::Typing::Yes);
  control.setItems({"1", "2", "10"});
  control.select(0);
  QComboBox widget;
  bind(widget, control);
  count(control);
  shown(widget, 100, 30);
  widget.lineEdit()->selectAll();
  QTest::keyClicks(widget.lineEdit(), QStringLiteral("15"));
  EXPECT_EQ(control.text(), "15");
  EXPECT_EQ(control.index(), -1);
  EXPECT_EQ(widget.currentText(), QStringLiteral("15"));
  widget.lineEdit()->selectAll();
  QTest::keyClicks(widget.lineEdit(), QStringLiteral("2"));
  EXPECT_EQ(control.index(), 1);
  EXPECT_GT(events, 0);
}

TEST_F(Bindings, ACheckBoxAndItsControlFollowEachOther) {
  Check control(world.form, "Ch_ultima", "Forza ultima");
  QCheckBox widget;
  bind(widget, control, u'F');
  count(control);
  QTest::mouseClick(&shown(widget, 200, 30), Qt::LeftButton, {}, QPoint(8, 15));
  EXPECT_TRUE(control.checked());
  EXPECT_EQ(events, 1);
  control.set(false);
  EXPECT_FALSE(widget.isChecked());
  EXPECT_EQ(events, 2);
}

TEST_F(Bindings, OptionButtonsExcludeEachOther) {
  Check first(world.form, "OptionRit_0", "720"), second(world.form, "OptionRit_1", "360");
  QWidget group;
  QRadioButton a(&group), b(&group);
  b.move(0, 30);
  bind(a, first);
  bind(b, second);
  first.set(true);
  EXPECT_TRUE(a.isChecked());
  b.click();
  EXPECT_TRUE(second.checked());
  EXPECT_FALSE(first.checked());
}

TEST_F(Bindings, ATextBoxTakesWhatIsTypedUpToItsLength) {
  Text control(world.form, "Txt_Denominazione", 5);
  QLineEdit widget;
  bind(widget, control);
  shown(widget, 200, 30);
  QTest::keyClicks(&widget, QStringLiteral("metodo"));
  EXPECT_EQ(control.text(), "metod");
  control.set("Città");
  EXPECT_EQ(widget.text(), QStringLiteral("Città"));
}

TEST_F(Bindings, ADoubleClickOnATextBoxRunsItsOperation) {
  Text control(world.form, "TxtNumeri");
  control.set("01-30");
  control.onDoubleClick([&] { control.set(""); });
  QLineEdit widget;
  bind(widget, control);
  shown(widget, 200, 30);
  QTest::mouseDClick(&widget, Qt::LeftButton);
  EXPECT_EQ(widget.text(), QString());
}

TEST_F(Bindings, AScrollBarFollowsRangeAndValue) {
  Scroll control(world.form, "hs1", 1, 100);
  QScrollBar widget(Qt::Horizontal);
  bind(widget, control);
  count(control);
  control.setMaximum(7370);
  EXPECT_EQ(widget.maximum(), 7370);
  EXPECT_EQ(widget.pageStep(), 100);
  control.set(7000);
  EXPECT_EQ(widget.value(), 7000);
  EXPECT_EQ(events, 1);
  widget.setValue(6999);
  EXPECT_EQ(control.value(), 6999);
  EXPECT_EQ(events, 2);
  widget.setValue(6999);
  EXPECT_EQ(events, 2);
}

TEST_F(Bindings, TabsAreKnownByTheirGivenIndexInWhateverOrder) {
  Tabs control(world.form, "SSTab1", {{1, "Selezioni"}, {0, "Elenco estrazioni"}});
  QTabWidget widget;
  widget.addTab(new QWidget, QString());
  widget.addTab(new QWidget, QString());
  bind(widget, control);
  count(control);
  EXPECT_EQ(widget.tabText(0), QStringLiteral("Selezioni"));
  EXPECT_EQ(widget.currentIndex(), 0);
  control.set(0);
  EXPECT_EQ(widget.currentIndex(), 1);
  EXPECT_EQ(events, 1);
  widget.setCurrentIndex(0);
  EXPECT_EQ(control.index(), 1);
  EXPECT_EQ(events, 2);
}

TEST_F(Bindings, ADisabledTabCanBeBroughtToFrontByAnOperationAlone) {
  Tabs control(world.form, "SSTab3", {{0, "Ambate"}, {1, "Ambi"}});
  control.setTabEnabled(1, false);
  QTabWidget widget;
  widget.addTab(new QWidget, QString());
  widget.addTab(new QWidget, QString());
  bind(widget, control);
  EXPECT_FALSE(widget.isTabEnabled(1));
  control.set(1);
  EXPECT_EQ(widget.currentIndex(), 1);
  EXPECT_EQ(control.index(), 1);
}

TEST_F(Bindings, ALogShowsItsLines) {
  LineList control(world.form, "List1");
  QListWidget widget;
  bind(widget, control);
  control.add("10:42:07");
  control.add("10:42:08");
  ASSERT_EQ(widget.count(), 2);
  EXPECT_EQ(widget.item(1)->text(), QStringLiteral("10:42:08"));
  control.clear();
  control.add("11:00:00");
  ASSERT_EQ(widget.count(), 1);
  EXPECT_EQ(widget.item(0)->text(), QStringLiteral("11:00:00"));
}

TEST_F(Bindings, ABarEndsWhereTheOperationEnds) {
  Progress control(world.form, "pb1");
  QProgressBar widget;
  bind(widget, control);
  for (int row = 1; row <= 7370; ++row) control.set(row, 7370);
  settle();
  EXPECT_EQ(widget.maximum(), 7370);
  EXPECT_EQ(widget.value(), 7370);
}

TEST_F(Bindings, ACalendarSpeaksItalianDates) {
  Calendar control(world.form, "MonthView1");
  QCalendarWidget widget;
  bind(widget, control);
  control.set("22/08/2026");
  EXPECT_EQ(widget.selectedDate(), QDate(2026, 8, 22));
  widget.setSelectedDate(QDate(2026, 2, 1));
  EXPECT_EQ(control.date(), "01/02/2026");
}

TEST_F(Bindings, AClickOnTheDayThatACalendarShowsIsOne) {
  Calendar control(world.form, "MonthView1");
  int picks = 0;
  control.onEvent([&] { ++picks; });
  QCalendarWidget widget;
  bind(widget, control);
  control.show("22/08/2026");
  EXPECT_EQ(widget.selectedDate(), QDate(2026, 8, 22));
  EXPECT_EQ(picks, 0);
  Q_EMIT widget.clicked(QDate(2026, 8, 22));
  EXPECT_EQ(picks, 1);
}

TEST_F(Bindings, AWidgetThatIsGoneIsForgotten) {
  Button control(world.form, "Command1", "Uno");
  {
    QPushButton widget;
    bind(widget, control);
  }
  control.setCaption("Due");
  control.setEnabled(false);
  EXPECT_EQ(control.caption(), "Due");
}

TEST(Kit, AskingForAControlThatTheFormLacksIsAMistakeOfTheProgram) {
  FormWorld world;
  Kit kit(world.form);
  EXPECT_THROW(kit.button("Command999"), std::logic_error);
}

TEST(FlowLayout, WrapsWhereTheWidthEnds) {
  QWidget wide;
  std::vector<QWidget*> boxes;
  for (int i = 0; i < 4; ++i) {
    boxes.push_back(new QWidget);
    boxes.back()->setFixedSize(100, 20);
  }
  wide.setLayout(flow(boxes));
  shown(wide, 600, 100);
  EXPECT_EQ(boxes[3]->y(), boxes[0]->y());
  wide.resize(230, 100);
  settle();
  EXPECT_EQ(boxes[1]->y(), boxes[0]->y());
  EXPECT_GT(boxes[2]->y(), boxes[1]->y());
  EXPECT_EQ(boxes[2]->x(), boxes[0]->x());
}

}  // namespace
}  // namespace trv5
