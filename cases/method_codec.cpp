#include "cases/method_codec.h"

#include <string>

#include "cases/formula_rows.h"
#include "cases/result_states.h"
#include "core/text.h"

namespace trv5 {

Method methodOf(const Workbench& w) {
  Method method;
  method.situation = situationOf(w);
  method.wheels = w.RuoteGioco;
  method.colpi = w.Colpi;
  method.reference = w.EstrazioneRiferimento;
  method.sorte = w.ComboSorte.number();
  for (const TableTraits& table : kTables) method.of(table.table) = readFormulas(w.formulas(table.table));
  return method;
}

Situation situationOf(const Workbench& w) {
  return {.kind = situationKindOf(w.TipoRilevazione).value_or(SituationKind::Mensile),
          .reference = w.EstrazioneRiferimento,
          .maxCases = w.MaxCasi,
          .wheel = w.RuotaRilevazione,
          .wheels = w.RuoteRilevazione,
          .positions = w.PosizioniScelte,
          .numbers = w.NumeriScelti,
          .quantity = w.QuantiNumeri,
          .period = w.ValoreMensile,
          .forceLast = w.Ch_ultima.checked(),
          .twoElements = w.Ch_analisi2ruote.checked(),
          .back = w.Retro,
          .quantity1 = w.QNR1,
          .quantity2 = w.QNR2,
          .oneToOne = w.ChDDS.checked(),
          .isotopes = w.Ch_ISO.checked()};
}

PlayWindow playWindow(const Workbench& w) {
  return {.colpi = w.Colpi, .lastDraw = w.EstrazioneRiferimento, .wheels = w.RuoteGioco};
}

void writeNumbersInPlay(Workbench& w, const std::vector<CaseNumbers>& cases) {
  const Grid::Batch batch(w.Fg15);
  for (NumberFlags& flags : w.NumeriInGioco) flags = {};
  w.Fg15.cutToHeading();
  for (std::size_t i = 0; i < cases.size(); ++i) {
    const int row = w.Fg15.appendRow();
    w.Fg15.setNumber(row, 0, row);
    for (const TableTraits& table : kTables) {
      const NumberList& numbers = cases[i][indexOf(table.table)];
      w.NumeriInGioco[static_cast<std::size_t>(row + table.offset)] = numbers.flags();
      std::string cell;
      for (const int number : numbers) {
        if (!cell.empty()) cell += '-';
        cell += twoDigits(number);
      }
      w.Fg15.setText(row, table.numbersColumn, cell);
    }
  }
  noteNumbersInPlay(w);
}

}  // namespace trv5
