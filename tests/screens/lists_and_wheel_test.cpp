// Lists and scroll bars under the wheel, editable lists under the keyboard.
#include <gtest/gtest.h>
#include <qtestspontaneevent.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWindow>

#include "form_world.h"
#include "screens/kit/kit.h"

namespace trv5 {
namespace {

// A page longer than its window, with a box, lists and a scroll bar at its top.
struct Page : testing::Test {
  Page() {
    for (Combo* const control : {&filter, &count, &free}) {
      control->setItems({"1", "2", "10"});
      control->select(1);
    }
    auto* const contents = new QWidget;
    auto* const layout = new QVBoxLayout(contents);
    for (QWidget* const widget : std::initializer_list<QWidget*>{box, list, number, text, bar})
      layout->addWidget(widget);
    layout->addSpacing(2000);
    area.setWidgetResizable(true);
    area.setWidget(contents);
    shown(area, 300, 300);
    area.activateWindow();
    box->setFocus();
    settle();
  }

  // As the window system tells it: the focus policy has its say first.
  void turn(const QWidget& under, int notches) {
    const QPoint place = under.mapTo(&area, under.rect().center());
    for (int i = 0; i < notches; ++i) {
      QWheelEvent wheel(place, area.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
      QSpontaneKeyEvent::setSpontaneous(&wheel);
      QCoreApplication::instance()->notify(area.windowHandle(), &wheel);
    }
  }
  int scrolled() const { return area.verticalScrollBar()->value(); }

  FormWorld world;
  Combo filter{world.form, "ComboFiltro"};
  Combo count{world.form, "ComboNC", Combo::Typing::Digits};
  Combo free{world.form, "Combo1R_1N", Combo::Typing::Yes};
  Scroll scroll{world.form, "hs1", 1, 100};
  Text name{world.form, "Text1"};
  Kit kit{world.form};
  QScrollArea area;
  QLineEdit* box = kit.edit("Text1");
  QComboBox* list = kit.combo("ComboFiltro");
  QComboBox* number = kit.combo("ComboNC");
  QComboBox* text = kit.combo("Combo1R_1N");
  QScrollBar* bar = kit.scroll("hs1");
};

TEST_F(Page, TheWheelOverAListScrollsThePage) {
  for (const QComboBox* const under : {list, number}) {
    const int before = scrolled();
    turn(*under, 2);
    EXPECT_GT(scrolled(), before);
    EXPECT_FALSE(under->hasFocus());
    area.verticalScrollBar()->setValue(0);
  }
  EXPECT_EQ(filter.index(), 1);
  EXPECT_EQ(count.index(), 1);
}

TEST_F(Page, TheWheelOverAScrollBarScrollsThePage) {
  turn(*bar, 2);
  EXPECT_EQ(scroll.value(), 1);
  EXPECT_GT(scrolled(), 0);
  EXPECT_FALSE(bar->hasFocus());
}

TEST_F(Page, TheWheelChangesTheValueThatHasTheFocus) {
  list->setFocus();
  turn(*list, 1);
  EXPECT_EQ(filter.index(), 2);
  bar->setFocus();
  turn(*bar, 1);
  EXPECT_GT(scroll.value(), 1);
  EXPECT_EQ(scrolled(), 0);
}

TEST_F(Page, AnEditableListIsSelectedWhenTheFocusComes) {
  QTest::keyClick(box, Qt::Key_Tab);
  QTest::keyClick(list, Qt::Key_Tab);
  EXPECT_TRUE(number->hasFocus());
  EXPECT_EQ(number->lineEdit()->selectedText(), QStringLiteral("2")) << "by Tab";
  QTest::mouseClick(text->lineEdit(), Qt::LeftButton);
  EXPECT_TRUE(text->hasFocus());
  EXPECT_EQ(text->lineEdit()->selectedText(), QStringLiteral("2")) << "by a click";
  QTest::mouseClick(text->lineEdit(), Qt::LeftButton);
  EXPECT_FALSE(text->lineEdit()->hasSelectedText()) << "the next click places the cursor";
  box->setFocus();
  count.focus();
  EXPECT_EQ(number->lineEdit()->selectedText(), QStringLiteral("2")) << "by an operation";
}

TEST_F(Page, AClickOnTheArrowOpensAnEditableList) {
  QTest::mouseClick(number, Qt::LeftButton, {}, QPoint(number->width() - 8, number->height() / 2));
  EXPECT_TRUE(number->view()->isVisible());
  EXPECT_EQ(world.form.focused(), &count) << "an open list is part of its control";
  number->hidePopup();
  area.activateWindow();  // without a window system nobody else does
  settle();
  EXPECT_TRUE(number->hasFocus());
  EXPECT_EQ(number->lineEdit()->selectedText(), QStringLiteral("2"));
}

TEST_F(Page, TheKeyboardGivesAListOfNumbersDigitsOnly) {
  number->setFocus();
  number->lineEdit()->selectAll();
  QTest::keyClicks(number->lineEdit(), QStringLiteral("1a-,5 "));
  EXPECT_EQ(count.text(), "15");
  text->setFocus();
  text->lineEdit()->selectAll();
  QTest::keyClicks(text->lineEdit(), QStringLiteral("1-5"));
  EXPECT_EQ(free.text(), "1-5");
}

TEST_F(Page, WhatIsSetPastTheKeyboardStaysInAListOfNumbers) {
  count.type("x7");
  EXPECT_EQ(count.text(), "x7");
  EXPECT_EQ(number->currentText(), QStringLiteral("x7"));
}

}  // namespace
}  // namespace trv5
