#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCalendarWidget>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <ctime>
#include <map>
#include <random>
#include <set>

#include "maintenance/archivio.h"
#include "screens/kit/grid_view.h"
#include "screens/kit/theme.h"
#include "window_world.h"

namespace trv5 {
namespace {

// The whole program with the archive's screen open inside the shell's window.
struct ArchivioScreenTest : ::testing::Test {
  ArchivioScreenTest() {
    std::mt19937 rng(5);
    files.makeBoth(randomRows(rng, 300));
    shell.attach(program);
    shell.show("INIZIO");
    settle();
    press("INIZIO", "Command2");
    resize({1366, 768});
    main().activateWindow();
    press("Container", "Command1");
    for (int i = 0; i < 3; ++i) settle();
  }
  ~ArchivioScreenTest() override {
    shell.closeAll();
    shell.purge();
    Theme::edit().setBasePoints(0);
    Theme::edit().setWindowHeight(1080);
  }

  QWidget& main() { return *shell.widget("Container"); }
  Archivio& form() { return static_cast<Archivio&>(*shell.form("archivio")); }
  QWidget& find(const std::string& name) {
    QWidget* const found = shell.widget("archivio", name);
    if (found == nullptr) throw std::logic_error("no widget " + name);
    return *found;
  }
  QLineEdit& box(int i) { return *qobject_cast<QLineEdit*>(&find("txtin_" + std::to_string(i))); }
  void press(const char* screen, const char* name) {
    qobject_cast<QAbstractButton*>(shell.widget(screen, name))->click();
    settle();
  }
  void resize(QSize window) {
    main().resize(window);
    for (int i = 0; i < 3; ++i) settle();
  }
  // Keys go to whatever has the focus.
  static void key(int code, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(code), held);
  }

  ProgramWorld files;
  QuietShell shell{allScreens()};
  Program program{shell, files.folder.path()};
};

TEST_F(ArchivioScreenTest, EveryControlHasItsPlaceButTheBufferOfThePasteAndTheMenu) {
  const std::set<std::string> without = {"Text3", "Cmd_Storico", "Command19", "Command20", "Command26"};
  for (const Control* const control : form().controls())
    EXPECT_EQ(shell.widget("archivio", control->name()) != nullptr, !without.contains(control->name()))
        << control->name();
}

TEST_F(ArchivioScreenTest, AWholeDrawIsEnteredByTheKeyboardAlone) {
  press("archivio", "Command1");
  QTest::keyClick(&main(), Qt::Key_B, Qt::AltModifier);
  settle();
  ASSERT_EQ(QApplication::focusWidget(), &box(1));
  int keys = 0;
  for (int i = 1; i <= EntryBoxes::kBoxes; ++i) {
    // The numeric pad's digits and Enter are like the others.
    key(Qt::Key_1 + i % 9, i % 2 == 0 ? Qt::KeypadModifier : Qt::NoModifier);
    key(i % 2 == 0 ? Qt::Key_Enter : Qt::Key_Return);
    keys += 2;
  }
  EXPECT_EQ(keys, 110);
  for (int i = 1; i <= EntryBoxes::kBoxes; ++i) {
    EXPECT_EQ(form().txtin[i].text(), "0" + std::to_string(1 + i % 9));
    EXPECT_EQ(box(i).text().toStdString(), form().txtin[i].text());
  }
  EXPECT_EQ(QApplication::focusWidget(), &box(1));
}

TEST_F(ArchivioScreenTest, FromTheEmptyBoxesToTheSavedDrawNoMouseIsNeeded) {
  form().MonthView1.set("22/08/2026");
  QTest::keyClick(&main(), Qt::Key_G, Qt::AltModifier);  // AZZERA GRID; a button pressed so is let go after a moment
  ASSERT_TRUE(QTest::qWaitFor([this] { return form().txtin[55].text().empty(); }));
  QTest::keyClick(&main(), Qt::Key_B, Qt::AltModifier);
  settle();
  ASSERT_EQ(QApplication::focusWidget(), &box(1));
  for (int i = 1; i <= EntryBoxes::kBoxes; ++i) {
    for (const char digit : std::to_string(i)) key(Qt::Key_0 + (digit - '0'));
    key(Qt::Key_Return);
  }
  shell.agrees = true;
  QTest::keyClick(&main(), Qt::Key_S, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return shell.messages.size() == 2; }));
  EXPECT_EQ(shell.messages.back(), "Dati salvati correttamente. Ricarico archivio.");
  const int last = program.archive.NumEstrazioni();
  ASSERT_EQ(last, 301);
  for (int i = 0; i < EntryBoxes::kBoxes; ++i)
    EXPECT_EQ(program.archive.NumeriEstratti(last, i / kPositions, i % kPositions + 1), i + 1);
}

