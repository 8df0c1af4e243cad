#include "chance/whole_search.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <thread>

#include "chance/expected_cover.h"
#include "chance/hypergeometric.h"
#include "chance_world.h"
#include "method/method.h"
#include "method/verification.h"
#include "support/print_candidate.h"
#include "support/random_runs.h"

namespace trv5 {
namespace {

WholeRequest requestOn(const Archive& archive, std::vector<int> cases, int keep) {
  return {.archive = &archive,
          .cases = std::move(cases),
          .colpi = 6,
          .lastDraw = archive.NumEstrazioni(),
          .triples = ascendingTriples(),
          .keep = keep};
}

AmbataRequest ambataRequest(const WholeRequest& whole, const WholePass& pass) {
  AmbataRequest request;
  request.archive = whole.archive;
  request.formula = formulaOf(pass, whole.triples);
  request.cases = whole.cases;
  request.colpi = whole.colpi;
  request.lastDraw = whole.lastDraw;
  request.allowedFix = everyFix();
  request.withFix = true;
  request.keep = whole.keep;
  return request;
}

TEST(WholeSearch, GoesThroughEverySetOfUpToThreeWheelsAndEveryPass) {
  EXPECT_EQ(wholeWheelSets().size(), 231U);
  std::vector<WheelSet> buttons;
  for (const int wheels : {1, 2, 3}) {
    const std::vector<WheelSet> sets = plainWheelSets(wheels);
    buttons.insert(buttons.end(), sets.begin(), sets.end());
  }
  EXPECT_EQ(wholeWheelSets(), buttons);
  // Nine alterations: of one and of three numbers once, of two with six operators.
  EXPECT_EQ(wholePasses().size(), 9U * (1 + 6 + 1 + 6));
}

// Where all wheels were drawn a ranking is that of the best-wheel buttons, one after the other: the rows of a pass and
// a size are its rows in the whole ranking, as far as that reaches.
TEST(WholeSearch, AgreesWithTheButtonsPassByPass) {
  std::vector<WholeOrder> orders = {WholeOrder::Covered, WholeOrder::Rarity};
  orders.resize(static_cast<std::size_t>(randomRuns(2)));
  for (const WholeOrder order : orders) {
    std::mt19937 rng(order == WholeOrder::Covered ? 1 : 2);
    const Archive archive = fullArchive(rng, 120);
    WholeRequest request = requestOn(archive, {100, 88, 70, 61, 50, 41, 30, 19}, 3000);
    request.order = order;
    const std::vector<WholeRow> rows = searchEverything(request);
    ASSERT_EQ(rows.size(), 3000U);
    std::map<std::pair<std::size_t, int>, std::vector<Candidate>> found;
    std::vector<WholePass> passes = wholePasses();
    for (const WholeRow& row : rows) {
      const auto pass = static_cast<std::size_t>(std::find(passes.begin(), passes.end(), row.pass) - passes.begin());
      found[{pass, __builtin_popcount(row.wheels)}].push_back(row.formula);
    }
    const WholeRow& last = rows.back();
    std::size_t others = 0;
    for (std::size_t pass = 0; pass < passes.size(); ++pass)
      for (const int wheels : {1, 2, 3}) {
        AmbataRequest button = ambataRequest(request, passes[pass]);
        button.wheelSets = plainWheelSets(wheels);
        std::vector<Candidate> plain = searchAmbate(button);
        for (Candidate& row : plain) row.wheelSet += wheels == 1 ? 0 : wheels == 2 ? 11 : 66;
        const std::vector<Candidate>& here = found[{pass, wheels}];
        ASSERT_LE(here.size(), plain.size());
        others += here.size();
        if (plain.size() > here.size()) {
          // The first row left out comes behind the last one taken.
          const Candidate& next = plain[here.size()];
          if (order == WholeOrder::Covered) {
            ASSERT_LE(next.cc, last.formula.cc);
          }
        }
        plain.resize(here.size());
        ASSERT_EQ(here, plain) << pass << " " << wheels;
      }
    EXPECT_EQ(others, rows.size());
  }
}

TEST(WholeSearch, RanksByTheChanceOfAFormulaFixedBeforehand) {
  std::mt19937 rng(3);
  const Archive archive = archiveWithGaps(rng, 300);
  const WholeRequest request = requestOn(archive, {290, 250, 220, 170, 140, 100, 60, 20}, 400);
  const std::vector<WholeRow> rows = searchEverything(request);
  ASSERT_EQ(rows.size(), 400U);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_LE(rows[i > 0 ? i - 1 : 0].rarity, rows[i].rarity);
    const PlayWindow window{.colpi = request.colpi, .lastDraw = request.lastDraw, .wheels = rows[i].wheels};
    PoissonBinomial luck;
    for (const int draw : request.cases) luck.add(chanceOfDraws(chanceOfSet(1), wheelDraws(archive, draw, window)));
    EXPECT_NEAR(rows[i].rarity / luck.atLeast(rows[i].formula.cc), 1, 1e-9);
    EXPECT_EQ(rows[i].wheels, wholeWheelSets()[static_cast<std::size_t>(rows[i].formula.wheelSet)]);
  }
}

// Nothing is rarer than the last row and left out: every formula of the shortest pass is looked at by hand.
TEST(WholeSearch, LeavesOutNoRarerRow) {
  for (unsigned seed = 4; seed < 4 + static_cast<unsigned>(randomRuns(3)); ++seed) {
    std::mt19937 rng(seed);
    const Archive archive = archiveWithGaps(rng, 200);
    const WholeRequest request = requestOn(archive, {190, 150, 141, 100, 60, 20}, 50);
    const std::vector<WholeRow> rows = searchEverything(request);
    const double last = rows.back().rarity;
    std::size_t rarer = 0;
    for (std::size_t set = 0; set < wholeWheelSets().size(); ++set) {
      const PlayWindow window{.colpi = request.colpi, .lastDraw = request.lastDraw, .wheels = wholeWheelSets()[set]};
      PoissonBinomial luck;
      std::vector<std::array<bool, 91>> drawn(request.cases.size());
      for (std::size_t i = 0; i < drawn.size(); ++i) {
        luck.add(chanceOfDraws(chanceOfSet(1), wheelDraws(archive, request.cases[i], window)));
        for (int colpo = 1; colpo <= request.colpi; ++colpo)
          for (int w = 0; w < kWheels; ++w)
            for (int k = 1; k <= 5; ++k)
              if (holds(window.wheels, w))
                drawn[i][static_cast<std::size_t>(archive.number(request.cases[i] + colpo, w, k))] = true;
      }
      for (const ElementSet& elements : elementSets(Shape::OneNumber, SetOrder::WheelsFirst, {}))
        for (int fix = 1; fix <= 90; ++fix) {
          int covered = 0;
          for (std::size_t i = 0; i < drawn.size(); ++i) {
            const int element = archive.number(request.cases[i], elements.wheels[0], elements.positions[0]);
            covered += drawn[i][static_cast<std::size_t>((element + fix + 89) % 90 + 1)];
          }
          if (luck.atLeast(covered) < last * (1 - 1e-9)) ++rarer;
        }
    }
    const auto taken = std::count_if(rows.begin(), rows.end(), [&](const WholeRow& row) {
      return row.pass == WholePass{} && row.rarity < last * (1 - 1e-9);
    });
    EXPECT_EQ(static_cast<std::size_t>(taken), rarer) << seed;
  }
}

// What a player gets who takes the row over and verifies it.
TEST(WholeSearch, OfEachRowCoversWhatItsVerificationCovers) {
  for (unsigned seed = 20; seed < 20 + static_cast<unsigned>(randomRuns(4)); ++seed) {
    std::mt19937 rng(seed);
    const Archive archive = archiveWithGaps(rng, 300);
    WholeRequest request = requestOn(archive, {}, 200);
    for (int i = 0; i < 12; ++i) request.cases.push_back(300 - static_cast<int>(rng() % 6) - 20 * i);
    request.order = seed % 2 == 0 ? WholeOrder::Rarity : WholeOrder::Covered;
    std::set<Shape> shapes;
    for (const WholeRow& row : searchEverything(request)) {
      shapes.insert(row.pass.shape);
      const FormulaRow formula =
          formulaOf(row.formula, row.pass.shape, kAlterations[static_cast<std::size_t>(row.pass.alteration)],
                    kOperators[static_cast<std::size_t>(row.pass.op)]);
      ParametriFormula carry;
      caricaParametri(formula, carry);
      const RowVerification verified =
          verifyRow(archive, {.colpi = request.colpi, .lastDraw = request.lastDraw, .wheels = row.wheels},
                    request.cases, carry, [&](ParametriFormula& p) { OttieneNumero(archive, p); });
      const auto covered =
          std::count_if(verified.hits.begin(), verified.hits.end(), [](const Hits& h) { return !h.empty(); });
      std::size_t hits = 0;
      for (const Hits& some : verified.hits) hits += some.size();
      ASSERT_EQ(row.formula.cc, covered);
      ASSERT_EQ(static_cast<std::size_t>(row.formula.pres), hits);
    }
    EXPECT_GE(shapes.size(), 1U);
  }
}

TEST(WholeSearch, IsTheSameForAnyNumberOfThreadsAndStops) {
  std::mt19937 rng(5);
  const Archive archive = archiveWithGaps(rng, 300);
  const WholeRequest request = requestOn(archive, {290, 250, 220, 170, 140, 100, 60, 20}, 100);
  const auto told = [](const std::vector<WholeRow>& rows) {
    std::vector<Candidate> formulas;
    for (const WholeRow& row : rows) formulas.push_back(row.formula);
    return formulas;
  };
  std::stop_source stop;
  std::vector<WholeRow> stopped;
  std::jthread half([&] { stopped = searchEverything(request, {.stop = stop.get_token()}); });
  stop.request_stop();
  half.join();
  EXPECT_TRUE(stopped.empty() || stopped.size() == 100U);
  EXPECT_EQ(told(searchEverything(request, {.threads = 1})), told(searchEverything(request, {.threads = 8})));
  std::stop_source before;
  before.request_stop();
  EXPECT_TRUE(searchEverything(request, {.stop = before.get_token()}).empty());
}

TEST(WholeSearch, OfNoCaseOrNoRowFindsNothing) {
  std::mt19937 rng(6);
  const Archive archive = randomArchive(rng, 30);
  EXPECT_TRUE(searchEverything(requestOn(archive, {}, 10)).empty());
  EXPECT_TRUE(searchEverything(requestOn(archive, {5}, 0)).empty());
}

}  // namespace
}  // namespace trv5
