#include <gtest/gtest.h>

#include <random>

#include "core/text.h"
#include "support/plain_detection.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

constexpr unsigned kArchives = 150;
constexpr int kRunsOnEach = 24;

int below(std::mt19937& rng, int n) {
  return static_cast<int>(rng() % static_cast<unsigned>(n));
}

template <class T>
T oneOf(std::mt19937& rng, std::initializer_list<T> values) {
  return *(values.begin() + below(rng, static_cast<int>(values.size())));
}

// Few numbers, so that situations recur; wheels left out, and in some archives the numbers 91..99 of an entry by hand.
Archive strangeArchive(std::mt19937& rng) {
  const int draws = oneOf(rng, {1, 2, 7, 60, 60, 200, 400});
  const int highest = oneOf(rng, {12, 30, 90, 99});
  std::vector<DrawRow> rows;
  for (int draw = 1; draw <= draws; ++draw) {
    WheelNumbers wheels;
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      if (rng() % 12 == 0) continue;
      std::array<int, 5> numbers{};
      for (int& number : numbers) number = 1 + below(rng, highest);
      wheels[std::string(CodiciRuote[static_cast<std::size_t>(wheel)])] = numbers;
    }
    rows.push_back(drawOf(dateOfDraw(draw), wheels));
  }
  return archiveOfRows(rows);
}

std::string randomNumbers(std::mt19937& rng, const std::string& kind) {
  if (rng() % 12 == 0) return oneOf<std::string>(rng, {"", "x", "5-", " 7", "0", "99", "7a12", "è5", "05–12–33", "9 "});
  if (kind != "Numeri" && rng() % 10 != 0) return std::to_string(1 + below(rng, rng() % 4 == 0 ? 90 : 20));
  std::string text;
  for (int count = 1 + below(rng, 20); count > 0; --count) {
    if (!text.empty()) text += oneOf(rng, {"-", "-", ".", " ", "·"});
    text += twoDigits(below(rng, 100));
  }
  return text;
}

PlainSituation randomSituation(std::mt19937& rng, int draws) {
  PlainSituation s;
  s.kind = oneOf<std::string>(rng, {"Mensile", "Numeri", "Distanza", "Differenza", "Somma", "Ciclo", "Num Pari"});
  s.numbers = randomNumbers(rng, s.kind);
  s.reference = rng() % 2 == 0 ? draws : 1 + below(rng, draws);
  s.wheel = below(rng, kWheels);
  s.period = s.kind == "Num Pari" ? below(rng, 6) : rng() % 4 == 0 ? 0 : below(rng, 32);
  s.cases = rng() % 5 == 0 ? oneOf<std::string>(rng, {"0", "51", "60", "200", "tanti", "3x", "", " 12", "99999999"})
                           : std::to_string(1 + below(rng, 50));
  s.quantity = rng() % 2 == 0 ? 1 : 1 + below(rng, 5);
  for (std::size_t p = 1; p <= 5; ++p) s.positions[p] = rng() % 3 != 0;
  if (rng() % 10 == 0) s.positions = {};
  for (bool& wheel : s.detection) wheel = rng() % 3 != 0;
  if (rng() % 10 == 0) s.detection = {};
  s.forceLast = rng() % 2 == 0;
  s.onWheels = rng() % 2 == 0;
  s.back = rng() % 2 == 0 ? 0 : below(rng, 11);
  s.quantity1 = 1 + below(rng, rng() % 3 == 0 ? 5 : 2);
  s.quantity2 = 1 + below(rng, rng() % 3 == 0 ? 5 : 2);
  s.oneToOne = rng() % 2 == 0;
  s.isotopes = rng() % 3 == 0;
  return s;
}

// Every control as the user would set it.
void enter(WorkbenchWorld& world, const PlainSituation& s) {
  Workbench& w = world.w;
  world.choose(w.ComboFiltro, s.kind);
  w.TxtNumeri.set(s.numbers);
  w.hs1.set(s.reference);
  w.ComboR1.pick(s.wheel);
  w.ComboPar.pick(s.period);
  world.choose(w.ComboNC, s.cases);
  w.ComboQNu.pick(s.quantity - 1);
  for (const auto& [p, label] : w.LblPN)
    if ((label->back() == Verde) != s.positions[static_cast<std::size_t>(p)]) label->click();
  w.Label19.click();
  for (int wheel = 0; wheel < kWheels; ++wheel)
    if (s.detection[static_cast<std::size_t>(wheel)]) w.FgRR.clickCell(0, wheel);
  w.Ch_ultima.set(s.forceLast);
  w.Ch_analisi2ruote.set(s.onWheels);
  w.ComboRetro.pick(s.back);
  w.ComboQNR1.pick(s.quantity1 - 1);
  w.ComboQNR2.pick(s.quantity2 - 1);
  w.ChDDS.set(s.oneToOne);
  w.Ch_ISO.set(s.isotopes);
  w.SSTab1.set(1);
}

