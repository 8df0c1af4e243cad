#include "engine/lunghetta.h"

#include <algorithm>

#include "core/text.h"
#include "engine/colouring.h"
#include "engine/evaluation.h"
#include "engine/hit_rows.h"
#include "engine/statistics.h"
#include "engine/verification.h"

namespace trv5 {
namespace {

constexpr int kMostNumbers = 10;
constexpr int kNumbersOfLunghetta = 6;  // column of Fg15

NumberFlags numbersInPlay(const Workbench& w, int caseRow) {
  NumberFlags flags{};
  for (int n : numbersEveryThree(w.Fg15.text(caseRow, kNumbersOfLunghetta)))
    if (n >= 1 && n <= kMostNumber) flags[static_cast<std::size_t>(n)] = true;
  return flags;
}

}  // namespace

void Cmd_Elabora100(Workbench& w) {
  if (!w.Fg00.hasData()) return;
  if (w.Fg00.dataRows() > kMostNumbers) {
    w.shell().message({.text = "Attenzione si possono elaborare al massimo 10 numeri."});
    return;
  }
  const int wanted = w.ComboSorte.number();
  w.TipoVerifica = 6;
  w.EsitiPerSorte = {};
  RicavaElementiReali(w);
  w.Sorte = 1;  // a wheel with one number in play writes a row already; `wanted` decides what reaches the sorte
  const Grid::Batch hitsBatch(w.FgZ100), casesBatch(w.FgEv);
  w.FgZ100.cutToHeading();
  for (int i = 1; i < w.FgEv.rows(); ++i) {
    const NumberFlags inPlay = numbersInPlay(w, i);
    const Hits hits = hitsOfAll(w.archive, caseDraw(w, i), playWindow(w), inPlay, w.Sorte);
    for (const Hit& hit : hits) ++w.EsitiPerSorte[static_cast<std::size_t>(hit.count)];
    appendHits(w, w.FgZ100, i, hits, RowColumn::QuantityOfNumbers, HitColour::BySorte);
    if (hits.empty()) appendMiss(w, w.FgZ100, i);
    const auto reached = std::count_if(hits.begin(), hits.end(), [&](const Hit& hit) { return hit.count >= wanted; });
    // The last wheel looked at decides, not the best of the case: users' methods rely on it.
    if (reached >= 1 && matchesOnLastWheel(w.archive, caseDraw(w, i), playWindow(w), inPlay) >= 2)
      markCovered(w, i, case_column::kLunghetta, static_cast<int>(reached));
  }
  markOpenCases(w);
  ContaEsitix(w);
}

void PreparaPerScoperti(Workbench& w) {
  w.CasiCoperti = {};
  w.CasiQuasi = {};
  const auto valid = [](int caseRow) { return caseRow >= 0 && caseRow <= kMostCases; };
  for (int row = 1; row < w.FgEv.rows(); ++row) {
    const int caseRow = w.FgEv.number(row, case_column::kProg);
    if (valid(caseRow) && isCovered(w, row, case_column::kLunghetta))
      w.CasiCoperti[static_cast<std::size_t>(caseRow)] = true;
  }
  for (int row = 1; row < w.FgZ100.rows(); ++row) {
    const int caseRow = w.FgZ100.number(row, hit_column::kCase);
    if (valid(caseRow) && !w.CasiCoperti[static_cast<std::size_t>(caseRow)] &&
        w.FgZ100.number(row, hit_column::kRow) == w.Sorte - 1)
      w.CasiQuasi[static_cast<std::size_t>(caseRow)] = true;
  }
}

void CopiaFormule(Workbench& w) {
  {
    const Grid::Batch batch(w.Fg00);
    w.Fg00.cutToHeading();
    for (const Grid* table : {&w.Fg11.grid(), &w.Fg22.grid(), &w.Fg33.grid()}) {
      for (int from = 1; from < table->rows(); ++from) {
        const int row = w.Fg00.appendRow();
        for (int column = 0; column < table->columns(); ++column)
          w.Fg00.setText(row, column, table->text(from, column));
      }
    }
    Colora_fg00(w);
  }
  verificaTutte(w, tableKind(6));
}

void MostraVistaEstesa(Workbench& w) {
  GridControl& shown = w.shell().show("ElencoRiscontri").get<GridControl>("Fg1");
  shown.grid() = w.FgZ0;
  shown.setCurrent(-1);
  shown.setMerged({0, 1, 2});
}

}  // namespace trv5
