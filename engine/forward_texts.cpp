#include "engine/forward_texts.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

#include "core/dates.h"
#include "core/figures.h"
#include "core/text.h"

namespace trv5 {
namespace {

// Of an operator: what stands between its elements, and whether the second comes first.
struct Sign {
  const char* text;
  bool reversed;
};
constexpr std::array<Sign, 6> kSigns = {
    {{"+", false}, {"−", false}, {"−", true}, {"×", false}, {"e", false}, {"e", true}}};

std::string percent(double share) {
  return figureText(100 * share, 1);
}

// Of a hundred archives, or of a thousand where a hundred say nothing.
std::string archivesText(double chance) {
  if (chance >= 0.995) return "in quasi tutti gli archivi";
  if (chance >= 0.095) return fmt::format("in {} archivi su 100", figureText(100 * chance));
  if (chance >= 0.0005) return fmt::format("in {} archivi su 1.000", figureText(1000 * chance));
  return "in meno di 1 archivio su 1.000";
}

}  // namespace

int yearOf(const Archive& archive, const ForwardTest& test) {
  const std::string& date = archive.DateEstrazioni(test.draw);  // GG/MM/AAAA
  return date.size() < 10 ? 0 : numberOf(std::string_view(date).substr(6));
}

std::string forwardSentence(const Archive& archive, const ForwardFigures& figures, bool whole, bool toNow) {
  const int tests = static_cast<int>(figures.tests.size());
  const int first = yearOf(archive, figures.tests.front()), last = yearOf(archive, figures.tests.back());
  const std::string to = toNow ? "a oggi" : fmt::format("al {}", last);
  const std::string when = first == last ? fmt::format("nel {}", first) : fmt::format("dal {} {}", first, to);
  const std::string head =
      fmt::format("{} {} {}", whole ? "In" : "Finora, in", tests == 1 ? "1 prova" : figureText(tests) + " prove", when);
  return fmt::format("{} la formula scelta ogni volta ne ha coperte {}; il caso ne copre in media {}.", head,
                     figureText(figures.covered), figureText(figures.expected, 1));
}

std::string forwardDetails(const ForwardFigures& figures) {
  const auto tests = static_cast<double>(figures.tests.size());
  return fmt::format("Almeno {} riescono alla sola fortuna {}. Coperte {} prove su 100 (fra {} e {}); dal caso {}.",
                     figureText(figures.covered), archivesText(figures.atLeast), percent(figures.covered / tests),
                     percent(figures.share.low), percent(figures.share.high), percent(figures.expected / tests));
}

std::string briefFormula(const FormulaInput& formula, const ElementSet& elements) {
  const bool two = elementsOf(formula.shape) == 2;
  const Sign sign = two ? kSigns[static_cast<std::size_t>(formula.op)] : Sign{"+", false};
  std::string text;
  int before = -1;
  for (int i = 0; i < elementsOf(formula.shape); ++i) {
    const auto e = static_cast<std::size_t>(sign.reversed ? 1 - i : i);
    const int wheel = elements.wheels[e];
    if (i > 0) text += sign.text;
    if (wheel != before) text += std::string(CodiciRuote[static_cast<std::size_t>(wheel)]) + " ";
    text += std::to_string(elements.positions[e]);
    before = wheel;
  }
  return text;
}

}  // namespace trv5