Grid listOf(const Workbench& w, const PlainDetection& plain) {
  Grid grid = w.FgEv.grid();
  grid.setRows(1);
  for (const std::vector<Cell>& row : plain.cases) {
    const int at = grid.appendRow();
    for (int column = 0; column < grid.columns(); ++column)
      grid.setCell(at, column, row[static_cast<std::size_t>(column)]);
  }
  return grid;
}

std::string firstDifference(const Grid& found, const Grid& expected) {
  if (found.rows() != expected.rows())
    return std::to_string(found.rows()) + " rows, expected " + std::to_string(expected.rows());
  for (int row = 0; row < found.rows(); ++row)
    for (int column = 0; column < found.columns(); ++column)
      if (!(found.at(row, column) == expected.at(row, column)))
        return "cell " + std::to_string(row) + ", " + std::to_string(column) + ": '" + found.text(row, column) +
               "', expected '" + expected.text(row, column) + "'";
  return "beside the cells";
}

std::string told(const PlainSituation& s) {
  std::string text = s.kind + " '" + s.numbers + "' draw " + std::to_string(s.reference) + " wheel " +
                     std::to_string(s.wheel) + " period " + std::to_string(s.period) + " cases '" + s.cases +
                     "' quantity " + std::to_string(s.quantity) + " positions ";
  for (std::size_t p = 1; p <= 5; ++p) text += s.positions[p] ? '1' : '0';
  text += " wheels ";
  for (const bool wheel : s.detection) text += wheel ? '1' : '0';
  return text + (s.forceLast ? " last" : "") + (s.onWheels ? " on wheels, back " : " back ") + std::to_string(s.back) +
         " " + std::to_string(s.quantity1) + ":" + std::to_string(s.quantity2) + (s.oneToOne ? " one to one" : "") +
         (s.isotopes ? " isotopes" : "");
}

struct Tally {
  int runs = 0, withCases = 0, cut = 0, stopped = 0, twoElements = 0, cycles = 0;
};

void runAndCompare(WorkbenchWorld& world, const PlainSituation& s, PlainDetection& plain, Tally& tally) {
  const Workbench& w = world.w;
  enter(world, s);
  plain.frontTab = 1;
  world.shell.shown.clear();
  world.press("Command44");
  plainDetect(world.archive, s, plain);

  const Grid expected = listOf(w, plain);
  if (!(w.FgEv.grid() == expected)) ADD_FAILURE() << firstDifference(w.FgEv, expected);
  EXPECT_EQ(w.NumeroCasi, plain.found);
  EXPECT_EQ(w.PosizioniColpite, plain.struck);
  EXPECT_EQ(w.NumeriScelti, plain.chosen);
  EXPECT_EQ(world.shell.texts(), plain.boxes);
  EXPECT_EQ(w.Label5.text(), plain.span);
  EXPECT_EQ(w.SSTab1.index(), plain.frontTab);
  EXPECT_EQ(w.TxtNumeri.text(), plain.numbers);

  ++tally.runs;
  tally.withCases += !plain.cases.empty();
  tally.cut += plain.found > 50;
  tally.stopped += plain.frontTab == 1;
  tally.twoElements += !plain.cases.empty() && !plain.cases.front()[9].text.empty();
  tally.cycles += s.kind == "Ciclo" && plain.struck != std::array<bool, 6>{};
}

TEST(RandomDetection, AgreesWithTheStepsOnStrangeArchives) {
  Tally tally;
  for (unsigned seed = 1; seed <= kArchives; ++seed) {
    std::mt19937 rng(seed);
    WorkbenchWorld world(strangeArchive(rng));
    PlainDetection plain;
    for (int run = 1; run <= kRunsOnEach; ++run) {
      const PlainSituation s = randomSituation(rng, world.archive.UltimaEstrazione());
      SCOPED_TRACE("seed " + std::to_string(seed) + ", run " + std::to_string(run) + ": " + told(s));
      runAndCompare(world, s, plain, tally);
      if (testing::Test::HasFailure()) return;
    }
  }
  // What the settings must have met, or they compare nothing.
  EXPECT_GE(tally.runs, 2000);
  EXPECT_GE(tally.withCases, 1000);
  EXPECT_GE(tally.cut, 20);
  EXPECT_GE(tally.stopped, 100);
  EXPECT_GE(tally.twoElements, 200);
  EXPECT_GE(tally.cycles, 50) << "cycles marked by the run before";
}

}  // namespace
}  // namespace trv5
