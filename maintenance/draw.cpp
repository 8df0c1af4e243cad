#include "maintenance/draw.h"

#include "core/text.h"

namespace trv5 {

DrawRow rowOf(const Draw& draw) {
  DrawRow row;
  row.date = dateText(draw.day);
  for (int wheel = 0; wheel < kWheels; ++wheel) {
    if (!draw.drawn(wheel)) continue;
    std::string& text = row.wheels[static_cast<std::size_t>(wheel)];
    for (const int number : draw.numbers[static_cast<std::size_t>(wheel)]) {
      if (!text.empty()) text += '-';
      text += twoDigits(number);
    }
  }
  return row;
}

}  // namespace trv5
