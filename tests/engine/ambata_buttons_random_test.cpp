#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <ostream>
#include <string>
#include <vector>

#include "core/text.h"
#include "support/plain_search.h"
#include "support/random_method.h"
#include "support/random_runs.h"
#include "support/random_search.h"
#include "support/workbench_snapshot.h"

namespace trv5 {
namespace {

// A button once more as its rules tell it, in another form than the engine's.
struct ButtonRules {
  const char* button;
  Shape shape;
  int wheels;              // of a set; 0: the wheels of play
  std::string op, nr, qn;  // what stands in columns 10, 14, 15; "?": the chosen operator
  int settings;
};

void PrintTo(const ButtonRules& value, std::ostream* out) {
  *out << value.button;
}

const std::vector<ButtonRules> kRules = {{"Command20", Shape::OneNumber, 0, "", "1", "1", 600},
                                         {"Command11", Shape::OneNumber, 1, "", "1", "1", 150},
                                         {"Command13", Shape::OneNumber, 2, "", "1", "1", 100},
                                         {"Command15", Shape::OneNumber, 3, "", "1", "1", 100},
                                         {"Command23", Shape::TwoOneWheel, 0, "?", "1", "2", 150},
                                         {"Command17", Shape::TwoOneWheel, 1, "?", "1", "2", 100},
                                         {"Command16", Shape::TwoOneWheel, 2, "?", "1", "2", 80},
                                         {"Command7", Shape::TwoOneWheel, 3, "?", "1", "2", 40},
                                         {"Command18", Shape::ThreeOneWheel, 0, "N1+N2+N3", "1", "3", 100},
                                         {"Command10", Shape::TwoTwoWheels, 0, "?", "2", "1", 100},
                                         {"Command1", Shape::TwoTwoWheels, 1, "?", "2", "1", 60},
                                         {"Command2", Shape::TwoTwoWheels, 2, "?", "2", "2", 40}};

PlainFormula formulaOf(const Workbench& w, const ButtonRules& rules) {
  PlainFormula formula{
      rules.shape, PlainFormula::kConstant, {}, std::max(0, w.Combo1R_2N.index() - 1), ascendingTriples()};
  const ParametriFormula& p = w.Formula;
  const std::string& alteration = w.Combo1R_1N.text();
  const auto literal = std::find(kAlterations.begin(), kAlterations.end(), alteration);
  if (literal != kAlterations.end()) formula.alteration = static_cast<int>(literal - kAlterations.begin());
  if (std::string(rules.button) != "Command20") {
    formula.constants = {p.Elem1, p.Elem2, p.Elem3};
    return formula;
  }
  formula.constants[0] = p.NumeroOttenuto;
  if (alteration == "FIG") formula.alteration = 8;  // the vertible
  if (alteration == "VERT") formula.alteration = PlainFormula::kConstant;
  if (alteration == "CAPO") formula.constants[0] = numberOf(w.TxtNumeri.text().substr(0, 2));
  return formula;
}

AmbataRequest requestOf(const Workbench& w, const ButtonRules& rules, const WorkbenchState& state) {
  AmbataRequest request;
  request.archive = &w.archive;
  for (int row = 1; row < w.FgEv.rows(); ++row)
    if (!w.Ch_Scoperti.checked() || w.FgEv.back(row, state.Sorte + 16) != 0x00FF00)
      request.cases.push_back(w.FgEv.number(row, 1));
  request.colpi = state.Colpi;
  request.lastDraw = state.EstrazioneRiferimento;
  request.wheelSets = {state.RuoteGioco};
  if (rules.wheels > 0) request.wheelSets = plainWheelSets(rules.wheels);
  request.allowedFix = state.FixAmmessi;
  request.withFix = w.ChFix1R.checked();
  request.keep = state.Elenco;
  request.repeatsAtZeroGetLost = rules.shape == Shape::OneNumber && rules.wheels > 0;
  return request;
}

std::string codesOf(WheelSet set) {
  std::string codes;
  for (int wheel = 0; wheel < kWheels; ++wheel)
    if (holds(set, wheel))
      codes += (codes.empty() ? "" : "-") + std::string(CodiciRuote[static_cast<std::size_t>(wheel)]);
  return codes;
}

void writeCandidate(Grid& table, int row, const Candidate& candidate, const AmbataRequest& request, bool showWheels) {
  for (int e = 0; e < 3; ++e) {
    const auto at = static_cast<std::size_t>(e);
    if (candidate.elements.positions[at] == 0) continue;
    table.setNumber(row, 1 + 3 * e, candidate.elements.wheels[at]);
    table.setText(row, 2 + 3 * e, CodiciRuote[candidate.elements.wheels[at]]);
    table.setNumber(row, 3 + 3 * e, candidate.elements.positions[at]);
  }
  if (request.withFix) table.setNumber(row, 11, candidate.fix);
  table.setNumber(row, 12, candidate.pres);
  table.setNumber(row, 13, candidate.cc);
  if (showWheels) table.setText(row, 18, codesOf(request.wheelSets[static_cast<std::size_t>(candidate.wheelSet)]));
}

void paintRow(Grid& table, int row) {
  for (int column = 1; column <= 3; ++column) {
    table.setBack(row, column, 0xFFFFC0);
    table.setBack(row, column + 3, 0xC0FFC0);
    table.setBack(row, column + 6, 0xFFE0C0);
  }
  table.setBack(row, 12, 0xFFFF80);
  table.setBack(row, 13, 0xFFFF80);
  table.setFore(row, 11, 0xFF0000);
  table.setBold(row, 11);
  table.setFore(row, 13, 0x0000FF);
  table.setBold(row, 13);
}

// What the workbench must look like after the button.
WorkbenchSnapshot plainRun(const WorkbenchWorld& world, const ButtonRules& rules) {
  const Workbench& w = world.w;
  WorkbenchSnapshot after(w);
  if (w.FgEv.rows() < 2) return after;
  WorkbenchState& state = after.state;
  for (int fix = 1; fix <= 90; ++fix)
    state.FixAmmessi[static_cast<std::size_t>(fix)] = w.ComboFix.index() == 0 || w.ComboFix.index() == fix;
  state.Elenco = w.ComboEle.number();
  if (std::string(rules.button) != "Command15") state.Colpi = w.ComboColpi.number();
  const PlainFormula formula = formulaOf(w, rules);
  const AmbataRequest request = requestOf(w, rules, state);
  Grid& table = after.grids.at("FgF");
  table.setRows(1);
  table.setRows(1 + state.Elenco);
  int row = 0;
  for (const Candidate& candidate : plainSearchAmbate(formula, request))
    writeCandidate(table, ++row, candidate, request, rules.wheels > 0);
  if (row > 0) table.setCurrent(1, table.currentColumn());
  for (row = 1; row < table.rows(); ++row) {
    const bool chosen = rules.op == "?";
    table.setText(row, 10, chosen ? kOperators[static_cast<std::size_t>(formula.op)] : std::string_view(rules.op));
    table.setText(row, 14, rules.nr);
    table.setText(row, 15, rules.qn);
    table.setText(row, 17, w.Combo1R_1N.text());
    paintRow(table, row);
  }
  const std::string time = timeText(world.shell.clock);
  after.controls.at("List1") = time + '\n' + time + "\n on";
  if (std::string(rules.button) == "Command20" && !request.cases.empty()) {
    const int n = w.archive.number(request.cases.back(), 10, 5);
    const int element = formulaInput(formula).elements[0][static_cast<std::size_t>(n)];
    state.Formula.NumeroOttenuto = element == 0 ? 90 : element;
  }
  return after;
}

void randomInputs(WorkbenchWorld& world, std::mt19937& rng, bool fewCases) {
  Workbench& w = world.w;
  randomMethod(world, rng);
  if (fewCases && w.FgEv.rows() > 3) w.FgEv.setRows(3);
  const auto oneOf = [&rng](const std::vector<std::string>& texts) {
    return texts[static_cast<std::size_t>(below(rng, static_cast<int>(texts.size())))];
  };
  if (below(rng, 4) == 0)
    w.Combo1R_1N.type(oneOf({"CAPO", "XYZ", "fig"}));
  else
    w.Combo1R_1N.pick(below(rng, 9));
  w.TxtNumeri.set(oneOf({"", "7", "12-34", "ab", "90-01", "00"}));
  w.Combo1R_2N.pick(below(rng, 7));
  w.ComboFix.pick(below(rng, 2) == 0 ? 0 : below(rng, 91));
  w.ChFix1R.set(below(rng, 3) != 0);
  WorkbenchWorld::choose(w.ComboEle, oneOf({"50", "100", "0", "1", "7", "abc", "-5"}));
  WorkbenchWorld::choose(w.ComboColpi, oneOf({"1", "3", "6", "0", "40", "x"}));
  w.Sorte = 1 + below(rng, 5);
  w.Formula.NumeroOttenuto = below(rng, 91);
  w.Formula.Elem1 = below(rng, 92);
  w.Formula.Elem2 = below(rng, 92);
  w.Formula.Elem3 = below(rng, 92);
}

class AmbataButtons : public testing::TestWithParam<ButtonRules> {};

TEST_P(AmbataButtons, LeaveWhatTheStepsLeaveOnRandomMethods) {
  const ButtonRules& rules = GetParam();
  const int perWorld = 20;
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(rules.settings / perWorld)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed * 100 + static_cast<unsigned>(rules.settings));
    WorkbenchWorld world(randomMethodArchive(rng));
    for (int setting = 0; setting < perWorld; ++setting) {
      SCOPED_TRACE("setting " + std::to_string(setting));
      randomInputs(world, rng, rules.shape == Shape::TwoTwoWheels);
      const WorkbenchSnapshot expected = plainRun(world, rules);
      world.press(rules.button);
      ASSERT_EQ(difference(expected, world.w), "");
      ASSERT_TRUE(world.shell.shown.empty());
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, AmbataButtons, testing::ValuesIn(kRules),
                         [](const auto& rules) { return std::string(rules.param.button); });

}  // namespace
}  // namespace trv5
