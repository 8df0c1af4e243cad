#include "engine/ranking_origin.h"

#include <algorithm>
#include <string>

#include "engine/search_frame.h"

namespace trv5 {
namespace {

constexpr ByTable<const char*> kSections = {"Ambate", "Ambi", "Terni", "Lunghetta"};

const char* shapeText(const std::optional<Shape>& shape) {
  constexpr const char* kTexts[] = {"1N 1R", "2N 1R", "3N 1R", "2N 2R"};
  return shape ? kTexts[static_cast<std::size_t>(*shape)] : "NUM";
}

std::string operatorText(const Workbench& w, Shape shape) {
  if (elementsOf(shape) != 2) return {};
  std::string text(kOperators[static_cast<std::size_t>(operatorIndex(w))]);
  if (text.starts_with('N')) std::erase(text, ' ');
  return text;
}

std::string casesText(const Workbench& w, const RankingSearch& search) {
  if (!search.cases && w.Ch_Scoperti.checked()) return "casi scoperti";
  const int count = search.cases.value_or(w.FgEv.dataRows());
  return std::to_string(count) + (count == 1 ? " caso" : " casi") +
         (w.Ch_Scoperti.checked() ? (count == 1 ? " scoperto" : " scoperti") : "");
}

std::string wheelsText(const Workbench& w, int wheelsOfSet) {
  if (wheelsOfSet == 1) return "migliore ruota";
  if (wheelsOfSet > 1) return "migliori " + std::to_string(wheelsOfSet) + " ruote";
  std::string text;
  int count = 0;
  for (int wheel = 0; wheel < kWheels; ++wheel) {
    if (!holds(w.RuoteGioco, wheel)) continue;
    text += (text.empty() ? "" : " ") + std::string(CodiciRuote[static_cast<std::size_t>(wheel)]);
    ++count;
  }
  if (count == 0) return "nessuna ruota";
  return count == kWheels ? "tutte le ruote" : text;
}

}  // namespace

void noteRanking(Workbench& w, const RankingSearch& search) {
  std::string text = kSections[indexOf(search.table)];
  const auto add = [&text](const std::string& part) {
    if (!part.empty()) text += " · " + part;
  };
  add(shapeText(search.shape));
  if (search.shape) {
    add(operatorText(w, *search.shape));
    add(w.Combo1R_1N.text());
    if (!w.ChFix1R.checked())
      add("senza fix");
    else if (w.ComboFix.index() > 0)
      add("fix " + w.ComboFix.text());
  }
  add(casesText(w, search));
  add(wheelsText(w, search.wheelsOfSet));
  w.origins.ranking = text;
}

}  // namespace trv5
