#pragma once

#include <cstdint>
#include <string>

#include "chance/search_luck.h"

namespace trv5 {

// How much of a result is luck, in words for a player who never heard of a probability. An own archive counts among the
// others: of 999 that are drawn the user reads "su 1.000 archivi".

/// "9.999".
std::string thousands(std::int64_t value);
/// With one decimal: "22,4".
std::string oneDecimal(double value);

/// How the best of a search stands among archives drawn by luck.
struct LuckOfBest {
  int best = 0;          ///< cases that the own best row covers, 1 or more
  int reached = 0;       ///< replicas whose best covers so many or more
  int replicas = 0;      ///< drawn, 1 or more
  double mean = 0;       ///< of the best on the replicas
  bool numbers = false;  ///< the rows are numbers, not formulas

  int archives() const { return replicas + 1; }
  int reaching() const { return reached + 1; }  ///< with the own one
  /// At most 50 of 1,000 archives reach it: then alone luck isn't the plain explanation.
  bool rare() const { return 20 * static_cast<std::int64_t>(reaching()) <= archives(); }
};

/// "Su 1.000 archivi sorteggiati, 411 hanno una formula che copre almeno 23 casi: la sola fortuna arriva in media a
/// 22,4."
std::string luckSentence(const LuckOfBest& luck);
/// The same of a run that isn't over: it begins with "Finora".
std::string luckSoFar(const LuckOfBest& luck);
/// "411 archivi su 1.000 arrivano a 23 casi, la fortuna in media a 22,4".
std::string shortLuck(const LuckOfBest& luck);
/// How sure that is: what a much longer series would tell.
std::string luckOfLongerSeries(const LuckOfBest& luck);
/// What luck makes of a count of the ranking; `first`: nothing covers more.
std::string luckOfRow(const LuckOfCount& luck, int replicas, bool first, bool numbers);
/// "7 ricerche su questi casi."
std::string searchesTried(int searches);

}  // namespace trv5
