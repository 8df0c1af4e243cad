#include "maintenance/entry_boxes.h"

#include <fmt/format.h>

#include <vector>

#include "core/palette.h"
#include "core/text.h"

namespace trv5 {
namespace {

constexpr int kHighest = 90;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// The format "0#": an empty text stays empty.
void format(Text& box) {
  if (!box.text().empty()) box.set(twoDigits(numberOf(box.text())));
}

void checkChange(Text& box) {
  if (box.text() == "99") return;
  if (numberOf(box.text()) > kHighest) box.set("");
  const int length = characterCount(box.text());
  if (length == 1 && !isDigit(box.text().front())) return box.set("");
  if (length == 2 && !isDigit(box.text().back())) box.set("");
}

// Where an arrow leads from a box: left and right stay in the row of the wheel, up and down in the column.
int neighbourOf(int box, Key::Code arrow) {
  const int place = box % kPositions;  // 1, 2, 3, 4 and 0 for the last of the row
  switch (arrow) {
    case Key::Code::Right:
      return place == 0 ? box - (kPositions - 1) : box + 1;
    case Key::Code::Left:
      return place == 1 ? box + (kPositions - 1) : box - 1;
    case Key::Code::Up:
      return box <= kPositions ? box + EntryBoxes::kBoxes - kPositions : box - kPositions;
    default:
      return box > EntryBoxes::kBoxes - kPositions ? box - (EntryBoxes::kBoxes - kPositions) : box + kPositions;
  }
}

void enter(const ControlArray<Text>& boxes, int at) {
  Text& box = boxes[at];
  if (numberOf(box.text()) == 0) return box.set("");
  if (characterCount(box.text()) == 1) box.set("0" + box.text());
  boxes[at == EntryBoxes::kBoxes ? 1 : at + 1].focus();
}

void moveByArrow(const ControlArray<Text>& boxes, int at, Key::Code arrow) {
  Text& box = boxes[at];
  if (!box.text().empty() && characterCount(box.text()) != 2) return box.set("");
  boxes[neighbourOf(at, arrow)].focus();
}

// True when the key ends at the box.
bool press(const ControlArray<Text>& boxes, int at, const Key& key) {
  if (key.control || key.alt) return false;
  switch (key.code) {
    case Key::Code::Enter:
      enter(boxes, at);
      return true;
    case Key::Code::Left:
    case Key::Code::Right:
    case Key::Code::Up:
    case Key::Code::Down:
      moveByArrow(boxes, at, key.code);
      return true;
    case Key::Code::Character:
      // A full box takes no further character, unless it takes the place of one.
      return boxes[at].selectionLength() == 0 && characterCount(boxes[at].text()) >= 2;
    default:
      return false;
  }
}

}  // namespace

EntryBoxes::EntryBoxes(Form& form) : m_boxes(form, "txtin", range(1, kBoxes)) {
  for (int box = 1; box <= kBoxes; ++box) connect(box);
}

void EntryBoxes::connect(int at) {
  Text& box = m_boxes[at];
  box.onEvent([this, &box] {
    checkChange(box);
    changed();
  });
  box.onEnter([&box] {
    box.setBack(Giallo);
    box.selectAll();
  });
  box.onLeave([&box] {
    format(box);
    box.setBack({});
  });
  box.onKey([this, at](const Key& key) { return press(m_boxes, at, key); });
}

std::array<std::string, EntryBoxes::kBoxes> EntryBoxes::texts() const {
  std::array<std::string, kBoxes> texts;
  for (int box = 1; box <= kBoxes; ++box) texts[static_cast<std::size_t>(box - 1)] = m_boxes[box].text();
  return texts;
}

void EntryBoxes::clear() {
  for (int box = 1; box <= kBoxes; ++box) m_boxes[box].set("");
}

void EntryBoxes::settle() {
  for (const auto& [at, box] : m_boxes)
    if (box->hasFocus()) format(*box);
}

std::string wheelOfBoxes(const std::array<std::string, EntryBoxes::kBoxes>& texts, int wheel) {
  std::string joined;
  for (int p = 0; p < kPositions; ++p) {
    if (p > 0) joined += '-';
    joined += texts[static_cast<std::size_t>(wheel * kPositions + p)];
  }
  return joined;
}

std::string remarkOnBoxes(const std::array<std::string, EntryBoxes::kBoxes>& texts) {
  std::vector<std::string> remarks;
  int missing = 0;
  for (int wheel = 0; wheel < kRegionalWheels; ++wheel) {
    std::array<int, kPositions> numbers{};
    bool told = false;
    for (std::size_t p = 0; p < numbers.size(); ++p) {
      numbers[p] = numberOf(texts[static_cast<std::size_t>(wheel) * kPositions + p]);
      if (numbers[p] < 1) {
        ++missing;
        continue;
      }
      for (std::size_t before = 0; before < p && !told; ++before)
        if ((told = numbers[before] == numbers[p]))
          remarks.push_back(fmt::format("{}: {} ripetuto", NomiRuote[static_cast<std::size_t>(wheel)], numbers[p]));
    }
  }
  if (missing > 0) remarks.push_back(missing == 1 ? "manca 1 numero" : fmt::format("mancano {} numeri", missing));
  return fmt::format("{}", fmt::join(remarks, ", "));
}

}  // namespace trv5
