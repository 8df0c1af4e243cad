#include "engine/evaluation.h"

#include <array>
#include <optional>

#include "core/numbers.h"
#include "core/text.h"
#include "method/formula.h"

namespace trv5 {
namespace {

// An alteration text that is none leaves the element as the evaluation before left it. A row without wheel or position
// takes its element from a wheel not drawn.
void alter(const Archive& archive, const ParametriFormula& p, int wheel, int position, int& element) {
  const ElementTable* const table = findElementTable(p.Alteraz);
  if (table == nullptr) return;
  const bool inside = wheel >= 0 && wheel < kWheels && position >= 1 && position <= kPositions;
  element = (*table)[inside ? static_cast<std::size_t>(archive.number(p.Estr, wheel, position)) : 0];
}

void addFix(ParametriFormula& p) {
  p.NumeroOttenuto = fold90(p.Fix + p.NumeroOttenuto);
}

void sumOfThree(const Archive& archive, ParametriFormula& p) {
  alter(archive, p, p.R1, p.P1, p.Elem1);
  alter(archive, p, p.R2, p.P2, p.Elem2);
  alter(archive, p, p.R3, p.P3, p.Elem3);
  p.N1 = p.Elem1 = zeroAs90(p.Elem1);
  p.N2 = p.Elem2 = zeroAs90(p.Elem2);
  p.N3 = p.Elem3 = zeroAs90(p.Elem3);
  p.NumeroOttenuto = fold90(p.Fix + (p.N1 + p.N2 + p.N3) % 90);
}

void twoElements(const Archive& archive, ParametriFormula& p) {
  alter(archive, p, p.R1, p.P1, p.Elem1);
  alter(archive, p, p.R2, p.P2, p.Elem2);
  p.N1 = p.Elem1 = zeroAs90(p.Elem1);
  p.N2 = p.Elem2 = zeroAs90(p.Elem2);
  if (const std::optional<Operator> op = operatorOf(p.Operazione)) p.NumeroOttenuto = combine(*op, p.N1, p.N2);
  addFix(p);
}

// The kinds of formula, each with its column of Fg15 and its offset in NumeriInGioco.
struct KindOfFormula {
  const Grid* formulas;
  int column;
  int offset;
};

}  // namespace

void OttieneNumero(const Archive& archive, ParametriFormula& p) {
  if (p.Nr == 0) {
    p.NumeroOttenuto = p.Fix;
  } else if (p.Nr == 1 && p.Qn == 1) {
    alter(archive, p, p.R1, p.P1, p.NumeroOttenuto);
    addFix(p);
  } else if (p.Nr == 1 && p.Qn == 3) {
    sumOfThree(archive, p);
  } else if (p.Nr == 2 || (p.Nr == 1 && p.Qn == 2)) {
    twoElements(archive, p);
  }
}

void caricaParametri(const Grid& formulas, int row, ParametriFormula& p) {
  using namespace formula_column;
  p.R1 = formulas.number(row, kR1);
  p.P1 = formulas.number(row, kP1);
  if (!formulas.text(row, kR2).empty()) {
    p.R2 = formulas.number(row, kR2);
    p.P2 = formulas.number(row, kP2);
  }
  if (!formulas.text(row, kR3).empty()) {
    p.R3 = formulas.number(row, kR3);
    p.P3 = formulas.number(row, kP3);
  }
  p.Fix = formulas.number(row, kFix);
  p.Operazione = formulas.text(row, kOperator);
  p.Alteraz = formulas.text(row, kAlteration);
  p.Nr = formulas.number(row, kNr);
  p.Qn = formulas.number(row, kQn);
}

void SettaggioFix(Workbench& w) {
  const int chosen = w.ComboFix.index();
  for (int fix = 1; fix <= kMostNumber; ++fix)
    w.FixAmmessi[static_cast<std::size_t>(fix)] = chosen <= 0 || fix == chosen;
}

void EstraeTerzine(Workbench& w) {
  w.TerzineAmmesse = {};
  for (std::size_t p1 = 1; p1 <= kPositions; ++p1)
    for (std::size_t p2 = p1; p2 <= kPositions; ++p2)
      for (std::size_t p3 = p2; p3 <= kPositions; ++p3) w.TerzineAmmesse[p1][p2][p3] = true;
}

void RicavaElementiReali(Workbench& w) {
  const std::array<KindOfFormula, 4> kinds = {
      {{&w.Fg11, 1, 0}, {&w.Fg22, 2, 50}, {&w.Fg33, 3, 100}, {&w.Fg00, 6, 250}}};
  const Grid::Batch batch(w.Fg15);
  for (NumberFlags& flags : w.NumeriInGioco) flags = {};
  w.Fg15.cutToHeading();
  for (int i = 1; i < w.FgEv.rows(); ++i) {
    w.Formula.Estr = caseDraw(w, i);
    const int row = w.Fg15.appendRow();
    w.Fg15.setNumber(row, 0, i);
    for (const KindOfFormula& kind : kinds) {
      NumberFlags& inPlay = w.NumeriInGioco[static_cast<std::size_t>(i + kind.offset)];
      std::string cell;
      for (int r = 1; r < kind.formulas->rows(); ++r) {
        caricaParametri(*kind.formulas, r, w.Formula);
        OttieneNumero(w.archive, w.Formula);
        const int number = w.Formula.NumeroOttenuto;
        if (number < 0 || number > kMostNumber || inPlay[static_cast<std::size_t>(number)]) continue;
        inPlay[static_cast<std::size_t>(number)] = true;
        if (!cell.empty()) cell += '-';
        cell += twoDigits(number);
      }
      w.Fg15.setText(row, kind.column, cell);
    }
  }
}

}  // namespace trv5
