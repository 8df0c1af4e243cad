#include "chance/forward_test.h"

#include <gtest/gtest.h>

#include <cmath>
#include <thread>

#include "chance/expected_cover.h"
#include "chance/hypergeometric.h"
#include "chance_world.h"
#include "support/print_candidate.h"
#include "support/random_runs.h"
#include "support/random_search.h"

namespace trv5 {
namespace {

// A draw holds one of these numbers on BA: a case about once in four draws.
Situation someNumbersOnBari(const Archive& archive) {
  Situation situation;
  situation.kind = SituationKind::Numeri;
  situation.reference = archive.NumEstrazioni();
  situation.positions = {false, true, true, true, true, true};
  for (const std::size_t n : {7U, 17U, 27U, 37U, 47U}) situation.numbers[n] = true;
  return situation;
}

ForwardRequest requestOn(const Archive& archive, int learnt, int colpi) {
  ForwardRequest request{.search = searchOn(archive, 1, 1, colpi), .cases = {}, .learnt = learnt};
  request.cases = allCases(archive, someNumbersOnBari(archive));
  return request;
}

TEST(ForwardTest, FindsTheCasesBeyondTheFiftyOfTheList) {
  std::mt19937 rng(1);
  const Archive archive = fullArchive(rng, 600);
  const std::vector<int> cases = allCases(archive, someNumbersOnBari(archive));
  EXPECT_GT(cases.size(), 100U);
  std::size_t plain = 0;
  for (int draw = 1; draw <= 600; ++draw) {
    bool any = false;
    for (int k = 1; k <= 5; ++k) any = any || (archive.number(draw, 0, k) < 50 && archive.number(draw, 0, k) % 10 == 7);
    if (any) {
      ASSERT_EQ(cases.at(plain++), draw);
    }
  }
  EXPECT_EQ(plain, cases.size());
}

// The colpo of the first hit, 0 for none.
int plainFirstHit(const Archive& archive, int number, int draw, int colpi, WheelSet wheels) {
  int colpo = 0;
  for (int c = colpi; c >= 1; --c)
    for (int w = 0; w < kWheels; ++w)
      for (int k = 1; k <= 5; ++k)
        if (holds(wheels, w) && archive.number(draw + c, w, k) == number) colpo = c;
  return colpo;
}

// The walk as it is told, case by case.
TEST(ForwardTest, AgreesWithAPlainWalk) {
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(20)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    const Archive archive = randomArchive(rng, 150);
    const int colpi = 1 + below(rng, 9), learnt = 1 + below(rng, 12);
    const PlainFormula formula = randomFormula(rng, Shape::OneNumber);
    ForwardRequest request = requestOn(archive, learnt, colpi);
    request.search.formula = formulaInput(formula);
    request.search.wheelSets = seed % 2 == 0 ? std::vector<WheelSet>{randomWheelSet(rng)} : plainWheelSets(1);
    const ForwardFigures figures = testForward(request);

    std::size_t at = 0;
    int last = -1000, covered = 0;
    PoissonBinomial luck;
    for (const int draw : request.cases) {
      if (draw <= last + colpi || draw + colpi > archive.NumEstrazioni()) continue;
      AmbataRequest search = request.search;
      search.cases.clear();
      for (auto it = request.cases.rbegin(); it != request.cases.rend(); ++it)
        if (*it + colpi < draw && static_cast<int>(search.cases.size()) < learnt) search.cases.push_back(*it);
      if (static_cast<int>(search.cases.size()) < learnt) continue;
      last = draw;
      search.keep = 1;
      const std::vector<Candidate> ranking = plainSearchAmbate(formula, search);
      if (ranking.empty()) continue;
      const Candidate& first = ranking.front();
      const WheelSet wheels = search.wheelSets[static_cast<std::size_t>(first.wheelSet)];
      const int drawn = wheelDraws(archive, draw, {.colpi = colpi, .lastDraw = 150, .wheels = wheels});
      if (drawn == 0) continue;
      // The number is the one for which the formula has found its cover: looked for as a fixed one here.
      int number = formulaInput(formula).elements[0][static_cast<std::size_t>(
          archive.number(draw, first.elements.wheels[0], first.elements.positions[0]))];
      number = (number + first.fix + 89) % 90 + 1;
      const int colpo = plainFirstHit(archive, number, draw, colpi, wheels);
      ASSERT_LT(at, figures.tests.size());
      const ForwardTest& test = figures.tests[at++];
      EXPECT_EQ(test.draw, draw);
      EXPECT_EQ(test.formula, first);
      EXPECT_EQ(test.number, number);
      EXPECT_EQ(test.colpo, colpo);
      EXPECT_NEAR(test.chance, 1 - std::pow(17.0 / 18, drawn), 1e-12);
      covered += colpo > 0;
      luck.add(test.chance);
      EXPECT_NEAR(test.ahead, covered - luck.mean(), 1e-9);
    }
    EXPECT_EQ(at, figures.tests.size());
    EXPECT_EQ(figures.covered, covered);
    EXPECT_NEAR(figures.expected, luck.mean(), 1e-9);
    EXPECT_NEAR(figures.atLeast, luck.atLeast(covered), 1e-12);
  }
}

TEST(ForwardTest, IsTheSameForAnyNumberOfThreadsAndStops) {
  std::mt19937 rng(3);
  const Archive archive = fullArchive(rng, 500);
  const ForwardRequest request = requestOn(archive, 20, 9);
  const ForwardFigures one = testForward(request, {.threads = 1}), eight = testForward(request, {.threads = 8});
  ASSERT_EQ(one.tests.size(), eight.tests.size());
  ASSERT_GT(one.tests.size(), 20U);
  for (std::size_t i = 0; i < one.tests.size(); ++i) {
    EXPECT_EQ(one.tests[i].formula, eight.tests[i].formula);
    EXPECT_EQ(one.tests[i].ahead, eight.tests[i].ahead);
    EXPECT_LE(one.tests[i].low, 0);
    EXPECT_GE(one.tests[i].high, 0);
  }
  std::stop_source stop;
  stop.request_stop();
  EXPECT_TRUE(testForward(request, {.stop = stop.get_token()}).tests.empty());
}

TEST(ForwardWalk, GivesTheSameFiguresHoweverItIsSliced) {
  std::mt19937 rng(5);
  const Archive archive = fullArchive(rng, 400);
  const ForwardRequest request = requestOn(archive, 10, 9);
  const ForwardFigures whole = testForward(request);
  ForwardWalk walk(request);
  EXPECT_GT(walk.planned(), 20);
  while (!walk.over()) {
    const int before = walk.done();
    if (before % 2 == 0)
      walk.advance(3);
    else
      walk.advance(std::chrono::milliseconds(1));
    ASSERT_GT(walk.done(), before);
    const ForwardFigures sofar = walk.figures();
    ASSERT_LE(sofar.tests.size(), static_cast<std::size_t>(walk.done()));
    for (std::size_t i = 0; i < sofar.tests.size(); ++i) {
      EXPECT_EQ(sofar.tests[i].formula, whole.tests[i].formula);
      EXPECT_EQ(sofar.tests[i].ahead, whole.tests[i].ahead);
    }
  }
  EXPECT_EQ(walk.figures().tests.size(), whole.tests.size());
  EXPECT_EQ(walk.figures().atLeast, whole.atLeast);
}

TEST(ForwardWalk, StoppedStaysWhereItIs) {
  std::mt19937 rng(6);
  const Archive archive = fullArchive(rng, 300);
  ForwardWalk walk(requestOn(archive, 10, 9));
  walk.advance(4);
  std::stop_source stop;
  stop.request_stop();
  walk.advance(5, {.stop = stop.get_token()});
  walk.advance(std::chrono::milliseconds(5), {.stop = stop.get_token()});
  EXPECT_EQ(walk.done(), 4);
  EXPECT_EQ(walk.figures().tests.size(), 4U);
}

// What isn't learnt from is a test all the same: the search of each test knows the others alone.
TEST(ForwardWalk, LearnsFromNoCaseThatIsPassedOver) {
  std::mt19937 rng(7);
  const Archive archive = fullArchive(rng, 400);
  ForwardRequest request = requestOn(archive, 8, 9);
  for (std::size_t i = 0; i < request.cases.size(); ++i) request.passedOver.push_back(i % 3 != 0);
  const ForwardFigures figures = testForward(request);
  ASSERT_GT(figures.tests.size(), 5U);
  for (const ForwardTest& test : figures.tests) {
    AmbataRequest search = request.search;
    search.cases.clear();
    for (std::size_t i = request.cases.size(); i-- > 0 && search.cases.size() < 8U;)
      if (request.cases[i] + 9 < test.draw && i % 3 == 0) search.cases.push_back(request.cases[i]);
    ASSERT_EQ(search.cases.size(), 8U);
    search.keep = 1;
    EXPECT_EQ(test.formula, searchAmbate(search).front());
  }
}

TEST(ForwardTest, WithoutEnoughCasesMakesNoTest) {
  std::mt19937 rng(4);
  const Archive archive = fullArchive(rng, 60);
  const ForwardFigures figures = testForward(requestOn(archive, 50, 9));
  EXPECT_TRUE(figures.tests.empty());
  EXPECT_EQ(figures.covered, 0);
  EXPECT_EQ(figures.atLeast, 1);
}

}  // namespace
}  // namespace trv5