TEST_F(ArchivioScreenTest, AMegabytePastedIntoABoxHoldsNothingUpAndEmptiesIt) {
  box(7).setFocus();
  for (const QString& text : {QString(1 << 20, u'9'), QString(1 << 20, u' '), QString(1 << 20, u'è')}) {
    QApplication::clipboard()->setText(text);
    const std::clock_t begin = std::clock();  // of the processor: the machine may have other work
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_LT(std::clock() - begin, CLOCKS_PER_SEC);
    box(8).setFocus();
    EXPECT_LE(box(7).text().size(), 2);
    box(7).setFocus();
  }
  QApplication::clipboard()->clear();
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(box(7).text(), QString()) << "in place of what is selected";
}

TEST_F(ArchivioScreenTest, AHundredPastedIntoABoxEmptiesIt) {
  box(7).setFocus();
  QApplication::clipboard()->setText(QStringLiteral("100"));
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(box(7).text(), QString());
  QApplication::clipboard()->setText(QStringLiteral("42"));
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(box(7).text(), QStringLiteral("42"));
}

TEST_F(ArchivioScreenTest, AClickOnABoxSelectsAllOfItAndPaintsIt) {
  QTest::mouseClick(&box(8), Qt::LeftButton);
  EXPECT_EQ(box(8).selectedText(), box(8).text());
  EXPECT_EQ(form().txtin[8].back(), Giallo);
  QTest::mouseClick(&box(9), Qt::LeftButton);
  EXPECT_FALSE(form().txtin[8].back());
}

TEST_F(ArchivioScreenTest, TheBoxesOnScreenFollowTheirModelThroughRandomKeys) {
  constexpr Qt::Key kKeys[] = {Qt::Key_1,  Qt::Key_9,    Qt::Key_9,     Qt::Key_0,    Qt::Key_X,   Qt::Key_Return,
                               Qt::Key_Up, Qt::Key_Down, Qt::Key_Right, Qt::Key_Left, Qt::Key_Tab, Qt::Key_Backspace};
  std::mt19937 rng(9);
  box(30).setFocus();
  for (int step = 0; step < 1500; ++step) {
    if (form().focused() == nullptr || form().focused()->name().rfind("txtin", 0) != 0) box(30).setFocus();
    if (rng() % 10 == 0) QTest::mouseClick(&box(static_cast<int>(rng() % 55) + 1), Qt::LeftButton);
    key(kKeys[rng() % std::size(kKeys)]);
    for (int i = 1; i <= EntryBoxes::kBoxes; ++i) {
      ASSERT_EQ(box(i).text().toStdString(), form().txtin[i].text()) << "step " << step;
      ASSERT_EQ(box(i).hasFocus(), form().txtin[i].hasFocus()) << "step " << step;
    }
  }
}

TEST_F(ArchivioScreenTest, MnemonicsAreUnique) {
  std::map<QString, int> letters;
  for (const int tab : {0, 1, 2, 3, 4}) form().SSTab1.set(tab);
  settle();
  for (const QWidget* const widget : shell.widget("archivio")->findChildren<QWidget*>()) {
    QString text;
    if (const auto* const button = qobject_cast<const QAbstractButton*>(widget)) text = button->text();
    if (const auto* const label = qobject_cast<const QLabel*>(widget); label != nullptr && label->buddy() != nullptr)
      text = label->text();
    if (const QKeySequence key = QKeySequence::mnemonic(text); !key.isEmpty()) ++letters[key.toString()];
  }
  EXPECT_GE(letters.size(), 12u);
  for (const auto& [letter, count] : letters) EXPECT_EQ(count, 1) << letter.toStdString();
}

