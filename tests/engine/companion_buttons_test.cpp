#include "engine/companion_buttons.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "cases/hit_rows.h"
#include "core/numbers.h"
#include "engine/colouring.h"
#include "engine/lunghetta.h"
#include "engine/verified_method.h"
#include "method/formula.h"
#include "support/full_candidate_check.h"
#include "support/plain_search.h"
#include "support/random_runs.h"
#include "support/random_search.h"
#include "support/workbench_snapshot.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

const CompanionButton& button(const std::string& name) {
  for (const CompanionButton& b : kCompanionButtons)
    if (name == b.name) return b;
  throw std::logic_error(name);
}

// What the rules say about each button, once more and in another form: the hit grid, its columns of numbers, the
// column of covered cases, how many numbers a wheel must hold.
struct ReadRules {
  GridControl Workbench::*hits;
  int firstNumber, lastNumber, covered;
};
ReadRules rulesOf(int sorte) {
  if (sorte == 2) return {&Workbench::FgZ1, 6, 6, 18};
  if (sorte == 3) return {&Workbench::FgZ2, 6, 7, 19};
  return {&Workbench::FgZ100, 6, 10, 0};
}

PlainFormula plainFormula(const Workbench& w, Shape shape) {
  PlainFormula formula;
  formula.shape = shape;
  formula.op = std::max(0, w.Combo1R_2N.index() - 1);
  formula.triples = ascendingTriples();
  const auto known = std::find(kAlterations.begin(), kAlterations.end(), w.Combo1R_1N.text());
  formula.alteration = static_cast<int>(known - kAlterations.begin());
  if (known != kAlterations.end()) return formula;
  formula.constants = {w.Formula.Elem1, w.Formula.Elem2, w.Formula.Elem3};
  if (shape == Shape::OneNumber) formula.constants[0] = w.Formula.NumeroOttenuto;
  return formula;
}

// What the buttons read: the hits that count and the inputs.
CompanionRequest plainRequest(const Workbench& w, const CompanionButton& b) {
  const int sorte = traitsOf(b.table).code;
  const ReadRules rules = rulesOf(sorte);
  const Grid& hits = w.*rules.hits;
  CompanionRequest request;
  request.archive = &w.archive;
  for (int r = 1; r < hits.rows(); ++r) {
    const int i = hits.number(r, 0);
    if (w.Ch_Scoperti.checked()) {
      if (sorte == 6 ? !w.CasiQuasi[static_cast<std::size_t>(i)]
                     : i < w.FgEv.rows() && w.FgEv.back(i, rules.covered) == 0x00FF00)
        continue;
    }
    if (hits.number(r, 15) <= 0) continue;
    CompanionRow row{hits.number(r, 1), hits.number(r, 15), {}};
    for (int c = rules.firstNumber; c <= rules.lastNumber; ++c)
      if (hits.number(r, c) > 0) row.numbers.push_back(hits.number(r, c));
    request.rows.push_back(row);
  }
  request.wheels = w.RuoteGioco;
  request.least = sorte == 3 ? 2 : sorte == 6 ? std::max(1, w.Sorte - 1) : 1;
  request.most = sorte == 3 ? 2 : 5;
  request.guarded = sorte == 3 && b.shape != Shape::OneNumber;
  request.allowedFix = w.FixAmmessi;
  request.withFix = w.ChFix1R.checked();
  request.keep = w.Elenco;
  return request;
}

