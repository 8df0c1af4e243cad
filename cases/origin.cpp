#include "cases/origin.h"

#include <fmt/format.h>

#include <array>

#include "core/wheels.h"

namespace trv5 {
namespace {

using Reason = std::optional<std::string>;

std::string counted(int count, const char* one, const char* many) {
  return fmt::format("{} {}", count, count == 1 ? one : many);
}

// What a count has become.
std::string nowText(int count, const char* none) {
  if (count == 0) return fmt::format("ora {}", none);
  return count == 1 ? "ora è 1" : fmt::format("ora sono {}", count);
}

bool differ(const std::optional<int>& then, const std::optional<int>& now) {
  return then && now && *then != *now;
}

Reason ofReference(const Origin& then, const Origin& now) {
  if (!differ(then.reference, now.reference)) return {};
  return fmt::format("Fatto sull'estrazione {}, ora {}", *then.reference, *now.reference);
}

Reason ofSituation(const Origin& then, const Origin& now) {
  if (!then.situation || !now.situation) return {};
  const Situation& was = *then.situation;
  Situation is = *now.situation;
  if (was.reference != is.reference)
    return fmt::format("{} sull'estrazione {}, ora {}", then.cases ? "I casi sono stati ricavati" : "Fatto",
                       was.reference, is.reference);
  if (was == is) return {};
  const int wanted = is.maxCases;
  is.maxCases = was.maxCases;
  if (was == is) return fmt::format("Fatto con N° casi {}, ora {}", was.maxCases, wanted);
  return "La situazione scelta è cambiata";
}

Reason ofFormulas(const Origin& then, const Origin& now, Table table) {
  constexpr ByTable<const char*> kNames = {" delle ambate", " degli ambi", " dei terni", " della lunghetta"};
  const auto &was = then.formulas[indexOf(table)], &is = now.formulas[indexOf(table)];
  if (!was || !is || *was == *is) return {};
  const char* const whose = table == then.table ? "" : kNames[indexOf(table)];
  const int before = static_cast<int>(was->size()), after = static_cast<int>(is->size());
  if (before == after) return fmt::format("Le formule{} sono cambiate", whose);
  return fmt::format("Fatto con {}{}, {}", counted(before, "formula", "formule"), whose, nowText(after, "nessuna"));
}

// The table's own formulas first.
Reason ofFormulas(const Origin& then, const Origin& now) {
  if (Reason own = ofFormulas(then, now, then.table)) return own;
  for (const TableTraits& table : kTables)
    if (Reason other = ofFormulas(then, now, table.table)) return other;
  return {};
}

Reason ofPlay(const Origin& then, const Origin& now) {
  if (differ(then.archiveEnd, now.archiveEnd))
    return fmt::format("Fatto fino all'estrazione {}, ora l'ultima è {}", *then.archiveEnd, *now.archiveEnd);
  if (then.cases && now.cases && *then.cases != *now.cases) return "L'elenco dei casi è cambiato";
  if (then.wheels && now.wheels && *then.wheels != *now.wheels) return "Le ruote di gioco sono cambiate";
  if (differ(then.colpi, now.colpi))
    return fmt::format("Fatto con {}, {}", counted(*then.colpi, "colpo", "colpi"), nowText(*now.colpi, "nessuno"));
  if (differ(then.sorte, now.sorte)) return fmt::format("Fatto per la sorte {}, ora {}", *then.sorte, *now.sorte);
  return {};
}

Reason ofSummary(const Origin& then, const Origin& now) {
  if (!then.summary || !now.summary || *then.summary == *now.summary) return {};
  SummaryChoice is = *now.summary;
  is.firstOnly = then.summary->firstOnly;
  if (is == *then.summary) return fmt::format("Fatto {} Stop 1° esito", is.firstOnly ? "con" : "senza");
  return "Le sorti scelte sono cambiate";
}

Reason ofGrouping(const Origin& then, const Origin& now) {
  if (then.configurations && now.configurations && *then.configurations != *now.configurations)
    return "L'elenco delle configurazioni è cambiato";
  if (differ(then.grouping, now.grouping)) return "Il raggruppamento è stato rifatto";
  return {};
}

std::string elementText(const FormulaRow::Element& element) {
  const bool known = element.wheel >= 0 && element.wheel < kWheels;
  return fmt::format("{} {}", known ? CodiciRuote[static_cast<std::size_t>(element.wheel)] : "?", element.position);
}

// What stands between two elements; empty for an operator that isn't written between them.
std::string joint(const std::string& operation) {
  for (const char* const sign : {"+", "-", "X"})
    if (operation.find(std::string(" ") + sign + " ") != std::string::npos) return std::string(" ") + sign + " ";
  return {};
}

}  // namespace

std::optional<std::string> reasonOf(const Origin& then, const Origin& now) {
  for (Reason (*const part)(const Origin&, const Origin&) : {ofReference, ofSituation, ofPlay})
    if (Reason reason = part(then, now)) return reason;
  if (Reason reason = ofFormulas(then, now)) return reason;
  if (Reason reason = ofGrouping(then, now)) return reason;
  return ofSummary(then, now);
}

std::string shortFormula(const FormulaRow& row) {
  if (row.nr == 0) return fmt::format("numero {}", row.fix);
  std::string text, notes = row.alteration;
  const bool reversed = row.operation.starts_with("N2");
  std::vector<std::string> elements;
  for (const FormulaRow::Element& element : row.elements)
    if (element.given) elements.push_back(elementText(element));
  if (reversed && elements.size() == 2) std::swap(elements[0], elements[1]);
  const std::string between = elements.size() > 2 ? " + " : joint(row.operation);
  for (const std::string& element : elements) text += (text.empty() ? "" : between.empty() ? ", " : between) + element;
  if (elements.size() > 1 && between.empty() && !row.operation.empty())
    notes = row.operation + (notes.empty() ? "" : ", " + notes);
  if (row.fix > 0 && row.fix < 90) text += fmt::format(" + {}", row.fix);
  return notes.empty() ? text : fmt::format("{} ({})", text, notes);
}

}  // namespace trv5
