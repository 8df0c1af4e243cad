#include "engine/luck_texts.h"

#include <gtest/gtest.h>

namespace trv5 {
namespace {

TEST(LuckTexts, WriteNumbersAsAnItalianReaderDoes) {
  EXPECT_EQ(thousands(0), "0");
  EXPECT_EQ(thousands(999), "999");
  EXPECT_EQ(thousands(1000), "1.000");
  EXPECT_EQ(thousands(123750), "123.750");
  EXPECT_EQ(thousands(6000000), "6.000.000");
  EXPECT_EQ(oneDecimal(22.44), "22,4");
  EXPECT_EQ(oneDecimal(0), "0,0");
  EXPECT_EQ(oneDecimal(12345.67), "12.345,7");
}

TEST(LuckTexts, SayHowManyArchivesReachTheOwnCountWithTheOwnOneAmongThem) {
  const LuckOfBest luck{.best = 23, .reached = 410, .replicas = 999, .mean = 22.41};
  EXPECT_EQ(luckSentence(luck),
            "Su 1.000 archivi sorteggiati, 411 hanno una formula che copre almeno 23 casi: la sola fortuna arriva in "
            "media a 22,4.");
  EXPECT_EQ(luckSoFar(luck).substr(0, 36), "Finora, su 1.000 archivi sorteggiati");
  EXPECT_EQ(shortLuck(luck), "411 archivi su 1.000 arrivano a 23 casi, la fortuna in media a 22,4");
}

TEST(LuckTexts, SayItAlsoOfNoneOfAllAndOfOneCase) {
  EXPECT_EQ(luckSentence({.best = 30, .reached = 0, .replicas = 999, .mean = 22.4}),
            "Su 1.000 archivi, il tuo e 999 sorteggiati, solo il tuo ha una formula che copre almeno 30 casi: la sola "
            "fortuna arriva in media a 22,4.");
  EXPECT_EQ(shortLuck({.best = 30, .reached = 0, .replicas = 999, .mean = 22.4}),
            "Solo il tuo archivio su 1.000 arriva a 30 casi, la fortuna in media a 22,4");
  const LuckOfBest all{.best = 1, .reached = 999, .replicas = 999, .mean = 1, .numbers = true};
  EXPECT_EQ(luckSentence(all),
            "Su 1.000 archivi sorteggiati, tutti hanno un numero che copre almeno 1 caso: la sola fortuna arriva in "
            "media a 1,0.");
  EXPECT_EQ(shortLuck(all), "Tutti i 1.000 archivi arrivano a 1 caso, la fortuna in media a 1,0");
}

TEST(LuckTexts, CallAResultRareFromFiftyArchivesInAThousandDown) {
  EXPECT_TRUE((LuckOfBest{.best = 9, .reached = 49, .replicas = 999}).rare());
  EXPECT_FALSE((LuckOfBest{.best = 9, .reached = 50, .replicas = 999}).rare());
  EXPECT_FALSE((LuckOfBest{.best = 9, .reached = 0, .replicas = 15}).rare());
}

TEST(LuckTexts, TellHowSureTheyAre) {
  EXPECT_EQ(luckOfLongerSeries({.best = 16, .reached = 5389, .replicas = 9999}),
            "Con molti più sorteggi sarebbero, 19 volte su 20, fra 5.291 e 5.488 su 10.000.");
}

TEST(LuckTexts, TellEachRowItsOwnFigure) {
  LuckOfCount luck{.count = 16, .bounds = {}};
  luck.p = 0.539;
  EXPECT_EQ(luckOfRow(luck, 999, true, false),
            "Su 1.000 archivi sorteggiati, 539 hanno una formula che copre almeno 16 casi.");
  luck.count = 15;
  luck.p = 1;
  EXPECT_EQ(
      luckOfRow(luck, 999, false, false),
      "Su 1.000 archivi sorteggiati, tutti hanno una formula che copre almeno 15 casi, tolte le formule che qui ne "
      "coprono di più.");
}

TEST(LuckTexts, CountTheSearchesTried) {
  EXPECT_EQ(searchesTried(1), "1 ricerca su questi casi.");
  EXPECT_EQ(searchesTried(7), "7 ricerche su questi casi.");
}

}  // namespace
}  // namespace trv5
