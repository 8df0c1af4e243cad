#pragma once

#include <vector>

#include "cases/workbench.h"
#include "method/method.h"

namespace trv5 {

/// The method as it stands on the workbench: wheels of play, colpi, reference draw and sorte as the verifications take
/// them, the formulas of the four tables. The situation is that of the last detection.
Method methodOf(const Workbench& w);

/// The situation that the state holds.
Situation situationOf(const Workbench& w);

/// The draws after a case that count, up to the reference draw, on the wheels of play.
PlayWindow playWindow(const Workbench& w);

/// The numbers in play of each case into `NumeriInGioco` and `Fg15`.
void writeNumbersInPlay(Workbench& w, const std::vector<CaseNumbers>& cases);

}  // namespace trv5
