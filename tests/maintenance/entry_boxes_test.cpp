#include "maintenance/entry_boxes.h"

#include <gtest/gtest.h>

#include <random>

#include "core/palette.h"
#include "support/fake_shell.h"
#include "support/random_runs.h"

namespace trv5 {
namespace {

constexpr int kBoxes = EntryBoxes::kBoxes;

struct EntryBoxesTest : ::testing::Test {
  void type(int box, const std::string& characters) {
    for (const char c : characters) boxes[box].key({.text = std::string(1, c)});
  }
  void press(int box, Key::Code code) { boxes[box].key({.code = code}); }
  int focused() const {
    for (int box = 1; box <= kBoxes; ++box)
      if (boxes[box].hasFocus()) return box;
    return 0;
  }
  // The box that a key leads to from a box with a whole number.
  int from(int box, Key::Code code) {
    boxes[box].set("12");
    press(box, code);
    return focused();
  }

  FakeShell shell;
  Form form{shell, "archivio", "Gestione archivio"};
  EntryBoxes boxes{form};
};

TEST_F(EntryBoxesTest, NineAndOneEmptyTheBoxAndNineAndNineStay) {
  type(1, "91");
  EXPECT_EQ(boxes[1].text(), "");
  type(1, "99");
  EXPECT_EQ(boxes[1].text(), "99");
  type(2, "98");
  EXPECT_EQ(boxes[2].text(), "");
  type(3, "90");
  EXPECT_EQ(boxes[3].text(), "90");
}

TEST_F(EntryBoxesTest, APastedHundredEmptiesTheBox) {
  boxes[7].focus();
  boxes[7].type("100");
  EXPECT_EQ(boxes[7].text(), "");
  boxes[7].set("100");
  EXPECT_EQ(boxes[7].text(), "");
}

TEST_F(EntryBoxesTest, TheKeyboardGivesTwoCharactersAtMost) {
  type(1, "123");
  EXPECT_EQ(boxes[1].text(), "12");
  type(1, "x");
  EXPECT_EQ(boxes[1].text(), "12");
  boxes[1].selectAll();
  type(1, "3");
  EXPECT_EQ(boxes[1].text(), "3");
}

TEST_F(EntryBoxesTest, WhatIsNoDigitEmptiesTheBox) {
  for (const std::string character : {"x", "-", " ", "è"}) {
    SCOPED_TRACE(character);
    boxes[1].focus();
    boxes[1].set("");
    boxes[1].type(character);
    EXPECT_EQ(boxes[1].text(), "");
    boxes[1].type("4");
    boxes[1].type(character);
    EXPECT_EQ(boxes[1].text(), "");
  }
}

TEST_F(EntryBoxesTest, EnteringABoxPaintsItYellowAndSelectsItsText) {
  boxes[5].set("33");
  boxes[5].focus();
  EXPECT_EQ(boxes[5].back(), Giallo);
  EXPECT_EQ(boxes[5].selectionStart(), 0);
  EXPECT_EQ(boxes[5].selectionLength(), 2);
}

TEST_F(EntryBoxesTest, LeavingABoxGivesTwoDigitsAndTakesTheColour) {
  for (const auto& [typed, left] :
       {std::pair("7", "07"), std::pair("0", "00"), std::pair("", ""), std::pair("45", "45"), std::pair("99", "99")}) {
    SCOPED_TRACE(typed);
    boxes[5].focus();
    boxes[5].set(typed);
    boxes[6].focus();
    EXPECT_EQ(boxes[5].text(), left);
    EXPECT_FALSE(boxes[5].back());
  }
}

TEST_F(EntryBoxesTest, EnterOnSevenGivesZeroSevenOnceAndMovesOn) {
  type(1, "7");
  press(1, Key::Code::Enter);
  EXPECT_EQ(boxes[1].text(), "07");
  EXPECT_EQ(focused(), 2);
}

TEST_F(EntryBoxesTest, EnterOnNoNumberEmptiesTheBoxAndTheFocusStays) {
  for (const char* const text : {"0", "00", ""}) {
    SCOPED_TRACE(text);
    boxes[9].focus();
    boxes[9].set(text);
    press(9, Key::Code::Enter);
    EXPECT_EQ(boxes[9].text(), "");
    EXPECT_EQ(focused(), 9);
  }
}

TEST_F(EntryBoxesTest, TheArrowsThrowALoneDigitAwayAndStay) {
  for (const Key::Code arrow : {Key::Code::Left, Key::Code::Right, Key::Code::Up, Key::Code::Down}) {
    boxes[8].focus();
    boxes[8].set("7");
    press(8, arrow);
    EXPECT_EQ(boxes[8].text(), "");
    EXPECT_EQ(focused(), 8);
  }
}

TEST_F(EntryBoxesTest, EnterOnTheLastBoxLeadsToTheFirst) {
  EXPECT_EQ(from(55, Key::Code::Enter), 1);
  EXPECT_EQ(from(5, Key::Code::Enter), 6);
}

TEST_F(EntryBoxesTest, TheArrowsStayInTheRowOfTheWheelAndInTheColumn) {
  EXPECT_EQ(from(5, Key::Code::Right), 1);
  EXPECT_EQ(from(55, Key::Code::Right), 51);
  EXPECT_EQ(from(7, Key::Code::Right), 8);
  EXPECT_EQ(from(6, Key::Code::Left), 10);
  EXPECT_EQ(from(51, Key::Code::Left), 55);
  EXPECT_EQ(from(8, Key::Code::Left), 7);
  EXPECT_EQ(from(3, Key::Code::Up), 53);
  EXPECT_EQ(from(6, Key::Code::Up), 1);
  EXPECT_EQ(from(53, Key::Code::Down), 3);
  EXPECT_EQ(from(50, Key::Code::Down), 55);
}

TEST_F(EntryBoxesTest, ArrowsOnAnEmptyBoxMove) {
  boxes[8].focus();
  press(8, Key::Code::Right);
  EXPECT_EQ(focused(), 9);
}

TEST_F(EntryBoxesTest, KeysWithControlAndAltAreNotTheirs) {
  boxes[8].focus();
  EXPECT_FALSE(boxes[8].offerKey({.code = Key::Code::Left, .alt = true}));
  EXPECT_FALSE(boxes[8].offerKey({.text = "v", .control = true}));
  EXPECT_EQ(focused(), 8);
}

TEST_F(EntryBoxesTest, TheBoxBeingWrittenIsSettledWithoutLeavingIt) {
  type(3, "7");
  boxes.settle();
  EXPECT_EQ(boxes[3].text(), "07");
  EXPECT_EQ(focused(), 3);
}

TEST_F(EntryBoxesTest, AWheelIsItsFiveBoxesWithEmptyPiecesForEmptyBoxes) {
  boxes[51].set("05");
  boxes[53].set("99");
  EXPECT_EQ(wheelOfBoxes(boxes.texts(), 10), "05--99--");
  EXPECT_EQ(wheelOfBoxes(boxes.texts(), 0), "----");
}

TEST_F(EntryBoxesTest, TheRemarkNamesRepeatedAndCountsMissingNumbersOfTheRegionalWheels) {
  EXPECT_EQ(remarkOnBoxes(boxes.texts()), "mancano 50 numeri");
  for (int box = 1; box <= 50; ++box) boxes[box].set(std::to_string(box + 10));
  EXPECT_EQ(remarkOnBoxes(boxes.texts()), "");
  boxes[51].set("05");
  boxes[52].set("05");
  EXPECT_EQ(remarkOnBoxes(boxes.texts()), "");
  boxes[1].set("12");
  EXPECT_EQ(remarkOnBoxes(boxes.texts()), "Bari: 12 ripetuto");
  boxes[50].set("00");
  boxes[44].set("51");
  EXPECT_EQ(remarkOnBoxes(boxes.texts()), "Bari: 12 ripetuto, Torino: 51 ripetuto, manca 1 numero");
}

TEST_F(EntryBoxesTest, TellOfEachChange) {
  int told = 0;
  boxes.changed = [&told] { ++told; };
  type(1, "12");
  EXPECT_EQ(told, 2);
}

// The rules once more, step by step as they are told, for boxes that are plain texts.
class PlainBoxes {
 public:
  std::vector<std::string> text = std::vector<std::string>(56);
  std::vector<bool> yellow = std::vector<bool>(56, false);
  int focus = 0;
  int start = 0, length = 0;  // selected in the box with the focus

