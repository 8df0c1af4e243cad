#include "engine/formula_tables.h"

#include "engine/colouring.h"
#include "engine/evaluation.h"
#include "engine/hit_rows.h"
#include "engine/verification.h"

namespace trv5 {
namespace {

constexpr int kLunghetta = 6;

int capacity(int sorte) {
  return sorte == kLunghetta ? 10 : 5;
}

}  // namespace

void AggiungePrevisione(Workbench& w, int sorte) {
  using namespace formula_column;
  const TableKind& kind = tableKind(sorte);
  Grid& target = w.*kind.formulas;
  const int from = w.FgF.current();
  if (from < 1 || target.dataRows() >= capacity(sorte)) return;
  if (w.FgF.text(from, kFix).empty() && w.FgF.text(from, kR1).empty()) return;
  const Grid::Batch batch(target);
  const int row = target.appendRow();
  for (int column = 0; column < w.FgF.columns(); ++column) target.setText(row, column, w.FgF.text(from, column));
  if (sorte == kLunghetta) numeraFg00(w);
  target.setNumber(row, kSorte, sorte);
  if (w.ChVerifica.checked()) verificaTutte(w, kind);
}

void RimuoveFormula(Workbench& w, int sorte) {
  Grid& table = w.*tableKind(sorte).formulas;
  if (table.current() < 1) return;
  table.removeRow(table.current());
  if (sorte == kLunghetta) numeraFg00(w);
}

void SvuotaTabella(Workbench& w, int sorte) {
  const TableKind& kind = tableKind(sorte);
  (w.*kind.formulas).cutToHeading();
  (w.*kind.hits).cutToHeading();
  clearMarks(w, kind.markColumn);
}

}  // namespace trv5
