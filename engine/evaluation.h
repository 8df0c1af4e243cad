#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// Columns of a formula row (`FgF`, `Fg11`, `Fg22`, `Fg33`, `Fg00`, `Fg99`).
namespace formula_column {
inline constexpr int kR1 = 1, kRu1 = 2, kP1 = 3;
inline constexpr int kR2 = 4, kRu2 = 5, kP2 = 6;
inline constexpr int kR3 = 7, kRu3 = 8, kP3 = 9;
inline constexpr int kOperator = 10, kFix = 11, kPres = 12, kCc = 13, kNr = 14, kQn = 15;
inline constexpr int kAlteration = 17, kWheels = 18, kSorte = 21;
}  // namespace formula_column

/// Evaluates the formula of `p` on the draw `p.Estr` into `p.NumeroOttenuto`: 1..90, or the unfolded fix of a pure
/// number. What a step doesn't assign keeps the value of the evaluation before.
void OttieneNumero(const Archive& archive, ParametriFormula& p);

/// Loads the fields of a formula row; elements that the row doesn't have keep the values of the row before.
void caricaParametri(const Grid& formulas, int row, ParametriFormula& p);

/// Rebuilds `FixAmmessi` from `ComboFix`: all fixes for its empty item, else the chosen one alone.
void SettaggioFix(Workbench& w);

/// "Estrae Terzine": allows the 35 triples of positions p1 <= p2 <= p3.
void EstraeTerzine(Workbench& w);

/// Replays all formulas over all cases: `NumeriInGioco` and `Fg15` tell which numbers are in play in each case.
void RicavaElementiReali(Workbench& w);

}  // namespace trv5
