#include "core/wheels.h"

namespace trv5 {

int wheelOfCode(std::string_view code) {
  if (code.size() != 2) return -1;
  const auto upper = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; };
  for (int wheel = 0; wheel < kWheels; ++wheel) {
    const std::string_view known = CodiciRuote[static_cast<std::size_t>(wheel)];
    if (upper(code[0]) == known[0] && upper(code[1]) == known[1]) return wheel;
  }
  return -1;
}

}  // namespace trv5
