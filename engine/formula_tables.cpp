#include "engine/formula_tables.h"

#include <string>

#include "cases/case_rows.h"
#include "cases/formula_rows.h"
#include "cases/status_texts.h"
#include "core/text.h"
#include "engine/colouring.h"
#include "engine/verification.h"

namespace trv5 {
namespace {

std::string tableHolds(Table table, int formulas) {
  return std::string(traitsOf(table).caption) + ": " +
         (formulas == 0 ? "nessuna formula" : counted(formulas, "formula", "formule"));
}

// Empty where the current row of the search can be added.
std::string whyNotAdded(const Workbench& w, Table table) {
  if (w.FgF.current() < 1) return chooseRowFirst("della ricerca");
  if (w.formulas(table).dataRows() >= traitsOf(table).mostFormulas)
    return tableHolds(table, w.formulas(table).dataRows()) + ", di più non ne tiene";
  if (isBlank(readFormula(w.FgF, w.FgF.current()))) return "La riga scelta è vuota";
  return {};
}

}  // namespace

void AggiungePrevisione(Workbench& w, Table table) {
  Grid& target = w.formulas(table);
  const int from = w.FgF.current();
  const std::string reason = whyNotAdded(w, table);
  if (!reason.empty()) {
    w.shell().status(reason);
    return;
  }
  const Grid::Batch batch(target);
  const int row = target.appendRow();
  for (int column = 0; column < w.FgF.columns(); ++column) target.setText(row, column, w.FgF.text(from, column));
  if (table == Table::Lunghetta) numeraFg00(w);
  target.setNumber(row, formula_column::kSorte, traitsOf(table).code);
  w.shell().status(tableHolds(table, target.dataRows()));
  if (w.ChVerifica.checked()) verificaTutte(w, table);
}

void RimuoveFormula(Workbench& w, Table table) {
  Grid& formulas = w.formulas(table);
  if (formulas.current() < 1) {
    w.shell().status(chooseRowFirst(table));
    return;
  }
  formulas.removeRow(formulas.current());
  if (table == Table::Lunghetta) numeraFg00(w);
  w.shell().status(tableHolds(table, formulas.dataRows()));
}

void SvuotaTabella(Workbench& w, Table table) {
  w.formulas(table).cutToHeading();
  w.hits(table).cutToHeading();
  clearMarks(w, traitsOf(table).markColumn);
  w.shell().status(tableHolds(table, 0));
}

}  // namespace trv5
