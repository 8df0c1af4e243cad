#include "cases/case_map.h"

#include <optional>

#include "cases/case_rows.h"
#include "cases/status_texts.h"
#include "core/text.h"

namespace trv5 {
namespace {

constexpr int kLongestMap = 1000;  // span and colpi together must stay below it

// Size of the map's cells by the span of the cases; spans between the steps keep the size of the map before.
std::optional<int> mapCellSize(int span) {
  struct Step {
    int from, to, size;
  };
  constexpr Step kSteps[] = {{1, 100, 180},  {101, 200, 85}, {201, 300, 55},
                             {301, 400, 40}, {401, 500, 25}, {601, 700, 25}};
  for (const Step& step : kSteps)
    if (span >= step.from && span <= step.to) return step.size;
  return std::nullopt;
}

void paintMap(const Workbench& w, Grid& map) {
  const Grid::Batch batch(map);
  const int cases = w.FgEv.dataRows();
  const int oldest = caseDraw(w, cases);
  map.setRows(1);
  map.setColumns(1);
  map.setColumns(caseDraw(w, 1) + w.Colpi - oldest + 1);
  map.setRows(cases + 1);
  for (int column = 1; column < map.columns(); ++column) map.setNumber(0, column, oldest + column - 1);
  for (int row = 1; row <= cases; ++row) {
    map.setNumber(row, 0, row);
    for (int colpo = 1; colpo <= w.Colpi; ++colpo) {
      const int column = caseDraw(w, row) + colpo - oldest + 1;
      if (column < map.columns()) map.setBack(row, column, Rosso);
    }
  }
}

}  // namespace

EvoluzioneGrafica::EvoluzioneGrafica(Shell& shell)
    : Form(shell, "EvoluzioneGrafica", "Evoluzione"), Fg1(*this, "Fg1", "") {}

void MostraMappaCasi(Workbench& w) {
  const int span = numberOf(w.Label5.text());
  if (span + w.Colpi >= kLongestMap) {
    w.shell().message({.text = "Non si possono considerare più di 1000 estrazuioni"});
    return;
  }
  if (!w.FgEv.hasData()) {
    w.shell().status(kNoCases);
    return;
  }
  GridControl& map = w.shell().show("EvoluzioneGrafica").get<GridControl>("Fg1");
  if (const std::optional<int> size = mapCellSize(span)) map.setCellSize(*size);
  paintMap(w, map);
}

std::string mapCellText(const Grid& map, int row, int column) {
  if (row < 1 || row >= map.rows() || column >= map.columns()) return {};
  std::string text = "Caso " + map.text(row, 0);
  if (column < 1) return text;
  text += ", estrazione " + map.text(0, column);
  if (map.back(row, column) != Rosso) return text;
  int colpo = 1;  // the colpi of a case lie side by side
  while (column - colpo > 0 && map.back(row, column - colpo) == Rosso) ++colpo;
  return text + ", colpo " + std::to_string(colpo);
}

}  // namespace trv5
