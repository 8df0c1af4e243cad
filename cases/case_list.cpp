#include "cases/case_list.h"

#include <optional>
#include <string>

#include "cases/case_rows.h"
#include "cases/case_search.h"
#include "cases/selections.h"
#include "core/errors.h"
#include "core/text.h"

namespace trv5 {
namespace {

constexpr int kLongestMap = 1000;  // span and colpi together must stay below it

// Paints green the cells of an element's matching numbers in a panel of the mini list: wheels are its rows 1..11.
void paintElement(const Grid& cases, int row, int wheelColumn, Grid& panel) {
  const int wheel = wheelOfCode(std::string_view(cases.text(row, wheelColumn)).substr(0, 2));
  if (wheel < 0) return;
  for (int p = 1; p <= kPositions; ++p)
    if (cases.back(row, wheelColumn + p) == VerdeMedio) panel.setBack(wheel + 1, p, Verde);
}

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

// The archive may have grown since the reference draw was last moved.
void moveReference(Workbench& w, int draw) {
  if (w.hs1.maximum() < w.archive.UltimaEstrazione()) w.hs1.setMaximum(w.archive.UltimaEstrazione());
  w.hs1.set(draw);
}

void showCase(Workbench& w, int row) {
  Form& mini = w.shell().show("Estrazioni_minielenco");
  mini.get<Scroll>("hs1").set(caseDraw(w, row));
  mini.get<Button>("Command81").press();  // a scroll bar that stands there already whitens nothing
  mini.get<Button>("Command1").press();
  paintElement(w.FgEv, row, case_column::kWheel, mini.get<GridControl>("fG2"));
  if (w.FgEv.number(row, case_column::kDraw2) == 0) return;
  mini.get<Scroll>("Hs2").set(w.FgEv.number(row, case_column::kDraw2));
  mini.get<Button>("Command1").press();
  paintElement(w.FgEv, row, case_column::kWheel2, mini.get<GridControl>("fG3"));
}

}  // namespace

void MostraCaso(Workbench& w, int row) {
  if (row >= 1 && row < w.FgEv.rows()) w.hs1.set(caseDraw(w, row));
}

void VisualizzaEstrazione(Workbench& w) {
  const int row = w.FgEv.current();
  if (row < 1) return;
  try {
    showCase(w, row);
  } catch (const UserError&) {
    // Looking at a case is no work that could be lost: it ends without a word.
  }
}

void MostraMappaCasi(Workbench& w) {
  const int span = numberOf(w.Label5.text());
  if (span + w.Colpi >= kLongestMap) {
    w.shell().message({.text = "Non si possono considerare più di 1000 estrazuioni"});
    return;
  }
  if (!w.FgEv.hasData()) return;
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

void CancellaSegniVerifica(Workbench& w) {
  const Grid::Batch batch(w.FgEv);
  for (int row = 1; row < w.FgEv.rows(); ++row) {
    for (int column = case_column::kHits; column <= case_column::kLunghetta; ++column) {
      w.FgEv.setBack(row, column, kWhite);
      w.FgEv.setText(row, column, "");
    }
  }
  w.FgSSS.clearTexts();
}

void RicercaPerData(Workbench& w) {
  const std::optional<std::string> date =
      w.shell().input({.text = "Ricerca per data GG/MM/AAAA", .title = "Data ?", .placeholder = "GG/MM/AAAA"});
  if (!date || date->empty()) return;
  for (int draw = 1; draw <= w.archive.UltimaEstrazione(); ++draw)
    if (w.archive.DateEstrazioni(draw) == *date) return moveReference(w, draw);
  w.shell().message({.text = "Data non trovata", .title = "Cerca data", .icon = Icon::Information});
}

void RicercaPerIndice(Workbench& w) {
  constexpr int kLowest = 20;
  const std::optional<std::string> answer =
      w.shell().input({.text = "Inserire il n° indice dell'archivio modello.", .title = "Scelta estrazione"});
  if (!answer) return;
  const int draw = numberOf(*answer);
  if (draw >= kLowest && draw <= w.archive.UltimaEstrazione()) moveReference(w, draw);
}

void connectCaseList(Workbench& w) {
  w.button("Command44").onEvent([&w] { RicavaElencoEstrazioni(w); });
  w.FgEv.onCellClick([&w](int row, int) { MostraCaso(w, row); });
  w.button("Command12").onEvent([&w] { VisualizzaEstrazione(w); });
  w.button("Command103").onEvent([&w] { MostraMappaCasi(w); });
  w.button("Command27").onEvent([&w] { CancellaSegniVerifica(w); });
  w.button("Command42_0").onEvent([&w] { CambiaEstrazioneRiferimento(w); });
  w.button("Command42_1").onEvent([&w] { RicercaPerData(w); });
  w.button("Command42_2").onEvent([&w] { RicercaPerIndice(w); });
  w.button("Command42_3").onEvent([&w] { moveReference(w, w.archive.UltimaEstrazione()); });
}

}  // namespace trv5
