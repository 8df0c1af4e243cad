#pragma once

#include <optional>
#include <string>

#include "core/archive.h"
#include "method/formula.h"
#include "method/formula_row.h"

namespace trv5 {

/// The working record of one evaluation of a formula. One record serves the whole workbench: a field that an evaluation
/// doesn't assign keeps the value of the evaluation before, and users' saved methods rely on it.
struct ParametriFormula {
  int Estr = 0;        ///< draw index of the case
  int R1 = 0, P1 = 0;  ///< wheel 0..10 and position 1..5 of each element
  int R2 = 0, P2 = 0;
  int R3 = 0, P3 = 0;
  int Fix = 0;             ///< 0 = no fix
  std::string Operazione;  ///< operator literal
  std::string Alteraz;     ///< alteration literal
  int Nr = 0, Qn = 0;      ///< number of wheels (0 = pure number), numbers taken per wheel
  int NumeroOttenuto = 0;  ///< the result; also the carried value when nothing assigns it
  int Elem1 = 0, Elem2 = 0, Elem3 = 0;
  int N1 = 0, N2 = 0, N3 = 0;  ///< the elements after the zero rule

  bool operator==(const ParametriFormula&) const = default;
};

/// Evaluates the formula of `p` on the draw `p.Estr` into `p.NumeroOttenuto`: 1..90, or the unfolded fix of a pure
/// number. What a step doesn't assign keeps the value of the evaluation before.
void OttieneNumero(const Archive& archive, ParametriFormula& p);

/// Loads the fields of a formula row; elements that the row doesn't have keep the values of the row before.
void caricaParametri(const FormulaRow& row, ParametriFormula& p);

/// A formula ready to be evaluated on many draws: its texts are looked up once.
class Formula {
 public:
  explicit Formula(const FormulaRow& row);

  /// Loads the row into the record and evaluates it on a draw; returns `carry.NumeroOttenuto`.
  int evaluate(const Archive& archive, int draw, ParametriFormula& carry) const;
  /// True when the value doesn't hang on the evaluation before.
  bool standsAlone() const;
  const FormulaRow& row() const { return m_row; }

 private:
  FormulaRow m_row;
  const ElementTable* m_alteration;  ///< null for a text that is none
  std::optional<Operator> m_operator;
};

/// Evaluates a row of a search that is no formula yet, loaded before, on the draw `p.Estr`. Elements that the row
/// doesn't have are 0 here; of the operators it knows the first four, a row with another keeps the value of the
/// evaluation before and adds its fix again; a pure number isn't evaluated at all. Users rely on all three.
void valutaRigaRicerca(const Archive& archive, const FormulaRow& row, ParametriFormula& p);

}  // namespace trv5