  void enter(int i) {
    if (focus == i) return;
    leave();
    focus = i;
    yellow[at(i)] = true;
    start = 0;
    length = size(i);
  }
  void leave() {
    if (focus == 0) return;
    std::string& t = text[at(focus)];
    yellow[at(focus)] = false;
    if (!t.empty()) {
      const int n = value(t);
      t = n < 10 ? "0" + std::to_string(n) : std::to_string(n);
    }
    focus = 0;
  }
  void insert(const std::string& what) {  // in place of what is selected
    std::string& t = text[at(focus)];
    t = t.substr(0, at(start)) + what + t.substr(at(start + length));
    start += static_cast<int>(what.size());
    length = 0;
    change(focus);
  }
  void set(int i, const std::string& what) {
    if (text[at(i)] == what) return;
    text[at(i)] = what;
    if (i == focus) {
      start = static_cast<int>(what.size());
      length = 0;
    }
    change(i);
  }
  void character(char c) {
    if (length == 0 && size(focus) >= 2) return;
    insert(std::string(1, c));
  }
  void erase(int from) {
    if (length > 0) return insert("");
    if (from < 0 || from >= size(focus)) return;
    start = from;
    length = 1;
    insert("");
  }
  void pressEnter() {
    const int i = focus;
    if (value(text[at(i)]) == 0) return set(i, "");
    if (size(i) == 1) set(i, "0" + text[at(i)]);
    enter(i == 55 ? 1 : i + 1);
  }
  void arrow(Key::Code code) {
    const int i = focus;
    if (size(i) != 0 && size(i) != 2) return set(i, "");
    const int last = i % 10;
    if (code == Key::Code::Right) enter(last == 5 || last == 0 ? i - 4 : i + 1);
    if (code == Key::Code::Left) enter(last == 1 || last == 6 ? i + 4 : i - 1);
    if (code == Key::Code::Up) enter(i < 6 ? i + 50 : i - 5);
    if (code == Key::Code::Down) enter(i >= 51 ? i - 50 : i + 5);
  }
  void click(int i, int cursor) {
    if (i != focus) return enter(i);
    start = std::min(cursor, size(i));
    length = 0;
  }

