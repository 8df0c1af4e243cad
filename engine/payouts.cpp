#include "engine/payouts.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>

#include "core/errors.h"
#include "core/parameters.h"
#include "core/text.h"

namespace trv5 {
namespace {

constexpr std::array<const char*, 6> kMultiples = {nullptr,        "VincitaEstratto", "VincitaAmbo",
                                                   "VincitaTerno", "VincitaQuaterna", "VincitaCinquina"};
constexpr double kMost = 1e9;

std::optional<double> figureOf(const std::optional<std::string>& written) {
  // A point parts thousands for some and decimals for others: with one in it a figure says nothing certain.
  if (!written || written->find('.') != std::string::npos) return std::nullopt;
  std::string text(trimmed(*written));
  std::replace(text.begin(), text.end(), ',', '.');
  double figure = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), figure, std::chars_format::fixed);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  return whole && figure >= 0 && figure <= kMost ? std::optional(figure) : std::nullopt;
}

}  // namespace

Payouts payoutsOf(const Workbench& w) {
  Payouts payouts;
  try {
    const Parameters parameters(w.hooks.mainDatabase());
    for (std::size_t numbers = 1; numbers < kMultiples.size(); ++numbers)
      if (const auto multiple = figureOf(parameters.Valore1(kMultiples[numbers])); multiple > 0.0)
        payouts.multiples[numbers] = *multiple;
    if (const auto percent = figureOf(parameters.Valore1("RitenutaVincite")); percent && *percent < 100)
      payouts.withheld = *percent / 100;
  } catch (const UserError&) {
    return {};  // no verification fails because of what the game pays
  }
  return payouts;
}

}  // namespace trv5
