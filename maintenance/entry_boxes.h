#pragma once

#include "core/controls.h"
#include "core/wheels.h"

namespace trv5 {

/// The boxes in which the numbers of a draw are typed: 1 to 55, five a wheel in the order of the archive.
class EntryBoxes {
 public:
  static constexpr int kBoxes = kWheels * kPositions;

  explicit EntryBoxes(Form& form);

  Text& operator[](int box) const { return m_boxes[box]; }

 private:
  ControlArray<Text> m_boxes;
};

}  // namespace trv5