 private:
  static std::size_t at(int i) { return static_cast<std::size_t>(i); }
  int size(int i) const { return static_cast<int>(text[at(i)].size()); }
  static int value(const std::string& t) {
    int n = 0;
    for (std::size_t k = t.find_first_not_of(' '); k < t.size() && std::isdigit(t[k]) != 0; ++k)
      n = std::min(100000, n * 10 + t[k] - '0');
    return n;
  }
  void empty(int i) {
    text[at(i)].clear();
    if (i == focus) start = length = 0;
  }
  void change(int i) {
    const std::string& t = text[at(i)];
    if (t == "99") return;
    if (value(t) > 90) empty(i);
    if (t.size() == 1 && (t[0] < 48 || t[0] > 57)) return empty(i);
    if (t.size() == 2 && (t[1] < 48 || t[1] > 57)) empty(i);
  }
};

// One step of a walk, done to both.
void step(std::mt19937& rng, EntryBoxes& boxes, PlainBoxes& plain) {
  const int i = plain.focus == 0 ? static_cast<int>(rng() % kBoxes) + 1 : plain.focus;
  boxes[i].focus();
  plain.enter(i);
  constexpr std::array<Key::Code, 4> kArrows = {Key::Code::Left, Key::Code::Right, Key::Code::Up, Key::Code::Down};
  const std::string typed = "00123456789999x- ", pasted = "0019999x- ";
  switch (rng() % 12) {
    case 0:
      boxes[i].key({.code = Key::Code::Enter});
      return plain.pressEnter();
    case 1: {
      const Key::Code arrow = kArrows[rng() % 4];
      boxes[i].key({.code = arrow});
      return plain.arrow(arrow);
    }
    case 2: {
      const int other = static_cast<int>(rng() % kBoxes) + 1, cursor = static_cast<int>(rng() % 3);
      if (boxes[other].hasFocus()) boxes[other].select(cursor, 0);
      boxes[other].entered();
      return plain.click(other, cursor);
    }
    case 3: {
      std::string text;
      for (std::size_t length = rng() % 5; text.size() < length;) text += pasted[rng() % pasted.size()];
      boxes[i].type(text);
      if (!text.empty() || plain.length > 0) plain.insert(text);
      return;
    }
    case 4:
      boxes[i].key({.code = Key::Code::Backspace});
      return plain.erase(plain.start - 1);
    case 5:
      boxes[i].key({.code = Key::Code::Delete});
      return plain.erase(plain.start);
    case 6: {
      const int other = static_cast<int>(rng() % kBoxes) + 1;
      const std::string text = std::to_string(rng() % 120);
      boxes[other].set(text);
      return plain.set(other, text);
    }
    default: {
      const char c = typed[rng() % typed.size()];
      boxes[i].key({.text = std::string(1, c)});
      return plain.character(c);
    }
  }
}

TEST_F(EntryBoxesTest, TenThousandRandomWalksLeadToWhatThePlainRulesSay) {
  PlainBoxes plain;
  for (int walk = 0; walk < randomRuns(10000); ++walk) {
    std::mt19937 rng(static_cast<unsigned>(walk));
    for (int i = 0; i < 40; ++i) {
      SCOPED_TRACE("walk " + std::to_string(walk) + ", step " + std::to_string(i));
      step(rng, boxes, plain);
      ASSERT_EQ(focused(), plain.focus);
      for (int box = 1; box <= kBoxes; ++box) {
        ASSERT_EQ(boxes[box].text(), plain.text[static_cast<std::size_t>(box)]) << "box " << box;
        ASSERT_EQ(boxes[box].back() == Giallo, plain.yellow[static_cast<std::size_t>(box)]) << "box " << box;
      }
      ASSERT_EQ(boxes[plain.focus].selectionStart(), plain.start);
      ASSERT_EQ(boxes[plain.focus].selectionLength(), plain.length);
    }
  }
}

}  // namespace
}  // namespace trv5
