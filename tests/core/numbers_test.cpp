#include "core/numbers.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <set>
#include <vector>

#include "core/palette.h"

namespace trv5 {
namespace {

int at(const NumberTable& table, int n) {
  return table[static_cast<std::size_t>(n)];
}

// The table by its steps: walk the starting values in tens, then mend the two results that left the range.
NumberTable diametraleDecinaBySteps() {
  NumberTable table{};
  const auto set = [&](int n, int value) { table[static_cast<std::size_t>(n)] = value; };
  for (const int start : {1, 2, 3, 4, 10})
    for (int n = start; n <= (start == 10 ? 90 : 80 + start); n += 10) set(n, n + 5);
  for (int start = 5; start <= 9; ++start)
    for (int n = start; n <= 80 + start; n += 10) set(n, n - 5);
  set(90, 5);
  set(5, 90);
  return table;
}

// The table by its steps: the two digits swapped as text, then the sixteen exceptions.
NumberTable vertibileBySteps() {
  NumberTable table{};
  for (int n = 1; n <= 90; ++n) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02d", n);
    const char swapped[] = {digits[1], digits[0], '\0'};
    table[static_cast<std::size_t>(n)] = std::atoi(swapped);
  }
  const int exceptions[][2] = {{11, 19}, {22, 29}, {33, 39}, {44, 49}, {55, 59}, {66, 69}, {77, 79}, {88, 89}};
  for (const auto& [a, b] : exceptions) {
    table[static_cast<std::size_t>(a)] = b;
    table[static_cast<std::size_t>(b)] = a;
  }
  return table;
}

TEST(NumberTables, DecinaAndCadenzaOf90AreBoth0SoThatANumberBuiltFromThemIs0) {
  EXPECT_EQ(at(TabDecina, 90), 0);
  EXPECT_EQ(at(TabCadenza, 90), 0);
  EXPECT_EQ(at(TabDecina, 90) * 10 + at(TabCadenza, 90), 0);
  for (int n = 1; n <= 89; ++n) EXPECT_EQ(at(TabDecina, n) * 10 + at(TabCadenza, n), n);
}

TEST(NumberTables, DecinaRunsFromX0ToX9) {
  EXPECT_EQ(at(TabDecina, 1), 0);
  EXPECT_EQ(at(TabDecina, 9), 0);
  EXPECT_EQ(at(TabDecina, 10), 1);
  EXPECT_EQ(at(TabDecina, 19), 1);
  EXPECT_EQ(at(TabDecina, 80), 8);
  EXPECT_EQ(at(TabDecina, 89), 8);
}

TEST(NumberTables, FiguraOf90Is9) {
  EXPECT_EQ(at(TabFigura, 90), 9);
  EXPECT_EQ(at(TabFigura, 9), 9);
  EXPECT_EQ(at(TabFigura, 18), 9);
  EXPECT_EQ(at(TabFigura, 10), 1);
  for (int n = 1; n <= 90; ++n) {
    int sum = n;  // the figure is the sum of the digits, summed again until one digit is left
    while (sum > 9) sum = sum / 10 + sum % 10;
    EXPECT_EQ(at(TabFigura, n), sum) << n;
  }
}

TEST(NumberTables, DiametraleIs45AwayAndUndoesItself) {
  EXPECT_EQ(at(TabDiametrale, 1), 46);
  EXPECT_EQ(at(TabDiametrale, 45), 90);
  EXPECT_EQ(at(TabDiametrale, 46), 1);
  EXPECT_EQ(at(TabDiametrale, 90), 45);
  for (int n = 1; n <= 90; ++n) {
    EXPECT_EQ(std::abs(at(TabDiametrale, n) - n), 45) << n;
    EXPECT_EQ(at(TabDiametrale, at(TabDiametrale, n)), n) << n;
  }
}

TEST(NumberTables, DiametraleDecinaUndoesItselfOnAllNumbersWith5And90APair) {
  for (int n = 1; n <= 90; ++n) EXPECT_EQ(at(TabDiametraleDecina, at(TabDiametraleDecina, n)), n) << n;
  EXPECT_EQ(at(TabDiametraleDecina, 5), 90);
  EXPECT_EQ(at(TabDiametraleDecina, 90), 5);
  EXPECT_EQ(at(TabDiametraleDecina, 1), 6);
  EXPECT_EQ(at(TabDiametraleDecina, 10), 15);
  EXPECT_EQ(at(TabDiametraleDecina, 15), 10);
  EXPECT_EQ(at(TabDiametraleDecina, 84), 89);
}

TEST(NumberTables, DiametraleDecinaIsWhatItsStepsGive) {
  EXPECT_EQ(TabDiametraleDecina, diametraleDecinaBySteps());
}

TEST(NumberTables, VertibileUndoesItselfForEveryNumber) {
  for (int n = 1; n <= 90; ++n) {
    EXPECT_EQ(at(TabVertibile, at(TabVertibile, n)), n) << n;
    EXPECT_GE(at(TabVertibile, n), 1) << n;
    EXPECT_LE(at(TabVertibile, n), 90) << n;
  }
}

TEST(NumberTables, VertibileIsWhatItsStepsGive) {
  EXPECT_EQ(TabVertibile, vertibileBySteps());
  EXPECT_EQ(at(TabVertibile, 12), 21);
  EXPECT_EQ(at(TabVertibile, 1), 10);
  EXPECT_EQ(at(TabVertibile, 9), 90);
  EXPECT_EQ(at(TabVertibile, 90), 9);
  EXPECT_EQ(at(TabVertibile, 19), 11);
}

TEST(NumberTables, GruppoIs0ForEveryNumberOutsideThe32OfTheGroups) {
  std::set<int> grouped;
  for (int i = 1; i <= 8; ++i)
    for (const int n : {i, 10 * i, 11 * i, 10 * i + 9}) {
      EXPECT_EQ(at(TabGruppo, n), i) << n;
      grouped.insert(n);
    }
  EXPECT_EQ(grouped.size(), 32u);
  for (int n = 1; n <= 90; ++n) EXPECT_EQ(at(TabGruppo, n) == 0, !grouped.contains(n)) << n;
}

TEST(NumberTables, Element0Is0InEveryTable) {
  for (const NumberTable* table :
       {&TabDecina, &TabCadenza, &TabFigura, &TabDiametrale, &TabDiametraleDecina, &TabVertibile, &TabGruppo})
    EXPECT_EQ(table->front(), 0);
}

TEST(Fold, BringsEveryNumberInto1To90) {
  EXPECT_EQ(fold90(0), 90);
  EXPECT_EQ(fold90(90), 90);
  EXPECT_EQ(fold90(91), 1);
  EXPECT_EQ(fold90(180), 90);
  EXPECT_EQ(fold90(-1), 89);
  EXPECT_EQ(fold90(-90), 90);
  for (int n = -5000; n <= 5000; ++n) {
    EXPECT_GE(fold90(n), 1);
    EXPECT_LE(fold90(n), 90);
    EXPECT_EQ((fold90(n) - n) % 90, 0);
    EXPECT_EQ(residue90(n), fold90(n) % 90);
  }
}

TEST(Palette, GivesEachSorteItsColour) {
  EXPECT_EQ(ColoriSorte[1], 0x80FF80u);
  EXPECT_EQ(ColoriSorte[2], 0xFFFF00u);
  EXPECT_EQ(ColoriSorte[3], 0xFFC080u);
  EXPECT_EQ(ColoriSorte[4], 0xC0C0FFu);
  EXPECT_EQ(ColoriSorte[5], 0xFF80FFu);
}

TEST(Palette, HasTheNamedShades) {
  const std::vector<std::pair<Rgb, Rgb>> shades = {
      {GialloChiaro, 0xFFFFC0}, {GialloMedio, 0xFFFF80}, {Giallo, 0xFFFF00},      {VerdeChiaro, 0xC0FFC0},
      {VerdeMedio, 0x80FF80},   {Verde, 0x00FF00},       {VerdeScuro, 0x00C000},  {VerdeBuio, 0x008000},
      {ViolaChiaro, 0xFFC0FF},  {ViolaMedio, 0xFF80FF},  {Viola, 0xFF00FF},       {AranciaChiaro, 0xFFE0C0},
      {AranciaMedio, 0xFFC080}, {Arancia, 0xFF8000},     {CianoChiaro, 0xC0FFFF}, {CianoMedio, 0x80FFFF},
      {Ciano, 0x00FFFF},        {RossoChiaro, 0xFFC0C0}, {RossoMedio, 0xFF8080},  {Rosso, 0xFF0000},
      {BluChiaro, 0xC0C0FF},    {BluMedio, 0x8080FF},    {Blu, 0x0000FF},         {BluScuro, 0x0000C0}};
  for (const auto& [shade, rgb] : shades) EXPECT_EQ(shade, rgb);
}

}  // namespace
}  // namespace trv5
