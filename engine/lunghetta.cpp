#include "engine/lunghetta.h"

#include "cases/case_rows.h"
#include "cases/hit_rows.h"
#include "cases/method_codec.h"
#include "cases/result_states.h"
#include "cases/status_texts.h"
#include "core/text.h"
#include "engine/colouring.h"
#include "engine/statistics.h"
#include "engine/verification.h"
#include "method/elaboration.h"

namespace trv5 {

void Cmd_Elabora100(Workbench& w) {
  if (!w.Fg00.hasData()) {
    w.shell().status(noFormulas(Table::Lunghetta));
    return;
  }
  if (w.Fg00.dataRows() > traitsOf(Table::Lunghetta).mostFormulas) {
    w.shell().message({.text = "Attenzione si possono elaborare al massimo 10 numeri."});
    return;
  }
  w.TipoVerifica = traitsOf(Table::Lunghetta).code;
  const Elaboration elaborated = elaborate(w.archive, methodOf(w), caseDraws(w), w.Formula);
  w.EsitiPerSorte = elaborated.bySorte;
  writeNumbersInPlay(w, elaborated.numbers);
  w.Sorte = 1;  // a wheel with one number in play has written a row; the sorte asked for decides what marks a case
  const Grid::Batch hitsBatch(w.FgZ100), casesBatch(w.FgEv);
  w.FgZ100.cutToHeading();
  int found = 0;
  for (std::size_t i = 0; i < elaborated.hits.size(); ++i) {
    found += static_cast<int>(elaborated.hits[i].size());
    const int row = static_cast<int>(i) + 1;
    appendHits(w, w.FgZ100, row, elaborated.hits[i], RowColumn::QuantityOfNumbers, HitColour::BySorte);
    if (elaborated.hits[i].empty()) appendMiss(w, w.FgZ100, row);
    if (elaborated.marked[i] > 0) markCovered(w, row, case_column::kLunghetta, elaborated.marked[i]);
  }
  noteElaboration(w);
  markOpenCases(w);
  ContaEsitix(w);
  w.shell().status("Lunghetta elaborata: " + counted(w.FgEv.dataRows(), "caso", "casi") + ", " +
                   counted(found, "esito", "esiti"));
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
  for (const HitRow& hit : readHits(w.FgZ100, 0))
    if (valid(hit.caseRow) && !w.CasiCoperti[static_cast<std::size_t>(hit.caseRow)] && hit.row == w.Sorte - 1)
      w.CasiQuasi[static_cast<std::size_t>(hit.caseRow)] = true;
}

void CopiaFormule(Workbench& w) {
  {
    const Grid::Batch batch(w.Fg00);
    w.Fg00.cutToHeading();
    for (const Table table : {Table::Ambate, Table::Ambi, Table::Terni}) {
      const Grid& source = w.formulas(table);
      for (int from = 1; from < source.rows(); ++from) {
        const int row = w.Fg00.appendRow();
        for (int column = 0; column < source.columns(); ++column)
          w.Fg00.setText(row, column, source.text(from, column));
      }
    }
    Colora_fg00(w);
  }
  verificaTutte(w, Table::Lunghetta);
  w.shell().status(w.Fg00.hasData() ? "Copiate in Lunghetta: " + counted(w.Fg00.dataRows(), "formula", "formule")
                                    : "Nessuna formula da copiare in Lunghetta");
}

void MostraVistaEstesa(Workbench& w) {
  GridControl& shown = w.shell().show("ElencoRiscontri").get<GridControl>("Fg1");
  shown.grid() = w.FgZ0;
  shown.setCurrent(-1);
  shown.setMerged({0, 1, 2});
}

}  // namespace trv5
