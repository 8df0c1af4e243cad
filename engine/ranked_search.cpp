#include "engine/ranked_search.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "cases/formula_rows.h"
#include "core/text.h"
#include "engine/candidate_check.h"
#include "engine/luck_texts.h"
#include "method/candidate_check.h"

namespace trv5 {
namespace {

constexpr const char* kNewNumbers =
    "Nuovi sono solo i numeri usciti nei colpi: cinque diversi su 90 per ogni ruota estratta.";

// "gli 8", "i 9".
std::string withArticle(int count) {
  return fmt::format("{} {}", count == 8 || count == 11 || (count >= 80 && count < 90) ? "gli" : "i", count);
}

std::string casesAndDraws(int cases) {
  return cases == 1 ? "il caso, la sua estrazione" : fmt::format("{} casi, le loro estrazioni", withArticle(cases));
}

std::string colpiText(int colpi) {
  return colpi == 1 ? "il colpo" : withArticle(colpi) + " colpi";
}

std::string wheelsText(WheelSet wheels, int wheelsOfSet) {
  if (wheelsOfSet > 0) return "le ruote";
  const std::string codes = wheelCodes(wheels);
  return (codes.size() > 2 ? "le ruote di gioco " : "la ruota di gioco ") + codes;
}

// "110 coppie di posizioni per 90 fix".
std::string waysText(const AmbataRequest& request, std::size_t sets, int fixes) {
  constexpr const char* kOfShape[] = {"posizioni", "coppie di posizioni", "terzine di posizioni",
                                      "coppie di posizioni su due ruote"};
  std::string text = fmt::format("{} {}", thousands(static_cast<std::int64_t>(sets)),
                                 kOfShape[static_cast<std::size_t>(request.formula.shape)]);
  text += request.withFix ? fmt::format(" per {} fix", fixes) : " senza fix";
  if (request.wheelSets.size() > 1) text += fmt::format(" per {} gruppi di ruote", request.wheelSets.size());
  return text;
}

std::string heldFixed(const AmbataRequest& request, int wheelsOfSet) {
  const std::size_t sets = elementSets(request.formula.shape, SetOrder::WheelsFirst, request.formula.triples).size();
  const auto fixes =
      request.withFix ? std::count(request.allowedFix.begin(), request.allowedFix.end(), true) : std::ptrdiff_t{1};
  const auto formulas = static_cast<std::int64_t>(sets) * fixes * static_cast<std::int64_t>(request.wheelSets.size());
  return fmt::format("Restano fermi {}, {}, {} e la ricerca: {}, {} formule. {}",
                     casesAndDraws(static_cast<int>(request.cases.size())),
                     wheelsText(request.wheelSets.empty() ? 0 : request.wheelSets.front(), wheelsOfSet),
                     colpiText(request.colpi), waysText(request, sets, static_cast<int>(fixes)), thousands(formulas),
                     kNewNumbers);
}

// The rows of candidates as the ranking holds them.
bool canBeCounted(const Workbench& w, const CandidateRequest& request, Table table) {
  return !request.caseDraws.empty() &&
         static_cast<int>(request.method.of(table).size()) < traitsOf(table).mostFormulas &&
         countsStandAlone(request, readFormulas(w.FgF));
}

}  // namespace

RankedSearch rankedAmbate(const Workbench&, const AmbataRequest& request, int wheelsOfSet) {
  if (request.cases.empty()) return {};
  return {.repeat = [request] { return repeatAmbate(request); },
          .ownWheels = wheelsOfSet > 0,
          .heldFixed = heldFixed(request, wheelsOfSet)};
}

RankedSearch rankedNumbers(const Workbench& w, const std::vector<int>& cases) {
  if (cases.empty()) return {};
  const auto repeat = [&archive = w.archive, cases, colpi = w.Colpi, last = w.EstrazioneRiferimento,
                       wheels = w.RuoteGioco] {
    return repeatPureNumbers(archive, cases, colpi, last, {wheels}, kMostNumber);
  };
  return {.repeat = repeat,
          .numbers = true,
          .heldFixed = fmt::format("Restano fermi {}, {} e {}; si provano tutti i 90 numeri. {}",
                                   casesAndDraws(static_cast<int>(cases.size())), wheelsText(w.RuoteGioco, 0),
                                   colpiText(w.Colpi), kNewNumbers)};
}

RankedSearch rankedCompanions(const Workbench& w, const CompanionRequest& request, Table table) {
  RankedSearch search{.companionsOf = table};
  CandidateRequest verification = candidateRequest(w, table);
  if (request.rows.empty() || !canBeCounted(w, verification, table)) return search;
  search.heldFixed = fmt::format(
      "Restano fermi {}, {}, {} e le {} sortite da cui la ricerca parte, con i numeri in gioco che vi sono usciti. "
      "Nuovi sono solo gli altri numeri di quelle ruote.",
      casesAndDraws(static_cast<int>(verification.caseDraws.size())), wheelsText(request.wheels, 0), colpiText(w.Colpi),
      request.rows.size());
  search.repeat = [request, verification = std::move(verification)] { return repeatCompanions(request, verification); };
  return search;
}

}  // namespace trv5