// The search as its steps tell it, on grids.
void plainSearch(Workbench& w, const CompanionButton& b) {
  const int sorte = traitsOf(b.table).code;
  if (sorte != 6 && (w.*rulesOf(sorte).hits).rows() < 2) return;
  if (sorte == 6) w.Sorte = w.ComboSorte.index() + 1;
  w.Elenco = w.ComboEle.number();
  w.Colpi = w.ComboColpi.number();
  SettaggioFix(w);
  const int op = std::max(0, w.Combo1R_2N.index() - 1);
  const bool fourOnly = std::string("Command37 Command31 Command45 Command57").find(b.name) != std::string::npos;
  if (b.shape != Shape::OneNumber && (op < 4 || !fourOnly))
    w.OperazioneCorrente = kOperators[static_cast<std::size_t>(op)];
  if (sorte == 6) PreparaPerScoperti(w);

  const CompanionRequest request = plainRequest(w, b);
  const std::vector<Candidate> ranking = plainSearchCompanions(plainFormula(w, b.shape), request);

  w.FgF.setRows(1);
  w.FgF.setRows(w.Elenco + 1);
  for (std::size_t i = 0; i < ranking.size(); ++i) {
    const int row = static_cast<int>(i) + 1;
    const int elements = b.shape == Shape::OneNumber ? 1 : b.shape == Shape::ThreeOneWheel ? 3 : 2;
    for (int e = 0; e < elements; ++e) {
      const int wheel = ranking[i].elements.wheels[static_cast<std::size_t>(e)];
      w.FgF.setNumber(row, 1 + 3 * e, wheel);
      w.FgF.setText(row, 2 + 3 * e, CodiciRuote[static_cast<std::size_t>(wheel)]);
      w.FgF.setNumber(row, 3 + 3 * e, ranking[i].elements.positions[static_cast<std::size_t>(e)]);
    }
    if (request.withFix) w.FgF.setNumber(row, 11, ranking[i].fix);
    w.FgF.setNumber(row, 12, ranking[i].pres);
    w.FgF.setNumber(row, 13, ranking[i].cc);
  }
  const bool writesOperator =
      std::string("Command39 Command31 Command43 Command45 Command40 Command58 Command59").find(b.name) !=
      std::string::npos;
  for (int row = 1; row < w.FgF.rows(); ++row) {
    w.FgF.setText(row, 17, w.Combo1R_1N.text());
    w.FgF.setText(row, 14, std::string(b.name) == "Command40" ? "2" : "1");
    w.FgF.setText(row, 15, b.shape == Shape::OneNumber ? "1" : b.shape == Shape::ThreeOneWheel ? "3" : "2");
    if (writesOperator) w.FgF.setText(row, 10, w.OperazioneCorrente);
  }
  fullCandidateCheck(w, b.table);
  w.FgF.sortByNumber(13, true);
  ColoraFgF(w);
  if (w.FgF.rows() > 1) w.FgF.setCurrent(1, w.FgF.currentColumn());
  w.List1.add("10:30:15");
}

void randomInputs(std::mt19937& rng, Workbench& w) {
  w.Combo1R_1N.pick(below(rng, 9));
  if (rng() % 10 == 0) w.Combo1R_1N.type("ABC");
  w.Combo1R_2N.pick(below(rng, 7));
  w.ComboFix.pick(rng() % 4 == 0 ? 1 + below(rng, 90) : 0);
  w.ChFix1R.set(rng() % 4 != 0);
  w.Ch_Scoperti.set(rng() % 2 == 0);
  w.ComboEle.type(std::to_string(1 + below(rng, 6)));
  WorkbenchWorld::choose(w.ComboColpi, std::to_string(1 + below(rng, 8)));
}

// Twins in the same state: one presses the buttons, the other goes through the steps, and each goes on from what the
// run before left.
void agreesWithThePlainSearch(const std::vector<const char*>& names, unsigned firstSeed) {
  for (unsigned seed = firstSeed; seed < firstSeed + static_cast<unsigned>(randomRuns(90)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    const Archive archive = randomMethodArchive(rng);
    std::mt19937 twinRng = rng;
    const auto world = verifiedMethod(rng, archive), twin = verifiedMethod(twinRng, archive);
    for (const char* name : names) {
      SCOPED_TRACE(name);
      randomInputs(rng, world->w);
      randomInputs(twinRng, twin->w);
      world->press(name);
      plainSearch(twin->w, button(name));
      ASSERT_EQ(difference(twin->w.FgF.grid(), world->w.FgF.grid()), "");
      ASSERT_EQ(difference(WorkbenchSnapshot(twin->w), WorkbenchSnapshot(world->w)), "");
    }
  }
}

TEST(CompanionButtons, OfAmbiLeaveWhatTheirStepsLeave) {
  agreesWithThePlainSearch({"Command28", "Command39", "Command37", "Command31"}, 3100);
}

TEST(CompanionButtons, OfTerniLeaveWhatTheirStepsLeave) {
  agreesWithThePlainSearch({"Command46", "Command43", "Command45", "Command40"}, 3200);
}

TEST(CompanionButtons, OfLunghetteLeaveWhatTheirStepsLeave) {
  agreesWithThePlainSearch({"Command56", "Command58", "Command57", "Command59"}, 3300);
}

}  // namespace
}  // namespace trv5
