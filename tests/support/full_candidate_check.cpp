#include "support/full_candidate_check.h"

#include "cases/case_rows.h"
#include "core/text.h"
#include "engine/colouring.h"
#include "engine/formula_tables.h"
#include "engine/verification.h"

namespace trv5 {
namespace {

void copyTexts(const Grid& from, Grid& to) {
  to.setRows(1);
  to.setRows(from.rows());
  for (int row = 1; row < from.rows(); ++row)
    for (int c = 0; c < from.columns(); ++c) to.setText(row, c, from.text(row, c));
}

void verifyTable(Workbench& w, Table table) {
  if (w.Ch_Scoperti.checked())
    verificaPerCc(w, table);
  else
    verificaTutte(w, table);
}

}  // namespace

void fullCandidateCheck(Workbench& w, Table table) {
  if (w.FgF.rows() < 2) return;
  Grid& formulas = w.formulas(table);
  const int column = traitsOf(table).markColumn - 17;
  const Grid::Batch candidates(w.FgF), cases(w.FgEv), target(formulas), hits(w.hits(table)), numbers(w.Fg15),
      totals(w.FgSSS), panel(w.Fg_Stat), chart(w.Fg_Graf);
  w.List1.clear();
  w.List1.add(timeText(w.shell().now()));
  w.CasiEsclusi = {};
  for (int row = 1; row < w.FgEv.rows(); ++row)
    w.CasiEsclusi[static_cast<std::size_t>(row)] = isCovered(w, row, traitsOf(table).markColumn);
  copyTexts(formulas, w.Fg99);
  const int rowsBefore = table == Table::Lunghetta ? formulas.rows() : 1;
  const bool refused = table == Table::Lunghetta && formulas.dataRows() > 10;
  if (refused) verifyTable(w, table);  // its message, once a press
  w.shell().progress(0, w.FgF.dataRows());
  for (int row = 1; row < w.FgF.rows(); ++row) {
    formulas.setRows(rowsBefore);
    w.FgF.setCurrent(row, w.FgF.currentColumn());
    if (!refused) {
      AggiungePrevisione(w, table);
      verifyTable(w, table);
    }
    if (w.FgSSS.number(1, column) != w.FgF.number(row, 13)) w.FgF.setBack(row, 13, VerdeMedio);
    w.FgF.setText(row, 13, w.FgSSS.text(1, column));
    w.FgF.setText(row, 12, w.FgSSS.text(0, column));
  }
  w.shell().progress(w.FgF.dataRows(), w.FgF.dataRows());
  formulas.setRows(1);
  if (w.Fg99.rows() > 1) {
    copyTexts(w.Fg99, formulas);
    if (table == Table::Lunghetta)
      Colora_fg00(w);
    else
      coloraFormule(formulas);
    if (!refused) verificaTutte(w, table);
  } else {
    (table == Table::Terni ? w.FgZ3 : w.FgZ2).cutToHeading();
    clearMarks(w, traitsOf(table).markColumn);
  }
  w.List1.add(timeText(w.shell().now()));
}

}  // namespace trv5
