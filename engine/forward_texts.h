#pragma once

#include <string>

#include "chance/forward_test.h"

namespace trv5 {

// What the test forward tells, in words that need no explanation.

/// The year of a test's draw.
int yearOf(const Archive& archive, const ForwardTest& test);

/// "In 812 prove dal 1958 a oggi la formula scelta ogni volta ne ha coperte 331; il caso ne copre in media 326,6."
/// `whole`: the walk wasn't stopped; `toNow`: it ends at the last draw of the archive. There is a test at least.
std::string forwardSentence(const Archive& archive, const ForwardFigures& figures, bool whole, bool toNow);

/// "Almeno 331 riescono alla sola fortuna in 39 archivi su 100. Coperte 40,8 prove su 100 (fra 37,4 e 44,2); dal caso
/// 40,2."
std::string forwardDetails(const ForwardFigures& figures);

/// The elements of a formula as they fit a narrow column: "FI 2+5", "FI 2+CA 5"; for the operators of digits the digits
/// in their order, "FI 2e5".
std::string briefFormula(const FormulaInput& formula, const ElementSet& elements);

}  // namespace trv5
