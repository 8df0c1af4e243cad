#include "core/text.h"

#include <gtest/gtest.h>

#include "core/wheels.h"

namespace trv5 {
namespace {

TEST(Text, ANumberIsLeadingBlanksThenLeadingDigits) {
  EXPECT_EQ(numberOf("7"), 7);
  EXPECT_EQ(numberOf("  07 e altro"), 7);
  EXPECT_EQ(numberOf("12.5"), 12);
  EXPECT_EQ(numberOf("90-12"), 90);
}

TEST(Text, AnythingElseIs0ASignToo) {
  for (const char* text : {"", " ", "x1", "-5", "+5", ".5", "è"}) EXPECT_EQ(numberOf(text), 0) << text;
}

TEST(Text, ANumberBeyond16BitsStaysAtTheHighest) {
  EXPECT_EQ(numberOf("32767"), 32767);
  EXPECT_EQ(numberOf("32768"), 32767);
  EXPECT_EQ(numberOf(std::string(400, '9')), 32767);
}

TEST(Text, TwoDigitsPadsWithAZero) {
  EXPECT_EQ(twoDigits(0), "00");
  EXPECT_EQ(twoDigits(7), "07");
  EXPECT_EQ(twoDigits(90), "90");
  EXPECT_EQ(twoDigits(134), "134");
}

TEST(Text, TrimmedLosesBlanksAtBothEnds) {
  EXPECT_EQ(trimmed("  CC \t"), "CC");
  EXPECT_EQ(trimmed("a b"), "a b");
  EXPECT_EQ(trimmed("   "), "");
}

TEST(Text, SplitKeepsEmptyPieces) {
  EXPECT_EQ(split("a|b", '|'), (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(split("|a||", '|'), (std::vector<std::string>{"", "a", "", ""}));
  EXPECT_EQ(split("", '|'), std::vector<std::string>{""});
}

TEST(Text, NumbersEveryThreeReadsTwoDigitsAndAnySeparator) {
  EXPECT_EQ(numbersEveryThree("05-71-13-90-02"), (std::vector<int>{5, 71, 13, 90, 2}));
  EXPECT_EQ(numbersEveryThree("05.7/1"), (std::vector<int>{5, 7}));
  EXPECT_EQ(numbersEveryThree("x5-"), (std::vector<int>{0}));
  EXPECT_TRUE(numbersEveryThree("").empty());
}

TEST(Text, CountsCharactersBeyondAsciiAsOnePlace) {
  EXPECT_EQ(asciiText("05–12–33"), "05?12?33");
  EXPECT_EQ(asciiText("è5€"), "?5?");
  EXPECT_EQ(asciiText("05-12"), "05-12");
}

TEST(Text, EqualIgnoringCaseComparesTheWholeText) {
  EXPECT_TRUE(equalIgnoringCase("PercorsoArchivio", "percorsoarchivio"));
  EXPECT_FALSE(equalIgnoringCase("Percorso", "PercorsoArchivio"));
  EXPECT_FALSE(equalIgnoringCase("PercorsoArchivio", "Percorso"));
  EXPECT_TRUE(equalIgnoringCase("", ""));
}

TEST(Wheels, EveryWheelHasItsCodeFieldLetterAndName) {
  EXPECT_EQ(CodiciRuote[0], "BA");
  EXPECT_EQ(CodiciRuote[10], "NZ");
  EXPECT_EQ(CodiciRuote[kAllWheels], "TU");
  EXPECT_EQ(NomiRuote[kAllWheels], "Tutte");
  for (std::size_t wheel = 0; wheel < static_cast<std::size_t>(kWheels); ++wheel) {
    EXPECT_TRUE(equalIgnoringCase(CodiciRuote[wheel], SigleRuote[wheel]));
    EXPECT_EQ(wheelOfCode(CodiciRuote[wheel]), static_cast<int>(wheel));
    EXPECT_EQ(wheelOfCode(SigleRuote[wheel]), static_cast<int>(wheel));
    EXPECT_EQ(LettereRuote[wheel].size(), 1u);
    // The national wheel is the only one whose mark isn't its initial, which Napoli has.
    EXPECT_EQ(LettereRuote[wheel], wheel == 10 ? "Z" : NomiRuote[wheel].substr(0, 1));
  }
}

TEST(Wheels, ACodeThatNoWheelHasIsNone) {
  for (const char* code : {"", "B", "BAR", "XX", "TU", "RM"}) EXPECT_EQ(wheelOfCode(code), -1) << code;
}

TEST(Wheels, MonthsCountFromOne) {
  EXPECT_EQ(NomiMesi[1], "Gennaio");
  EXPECT_EQ(NomiMesi[9], "Settembre");
  EXPECT_EQ(NomiMesi[12], "Dicembre");
}

TEST(Wheels, ASetHoldsItsWheels) {
  const WheelSet set = 1U << 0 | 1U << 10;
  EXPECT_TRUE(holds(set, 0));
  EXPECT_FALSE(holds(set, 1));
  EXPECT_TRUE(holds(set, 10));
}

TEST(FoldedCase, MakesSmallLettersOfThoseWithAccentsToo) {
  EXPECT_EQ(foldedCase("CITTÀ di Bari ÈÙÎÇ 7"), "città di bari èùîç 7");
  EXPECT_EQ(foldedCase("2×3 ÷ß ¢"), "2×3 ÷ß ¢");
}

TEST(Text, CountsWithANounThatAgrees) {
  EXPECT_EQ(counted(1, "riga", "righe"), "1 riga");
  EXPECT_EQ(counted(0, "riga", "righe"), "0 righe");
  EXPECT_EQ(counted(51, "riga", "righe"), "51 righe");
}

}  // namespace
}  // namespace trv5
