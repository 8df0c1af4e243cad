#include "engine/luck_texts.h"

#include <fmt/format.h>

#include <cmath>

#include "chance/intervals.h"
#include "core/figures.h"
#include "core/text.h"

namespace trv5 {
namespace {

std::string casesText(int cases) {
  return counted(cases, "caso", "casi");
}

// "411 hanno una formula che copre almeno 23 casi", of that many archives.
std::string whoReaches(int reaching, int archives, int cases, bool numbers) {
  const char* const row = numbers ? "un numero che copre" : "una formula che copre";
  if (reaching >= archives) return fmt::format("tutti hanno {} almeno {}", row, casesText(cases));
  return fmt::format("{} {} {} almeno {}", reaching == 1 ? "uno solo" : thousands(reaching),
                     reaching == 1 ? "ha" : "hanno", row, casesText(cases));
}

std::string sentence(const LuckOfBest& luck, const char* begin) {
  const std::string archives = thousands(luck.archives()), mean = oneDecimal(luck.mean);
  // Nothing but the own archive: said as it is, since one that was drawn would read the same.
  if (luck.reached == 0)
    return fmt::format(
        "{} {} archivi, il tuo e {} sorteggiati, solo il tuo ha {} almeno {}: la sola fortuna arriva in media a {}.",
        begin, archives, thousands(luck.replicas), luck.numbers ? "un numero che copre" : "una formula che copre",
        casesText(luck.best), mean);
  return fmt::format("{} {} archivi sorteggiati, {}: la sola fortuna arriva in media a {}.", begin, archives,
                     whoReaches(luck.reaching(), luck.archives(), luck.best, luck.numbers), mean);
}

}  // namespace

std::string thousands(std::int64_t value) {
  return figureText(static_cast<double>(value));
}

std::string oneDecimal(double value) {
  return figureText(value, 1);
}

std::string luckSentence(const LuckOfBest& luck) {
  return sentence(luck, "Su");
}

std::string luckSoFar(const LuckOfBest& luck) {
  return sentence(luck, "Finora, su");
}

std::string shortLuck(const LuckOfBest& luck) {
  const std::string archives = thousands(luck.archives()), cases = casesText(luck.best), mean = oneDecimal(luck.mean);
  if (luck.reached == 0)
    return fmt::format("Solo il tuo archivio su {} arriva a {}, la fortuna in media a {}", archives, cases, mean);
  if (luck.reached >= luck.replicas)
    return fmt::format("Tutti i {} archivi arrivano a {}, la fortuna in media a {}", archives, cases, mean);
  return fmt::format("{} archivi su {} arrivano a {}, la fortuna in media a {}", thousands(luck.reaching()), archives,
                     cases, mean);
}

std::string luckOfLongerSeries(const LuckOfBest& luck) {
  const Interval bounds = clopperPearson(luck.reached, luck.replicas);
  const auto of = [&](double share) { return thousands(std::llround(share * luck.archives())); };
  return fmt::format("Con molti più sorteggi sarebbero, 19 volte su 20, fra {} e {} su {}.", of(bounds.low),
                     of(bounds.high), thousands(luck.archives()));
}

std::string luckOfRow(const LuckOfCount& luck, int replicas, bool first, bool numbers) {
  const int archives = replicas + 1;
  const auto reaching = static_cast<int>(std::lround(luck.p * archives));
  const std::string who = whoReaches(reaching, archives, luck.count, numbers);
  if (first) return fmt::format("Su {} archivi sorteggiati, {}.", thousands(archives), who);
  return fmt::format("Su {} archivi sorteggiati, {}, tolt{} che qui ne coprono di più.", thousands(archives), who,
                     numbers ? "i i numeri" : "e le formule");
}

std::string searchesTried(int searches) {
  return counted(searches, "ricerca", "ricerche") + " su questi casi.";
}

}  // namespace trv5
