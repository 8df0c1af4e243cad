#pragma once

#include <array>
#include <functional>
#include <string>

#include "core/controls.h"
#include "core/wheels.h"

namespace trv5 {

/// The boxes in which the numbers of a draw are typed: 1 to 55, five a wheel in the order of the archive. They keep
/// their own rules: what a change of the text, a key, the coming and going of the focus do.
///
/// A box takes two characters from the keyboard; a text that comes in whole, from the clipboard or an operation, may be
/// longer. What is above 90 empties the box, but for 99: that one value is let through, for the draws that people keep
/// by hand with it. What isn't a number empties it too. Arrows throw a lone digit away, Enter completes it.
class EntryBoxes {
 public:
  static constexpr int kBoxes = kWheels * kPositions;

  explicit EntryBoxes(Form& form);
  EntryBoxes(const EntryBoxes&) = delete;
  EntryBoxes& operator=(const EntryBoxes&) = delete;

  Text& operator[](int box) const { return m_boxes[box]; }
  /// The texts of all boxes, that of box i at i - 1.
  std::array<std::string, kBoxes> texts() const;
  void clear();
  /// Gives the box that is being written its two digits, as leaving it does.
  void settle();

  /// Called after each change of a text.
  std::function<void()> changed = [] {};

 private:
  void connect(int box);

  ControlArray<Text> m_boxes;
};

/// The five boxes of a wheel as the archive keeps them: "05-17-33-64-90"; an empty box is an empty piece.
std::string wheelOfBoxes(const std::array<std::string, EntryBoxes::kBoxes>& texts, int wheel);

/// What a regional draw lacks, for a quiet line: "Bari: 12 ripetuto", "mancano 3 numeri"; "" when nothing. The national
/// wheel isn't looked at.
std::string remarkOnBoxes(const std::array<std::string, EntryBoxes::kBoxes>& texts);

}  // namespace trv5
