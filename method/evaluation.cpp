#include "method/evaluation.h"

namespace trv5 {
namespace {

// What the texts of a formula say.
struct Rules {
  const ElementTable* alteration;  // null for a text that is none
  std::optional<Operator> op;
};

Rules rulesOf(const ParametriFormula& p) {
  return {findElementTable(p.Alteraz), operatorOf(p.Operazione)};
}

// An alteration text that is none leaves the element as the evaluation before left it. A row without wheel or position
// takes its element from a wheel not drawn.
void alter(const Archive& archive, const Rules& rules, int draw, int wheel, int position, int& element) {
  if (rules.alteration == nullptr) return;
  const bool inside = wheel >= 0 && wheel < kWheels && position >= 1 && position <= kPositions;
  element = (*rules.alteration)[inside ? static_cast<std::size_t>(archive.number(draw, wheel, position)) : 0];
}

void addFix(ParametriFormula& p) {
  p.NumeroOttenuto = fold90(p.Fix + p.NumeroOttenuto);
}

void sumOfThree(const Archive& archive, const Rules& rules, ParametriFormula& p) {
  alter(archive, rules, p.Estr, p.R1, p.P1, p.Elem1);
  alter(archive, rules, p.Estr, p.R2, p.P2, p.Elem2);
  alter(archive, rules, p.Estr, p.R3, p.P3, p.Elem3);
  p.N1 = p.Elem1 = zeroAs90(p.Elem1);
  p.N2 = p.Elem2 = zeroAs90(p.Elem2);
  p.N3 = p.Elem3 = zeroAs90(p.Elem3);
  p.NumeroOttenuto = fold90(p.Fix + (p.N1 + p.N2 + p.N3) % 90);
}

void twoElements(const Archive& archive, const Rules& rules, ParametriFormula& p) {
  alter(archive, rules, p.Estr, p.R1, p.P1, p.Elem1);
  alter(archive, rules, p.Estr, p.R2, p.P2, p.Elem2);
  p.N1 = p.Elem1 = zeroAs90(p.Elem1);
  p.N2 = p.Elem2 = zeroAs90(p.Elem2);
  if (rules.op) p.NumeroOttenuto = combine(*rules.op, p.N1, p.N2);
  addFix(p);
}

void evaluateBy(const Rules& rules, const Archive& archive, ParametriFormula& p) {
  if (p.Nr == 0) {
    p.NumeroOttenuto = p.Fix;
  } else if (p.Nr == 1 && p.Qn == 1) {
    alter(archive, rules, p.Estr, p.R1, p.P1, p.NumeroOttenuto);
    addFix(p);
  } else if (p.Nr == 1 && p.Qn == 3) {
    sumOfThree(archive, rules, p);
  } else if (p.Nr == 2 || (p.Nr == 1 && p.Qn == 2)) {
    twoElements(archive, rules, p);
  }
}

}  // namespace

void OttieneNumero(const Archive& archive, ParametriFormula& p) {
  evaluateBy(rulesOf(p), archive, p);
}

void caricaParametri(const FormulaRow& row, ParametriFormula& p) {
  p.R1 = row.elements[0].wheel;
  p.P1 = row.elements[0].position;
  if (row.elements[1].given) {
    p.R2 = row.elements[1].wheel;
    p.P2 = row.elements[1].position;
  }
  if (row.elements[2].given) {
    p.R3 = row.elements[2].wheel;
    p.P3 = row.elements[2].position;
  }
  p.Fix = row.fix;
  p.Operazione = row.operation;
  p.Alteraz = row.alteration;
  p.Nr = row.nr;
  p.Qn = row.qn;
}

Formula::Formula(const FormulaRow& row)
    : m_row(row), m_alteration(findElementTable(row.alteration)), m_operator(operatorOf(row.operation)) {}

int Formula::evaluate(const Archive& archive, int draw, ParametriFormula& carry) const {
  carry.Estr = draw;
  caricaParametri(m_row, carry);
  evaluateBy({m_alteration, m_operator}, archive, carry);
  return carry.NumeroOttenuto;
}

bool Formula::standsAlone() const {
  if (m_row.nr == 0) return true;
  if (m_alteration == nullptr) return false;
  if (m_row.nr == 1 && m_row.qn == 1) return true;
  if (!m_row.elements[1].given) return false;
  if (m_row.nr == 1 && m_row.qn == 3) return m_row.elements[2].given;
  return (m_row.nr == 2 || (m_row.nr == 1 && m_row.qn == 2)) && m_operator.has_value();
}

void valutaRigaRicerca(const Archive& archive, const FormulaRow& row, ParametriFormula& p) {
  if (p.Nr == 0) return;
  Rules rules = rulesOf(p);
  if (rules.op > Operator::Product) rules.op.reset();
  const ParametriFormula loaded = p;
  if (!row.elements[1].given) p.R2 = p.P2 = 0;
  if (!row.elements[2].given) p.R3 = p.P3 = 0;
  evaluateBy(rules, archive, p);
  p.R2 = loaded.R2;
  p.P2 = loaded.P2;
  p.R3 = loaded.R3;
  p.P3 = loaded.P3;
}

}  // namespace trv5
