#include "engine/colouring.h"

#include "cases/formula_rows.h"
#include "cases/hit_rows.h"
#include "core/text.h"

namespace trv5 {
namespace {

void paintColumns(Grid& grid, int row, int from, int to, Rgb colour) {
  for (int column = from; column <= to; ++column) grid.setBack(row, column, colour);
}

void colourFormulas(Grid& formulas, Rgb counters) {
  using namespace formula_column;
  const Grid::Batch batch(formulas);
  for (int row = 1; row < formulas.rows(); ++row) {
    paintColumns(formulas, row, kR1, kP1, GialloChiaro);
    paintColumns(formulas, row, kR2, kP2, VerdeChiaro);
    paintColumns(formulas, row, kR3, kP3, AranciaChiaro);
    paintColumns(formulas, row, kPres, kCc, counters);
    formulas.setFore(row, kFix, Rosso);
    formulas.setBold(row, kFix);
    formulas.setFore(row, kCc, Blu);
    formulas.setBold(row, kCc);
  }
}

}  // namespace

void coloraFormule(Grid& formulas) {
  colourFormulas(formulas, GialloChiaro);
}

void ColoraFgF(Workbench& w) {
  colourFormulas(w.FgF, GialloMedio);
  w.shell().status(w.FgF.hasData() ? "Ricerca colorata: " + counted(w.FgF.dataRows(), "riga", "righe")
                                   : "Nessuna ricerca da colorare");
}

void Colora_fg00(Workbench& w) {
  const Grid::Batch batch(w.Fg00);
  coloraFormule(w.Fg00);
  for (int row = 1; row < w.Fg00.rows(); ++row) w.Fg00.setBold(row, 0);
  numeraFg00(w);
}

void numeraFg00(Workbench& w) {
  for (int row = 1; row < w.Fg00.rows(); ++row) w.Fg00.setNumber(row, 0, row);
}

void coloraEsiti(Workbench& w, Table table) {
  using namespace hit_column;
  Grid& hits = w.hits(table);
  if (table == Table::Ambi || table == Table::Terni) w.Fg15.fitColumns();
  if (!hits.hasData()) return;
  const Grid::Batch batch(hits);
  for (int row = 1; row < hits.rows(); ++row) {
    hits.setBack(row, kCaseDate, GialloChiaro);
    hits.setBack(row, kDraw, GialloChiaro);
    hits.setBack(row, kDate, GialloChiaro);
    hits.setBack(row, kWheelCode, VerdeMedio);
    hits.setBold(row, kWheelCode);
    hits.setBold(row, kColpo);
    for (int column = kNumbers; column < kWheel; ++column) {
      hits.setBold(row, column);
      hits.setFore(row, column, Blu);
    }
  }
  hits.setMerged({kCaseDraw});
}

}  // namespace trv5
