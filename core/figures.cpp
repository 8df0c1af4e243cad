#include "core/figures.h"

#include <fmt/format.h>

#include <cmath>

namespace trv5 {

std::string figureText(double value, int decimals) {
  // Beyond the rounding of the last digit: 0.125 in two digits is 0,13.
  const double scale = std::pow(10, decimals);
  std::string text = fmt::format("{:.{}f}", std::round(std::abs(value) * scale) / scale, decimals);
  const bool zero = text.find_first_not_of("0.") == std::string::npos;
  std::size_t whole = text.find('.');
  if (whole == std::string::npos)
    whole = text.size();
  else
    text[whole] = ',';
  for (std::size_t at = whole; at > 3; at -= 3) text.insert(at - 3, 1, '.');
  return (value < 0 && !zero ? "−" : "") + text;
}

}  // namespace trv5