TEST_F(ArchivioScreenTest, NoCaptionIsCutAtAnySize) {
  for (const QSize size : {QSize(1280, 720), QSize(1366, 768), QSize(1920, 1080)}) {
    resize(size);
    for (const int tab : {0, 1, 2, 3, 4}) {
      form().SSTab1.set(tab);
      settle();
      for (const QAbstractButton* const button : shell.widget("archivio")->findChildren<QAbstractButton*>()) {
        if (!button->isVisible() || button->objectName().isEmpty() || button->objectName().startsWith(u"qt_")) continue;
        if (button->property("iconOnly").toBool()) continue;
        EXPECT_GE(button->width(), button->minimumSizeHint().width()) << button->objectName().toStdString();
        EXPECT_GE(button->height(), 24) << button->objectName().toStdString();
      }
    }
  }
}

TEST_F(ArchivioScreenTest, FitsIntoALowWindowAlsoWhenThatWasHighBefore) {
  resize({1920, 1080});
  resize({1280, 720});
  const QWidget& screen = *shell.widget("archivio");
  const auto& area = *main().findChild<QMdiArea*>();
  EXPECT_LE(screen.mapTo(&area, QPoint(0, screen.height())).y(), area.height());
  const auto& page = *screen.findChild<QScrollArea*>();
  EXPECT_EQ(page.verticalScrollBar()->maximum(), 0);
}

TEST_F(ArchivioScreenTest, IsNoWiderThanItsWindowOnAnyTab) {
  for (const int tab : {0, 1, 2, 3, 4}) {
    form().SSTab1.set(tab);
    for (const QSize size : {QSize(1366, 768), QSize(1280, 720), QSize(1920, 1080)}) {
      resize(size);
      const QWidget& screen = *shell.widget("archivio");
      const auto& area = *main().findChild<QMdiArea*>();
      EXPECT_LE(screen.mapTo(&area, QPoint(screen.width(), 0)).x(), area.width()) << size.width() << ", tab " << tab;
    }
  }
}

TEST_F(ArchivioScreenTest, TheTwelveMonthsOfAYearAreInSightInACompactWindow) {
  form().Combo1.type("1940");
  resize({1366, 768});
  settle();
  const auto& view = *qobject_cast<GridView*>(&find("Fg1"));
  EXPECT_EQ(form().Fg1.rows(), 13);
  EXPECT_EQ(view.verticalScrollBar()->maximum(), 0)
      << view.viewport()->height() << " pixels for twelve rows of " << view.rowHeight(0) << " in a panel of "
      << view.parentWidget()->height() << ", " << view.parentWidget()->maximumHeight() << " at most";
}

TEST_F(ArchivioScreenTest, TheListGoesToItsEnds) {
  form().SSTab1.set(Archivio::kElenco);
  settle();
  const auto& view = *qobject_cast<GridView*>(&find("FgDB"));
  resize({1280, 720});
  EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0) << "all wheels are in sight";
  press("archivio", "Command14");
  settle();
  EXPECT_EQ(view.verticalScrollBar()->value(), 0);
  press("archivio", "Command13");
  settle();
  EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
}

TEST_F(ArchivioScreenTest, TheMenuHoldsWhatIsNotNeededEveryDay) {
  form().SSTab1.set(Archivio::kAggiornamenti);
  settle();
  QMenu* menu = nullptr;
  for (const QToolButton* const button : shell.widget("archivio")->findChildren<QToolButton*>())
    if (button->text() == QStringLiteral("Altro")) menu = button->menu();
  ASSERT_NE(menu, nullptr);
  Q_EMIT menu->aboutToShow();
  ASSERT_EQ(menu->actions().size(), 4);
  EXPECT_EQ(menu->actions().front()->text().toStdString(), form().Cmd_Storico.caption());
}

TEST_F(ArchivioScreenTest, TheMonthCalendarIsItalianAndBeginsOnMonday) {
  const auto& calendar = *qobject_cast<QCalendarWidget*>(&find("MonthView1"));
  EXPECT_EQ(calendar.locale().language(), QLocale::Italian);
  EXPECT_EQ(calendar.firstDayOfWeek(), Qt::Monday);
}

TEST_F(ArchivioScreenTest, EachHeldArrowOfTheScrollerShowsItsDraw) {
  QWidget& scroller = find("HScrestrazione");
  scroller.setFocus();
  for (int i = 1; i <= 50; ++i) {
    QTest::keyClick(&scroller, Qt::Key_Left);
    ASSERT_EQ(form().pAN_DC.text(), std::to_string(300 - i));
  }
}

TEST_F(ArchivioScreenTest, HasItsHelp) {
  EXPECT_EQ(form().helpContext(), 230);
}

}  // namespace
}  // namespace trv5
