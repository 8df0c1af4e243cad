#include "engine/colouring.h"

#include "cases/formula_rows.h"
#include "cases/hit_rows.h"
#include "core/text.h"

namespace trv5 {
namespace {

void colourFormulas(Grid& formulas, Rgb counters) {
  using namespace formula_column;
  const Grid::Batch batch(formulas);
  for (int row = 1; row < formulas.rows(); ++row) {
    for (int column = 0; column < formulas.columns(); ++column) {
      const Cell colours = formulaColours(column);
      if (colours.back != kWhite) formulas.setBack(row, column, colours.back);
      if (colours.fore != kBlack) formulas.setFore(row, column, colours.fore);
      if (colours.bold) formulas.setBold(row, column);
    }
    for (const int column : {kPres, kCc}) formulas.setBack(row, column, counters);
  }
}

}  // namespace

Cell formulaColours(int column) {
  using namespace formula_column;
  Cell colours;
  if (column >= kR1 && column <= kP1) colours.back = GialloChiaro;
  if (column >= kR2 && column <= kP2) colours.back = VerdeChiaro;
  if (column >= kR3 && column <= kP3) colours.back = AranciaChiaro;
  if (column == kPres || column == kCc) colours.back = GialloChiaro;
  if (column == kFix) colours.fore = Rosso;
  if (column == kCc) colours.fore = Blu;
  colours.bold = column == kFix || column == kCc;
  return colours;
}

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
