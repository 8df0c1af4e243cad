#include "engine/formula_tables.h"

#include "cases/case_rows.h"
#include "cases/formula_rows.h"
#include "engine/colouring.h"
#include "engine/verification.h"

namespace trv5 {

void AggiungePrevisione(Workbench& w, Table table) {
  Grid& target = w.formulas(table);
  const int from = w.FgF.current();
  if (from < 1 || target.dataRows() >= traitsOf(table).mostFormulas) return;
  if (isBlank(readFormula(w.FgF, from))) return;
  const Grid::Batch batch(target);
  const int row = target.appendRow();
  for (int column = 0; column < w.FgF.columns(); ++column) target.setText(row, column, w.FgF.text(from, column));
  if (table == Table::Lunghetta) numeraFg00(w);
  target.setNumber(row, formula_column::kSorte, traitsOf(table).code);
  if (w.ChVerifica.checked()) verificaTutte(w, table);
}

void RimuoveFormula(Workbench& w, Table table) {
  Grid& formulas = w.formulas(table);
  if (formulas.current() < 1) return;
  formulas.removeRow(formulas.current());
  if (table == Table::Lunghetta) numeraFg00(w);
}

void SvuotaTabella(Workbench& w, Table table) {
  w.formulas(table).cutToHeading();
  w.hits(table).cutToHeading();
  clearMarks(w, traitsOf(table).markColumn);
}

}  // namespace trv5
