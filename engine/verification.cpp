#include "engine/verification.h"

#include <functional>
#include <set>
#include <string>

#include "cases/case_rows.h"
#include "cases/formula_rows.h"
#include "cases/hit_rows.h"
#include "cases/method_codec.h"
#include "cases/result_states.h"
#include "cases/selections.h"
#include "cases/status_texts.h"
#include "core/text.h"
#include "engine/colouring.h"
#include "engine/lunghetta.h"
#include "engine/statistics.h"
#include "engine/table_luck.h"
#include "method/verification.h"

namespace trv5 {
namespace {

// False when there is nothing to verify, which the status line says, or when the table holds too much, with a message.
bool canBeVerified(Workbench& w, Table table) {
  if (!w.formulas(table).hasData()) {
    w.shell().status(noFormulas(table));
    return false;
  }
  if (table != Table::Lunghetta || w.Fg00.dataRows() <= traitsOf(table).mostFormulas) return true;
  w.shell().message({.text = "Attenzione si possono elaborare al massimo 10 numeri. Rimuovere le formule in eccesso"});
  return false;
}

// Verifies the table and leaves what every verification leaves: its kind, its counters, the numbers in play.
Verification verifyTable(Workbench& w, Table table, const Scope& scope) {
  const Method method = methodOf(w);
  w.TipoVerifica = traitsOf(table).code;
  if (table == Table::Lunghetta) w.Sorte = method.sorte;
  Verification verified = verify(w.archive, method, table, caseDraws(w), scope, w.Formula);
  w.EsitiPerSorte = verified.bySorte;
  writeNumbersInPlay(w, verified.numbers);
  return verified;
}

// `beyond`: on to the end of the archive.
void writeHits(Workbench& w, Table table, const Verification& verified, bool marks, bool beyond = false) {
  Grid& target = w.hits(table);
  const HitColour colour = table == Table::Lunghetta ? HitColour::BySorte : HitColour::Green;
  target.cutToHeading();
  for (std::size_t i = 0; i < verified.hits.size(); ++i) {
    if (!verified.played[i]) continue;
    const int row = static_cast<int>(i) + 1;
    const Hits& hits = verified.hits[i];
    appendHits(w, target, row, hits, RowColumn::RunningCount, colour);
    if (hits.empty())
      appendMiss(w, target, row);
    else if (marks)
      markCovered(w, row, traitsOf(table).markColumn, static_cast<int>(hits.size()));
  }
  noteHits(w, table, beyond);
  if (marks) noteMarks(w, traitsOf(table).markColumn, {verificationOrigin(w, table, beyond)});
}

// The open cases marked in the list and among the hits; `CasiInCorso`.
std::multiset<int> markOpen(Workbench& w, Table table) {
  markOpenCases(w);
  const std::multiset<int> open = openCases(w);
  w.CasiInCorso = static_cast<int>(open.size());
  markOpenRows(w.hits(table), open);
  return open;
}

// The cases without hit that aren't open.
int countMisses(const Verification& verified, const std::multiset<int>& open) {
  int misses = 0;
  for (std::size_t i = 0; i < verified.hits.size(); ++i)
    if (verified.played[i] && verified.hits[i].empty() && !open.contains(static_cast<int>(i) + 1)) ++misses;
  return misses;
}

std::vector<bool> excludedCases(const Workbench& w) {
  std::vector<bool> excluded;
  for (int row = 1; row < w.FgEv.rows(); ++row) excluded.push_back(w.CasiEsclusi[static_cast<std::size_t>(row)]);
  return excluded;
}

// The wheels of play become those that the row brings.
void playWheelsOfRow(Workbench& w, const FormulaRow& row) {
  for (int wheel = 0; wheel < kWheels; ++wheel) w.FgRG.setBack(0, wheel, holds(row.wheels, wheel) ? Verde : kWhite);
}

void writeRowHits(Workbench& w, const RowVerification& verified) {
  w.FgZ1.cutToHeading();
  for (std::size_t i = 0; i < verified.hits.size(); ++i) {
    const int row = static_cast<int>(i) + 1;
    const Hits& hits = verified.hits[i];
    appendHits(w, w.FgZ1, row, hits, RowColumn::RunningCount, HitColour::Green);
    if (hits.empty())
      w.FgZ1.setNumber(appendMiss(w, w.FgZ1, row), hit_column::kNumbers, verified.numbers[i]);
    else
      markCovered(w, row, case_column::kHits + w.Sorte - 1, static_cast<int>(hits.size()));
  }
  coloraEsiti(w, Table::Ambate);
}

void verificaRiga(Workbench& w, const Grid& formulas, const std::string& missing,
                  const std::function<void(const FormulaRow& row, ParametriFormula& p)>& evaluate) {
  if (formulas.current() < 1) {
    w.shell().status(missing);
    return;
  }
  const FormulaRow row = readFormula(formulas, formulas.current());
  const Grid::Batch hitsBatch(w.FgZ1), casesBatch(w.FgEv), wheelsBatch(w.FgRG);
  if (w.Check3.checked()) playWheelsOfRow(w, row);
  RicavaRuoteGioco(w);
  w.Sorte = w.ComboSorte.index() + 1;
  caricaParametri(row, w.Formula);
  writeRowHits(
      w, verifyRow(w.archive, playWindow(w), caseDraws(w), w.Formula, [&](ParametriFormula& p) { evaluate(row, p); }));
  noteTriedRow(w, row);
  w.shell().status("Verifica riga selezionata: " + counted(w.FgEv.dataRows(), "caso", "casi"));
}

}  // namespace

void verificaTutte(Workbench& w, Table table) {
  if (!canBeVerified(w, table)) return;
  const TableTraits& traits = traitsOf(table);
  const Grid::Batch hitsBatch(w.hits(table)), casesBatch(w.FgEv);
  const Verification verified = verifyTable(w, table, {});
  clearMarks(w, traits.markColumn);
  writeHits(w, table, verified, true);
  const std::multiset<int> open = markOpen(w, table);
  coloraEsiti(w, table);
  CreaStatistica(w);
  ContaEsitix(w);
  // The elaboration of the lunghetta counts anew what the panel then shows as covered.
  if (table == Table::Lunghetta) Cmd_Elabora100(w);
  scriveStatistica(w, traits.section, w.FgSSS.text(1, traits.markColumn - case_column::kHits), verified.totals.hits,
                   countMisses(verified, open));
  PopolaGrafico(w);
  noteStatistics(w, w.hits(table));
  NotaFortunaTabella(w, table, verified.numbers);
  w.shell().status("Verifica tutte le righe: " + counted(w.FgEv.dataRows(), "caso", "casi") + ", " +
                   counted(verified.totals.hits, "esito", "esiti"));
}

void verificaPerCc(Workbench& w, Table table) {
  if (!canBeVerified(w, table)) return;
  const Grid::Batch hitsBatch(w.hits(table)), casesBatch(w.FgEv);
  const Verification verified = verifyTable(w, table, {.leftOut = excludedCases(w)});
  w.CasiVerificati = {};
  for (std::size_t i = 0; i < verified.hits.size(); ++i) w.CasiVerificati[i + 1] = verified.covered(i);
  clearMarks(w, traitsOf(table).markColumn);
  writeHits(w, table, verified, true);
  markOpen(w, table);
  coloraEsiti(w, table);
  ContaEsitix(w);
  if (table == Table::Lunghetta) Cmd_Elabora100(w);
}

void verificaOltreLimite(Workbench& w, Table table) {
  if (!canBeVerified(w, table)) return;
  const TableTraits& traits = traitsOf(table);
  const Grid::Batch hitsBatch(w.hits(table)), casesBatch(w.FgEv);
  Scope scope{.lastDraw = w.archive.UltimaEstrazione()};
  for (int row = 1; row < w.FgEv.rows(); ++row) scope.leftOut.push_back(!isOpen(w, row));
  const Verification verified = verifyTable(w, table, scope);
  if (traits.clearsMarksBeyondLimit) clearMarks(w, traits.markColumn);
  writeHits(w, table, verified, traits.marksBeyondLimit, true);
  coloraEsiti(w, table);
  markOpenCases(w);
  azzeraStatistiche(w);
  w.shell().status("Verifica oltre limite: " + counted(w.hits(table).dataRows(), "riga", "righe"));
}

void verificaRigaFormula(Workbench& w) {
  verificaRiga(w, w.Fg11, chooseRowFirst(Table::Ambate),
               [&w](const FormulaRow&, ParametriFormula& p) { OttieneNumero(w.archive, p); });
}

void verificaRigaRicerca(Workbench& w) {
  verificaRiga(w, w.FgF, chooseRowFirst("della ricerca"),
               [&w](const FormulaRow& row, ParametriFormula& p) { valutaRigaRicerca(w.archive, row, p); });
}

}  // namespace trv5
