#include "engine/verification.h"

#include <algorithm>
#include <array>
#include <functional>
#include <stdexcept>
#include <string>

#include "cases/selections.h"
#include "core/numbers.h"
#include "core/text.h"
#include "engine/colouring.h"
#include "engine/evaluation.h"
#include "engine/hit_rows.h"
#include "engine/lunghetta.h"
#include "engine/statistics.h"
#include "method/formula.h"

namespace trv5 {
namespace {

constexpr int kLunghettaCode = 6;
constexpr int kMostLunghetta = 10;

bool tooManyForLunghetta(Workbench& w, const TableKind& kind) {
  if (kind.code != kLunghettaCode || w.Fg00.dataRows() <= kMostLunghetta) return false;
  w.shell().message({.text = "Attenzione si possono elaborare al massimo 10 numeri. Rimuovere le formule in eccesso"});
  return true;
}

// The common start: what kind runs, its counters, the numbers in play, an empty hit grid.
void begin(Workbench& w, const TableKind& kind) {
  w.TipoVerifica = kind.code;
  w.EsitiPerSorte = {};
  if (kind.code == kLunghettaCode) w.Sorte = w.ComboSorte.number();
  RicavaElementiReali(w);
  (w.*kind.hits).cutToHeading();
}

std::vector<int> sortedNumbers(const std::string& cell) {
  std::vector<int> numbers;
  for (int n : numbersEveryThree(cell))
    if (n <= kMostNumber) numbers.push_back(n);
  std::sort(numbers.begin(), numbers.end());
  return numbers;
}

// Goes through the cases that `plays` lets through: hit rows, counters, marks. Returns the cases that were hit.
CaseFlags playCases(Workbench& w, const TableKind& kind, const PlayWindow& window, bool marks,
                    const std::function<bool(int caseRow)>& plays) {
  Grid& target = w.*kind.hits;
  const bool bySorte = kind.code == kLunghettaCode;
  CaseFlags hit{};
  for (int i = 1; i < w.FgEv.rows(); ++i) {
    if (!plays(i)) continue;
    const Hits hits = hitsOfCase(w, kind, i, window);
    for (const Hit& h : hits) ++w.EsitiPerSorte[static_cast<std::size_t>(bySorte ? h.count : kind.code)];
    appendHits(w, target, i, hits, RowColumn::RunningCount, bySorte ? HitColour::BySorte : HitColour::Green);
    if (hits.empty())
      appendMiss(w, target, i);
    else if (marks)
      markCovered(w, i, kind.markColumn, static_cast<int>(hits.size()));
    hit[static_cast<std::size_t>(i)] = !hits.empty();
  }
  return hit;
}

void closeStatistics(Workbench& w, const TableKind& kind) {
  scriveStatistica(w, w.*kind.hits, kind.section, w.FgSSS.text(1, kind.markColumn - case_column::kHits));
  PopolaGrafico(w);
}

// The column and colours of a kind, then who is still open: what every verification of all rows ends with.
void closeCases(Workbench& w, const TableKind& kind) {
  markOpenCases(w);
  countOpenCases(w, w.*kind.hits);
}

void verificaRiga(Workbench& w, const Grid& formulas, const std::function<void()>& evaluate) {
  const int row = formulas.current();
  if (row < 1) return;
  const Grid::Batch hitsBatch(w.FgZ1), casesBatch(w.FgEv), wheelsBatch(w.FgRG);
  if (w.Check3.checked()) {
    for (int wheel = 0; wheel < kWheels; ++wheel) w.FgRG.setBack(0, wheel, kWhite);
    const std::string& wheels = formulas.text(row, formula_column::kWheels);
    for (std::size_t at = 0; at < wheels.size(); at += 3)
      for (int wheel = 0; wheel < kWheels; ++wheel)
        if (w.FgRG.text(0, wheel) == wheels.substr(at, 2)) w.FgRG.setBack(0, wheel, Verde);
  }
  RicavaRuoteGioco(w);
  w.Sorte = w.ComboSorte.index() + 1;
  w.FgZ1.cutToHeading();
  caricaParametri(formulas, row, w.Formula);
  const int column = case_column::kHits + w.Sorte - 1;
  for (int i = 1; i < w.FgEv.rows(); ++i) {
    w.Formula.Estr = caseDraw(w, i);
    evaluate();
    const int number = w.Formula.NumeroOttenuto;
    NumberFlags inPlay{};
    if (number >= 1 && number <= kMostNumber) inPlay[static_cast<std::size_t>(number)] = true;
    const Hits hits = hitsOfNumbers(w.archive, w.Formula.Estr, playWindow(w), inPlay);
    appendHits(w, w.FgZ1, i, hits, RowColumn::RunningCount, HitColour::Green);
    if (hits.empty()) {
      w.FgZ1.setNumber(appendMiss(w, w.FgZ1, i), hit_column::kNumbers, number);
    } else {
      markCovered(w, i, column, static_cast<int>(hits.size()));
    }
  }
  coloraEsiti(w.FgZ1);
  w.shell().status("Verifica riga selezionata: " + std::to_string(w.FgEv.dataRows()) + " casi");
}

}  // namespace

const TableKind& tableKind(int code) {
  static const std::array<TableKind, 4> kinds = {
      {{1, "1N", &Workbench::Fg11, &Workbench::FgZ1, 17, {1}, false, false},
       {2, "2N", &Workbench::Fg22, &Workbench::FgZ2, 18, {1, 2}, true, true},
       {3, "3N", &Workbench::Fg33, &Workbench::FgZ3, 19, {1, 2, 3}, true, true},
       {kLunghettaCode, "LU", &Workbench::Fg00, &Workbench::FgZ0, 22, {6}, false, true}}};
  for (const TableKind& kind : kinds)
    if (kind.code == code) return kind;
  throw std::logic_error("no such kind of table");
}

Hits hitsOfCase(const Workbench& w, const TableKind& kind, int caseRow, const PlayWindow& window) {
  const int draw = caseDraw(w, caseRow);
  if (kind.code == 1) return hitsOfNumbers(w.archive, draw, window, w.NumeriInGioco[static_cast<std::size_t>(caseRow)]);
  if (kind.code == kLunghettaCode) {
    NumberFlags inPlay{};
    for (int n : sortedNumbers(w.Fg15.text(caseRow, kind.numberColumns.front())))
      inPlay[static_cast<std::size_t>(n)] = true;
    return hitsOfAll(w.archive, draw, window, inPlay, w.Sorte);
  }
  std::vector<std::vector<int>> lists;
  for (int column : kind.numberColumns) lists.push_back(sortedNumbers(w.Fg15.text(caseRow, column)));
  return hitsOfSets(w.archive, draw, window, lists);
}

void verificaTutte(Workbench& w, const TableKind& kind) {
  if (!(w.*kind.formulas).hasData() || tooManyForLunghetta(w, kind)) return;
  const Grid::Batch hitsBatch(w.*kind.hits), casesBatch(w.FgEv);
  begin(w, kind);
  clearMarks(w, kind.markColumn);
  playCases(w, kind, playWindow(w), true, [](int) { return true; });
  // The lunghetta is coloured after its statistics, and elaborated before the panel is written.
  if (kind.code != kLunghettaCode) coloraEsiti(w.*kind.hits);
  closeCases(w, kind);
  CreaStatistica(w);
  ContaEsitix(w);
  if (kind.code == kLunghettaCode) {
    coloraEsiti(w.*kind.hits);
    Cmd_Elabora100(w);
  }
  closeStatistics(w, kind);
  w.shell().status("Verifica tutte le righe: " + std::to_string(w.FgEv.dataRows()) + " casi, " + w.Fg_Stat.text(3, 1) +
                   " esiti");
}

void verificaPerCc(Workbench& w, const TableKind& kind) {
  if (!(w.*kind.formulas).hasData() || tooManyForLunghetta(w, kind)) return;
  const Grid::Batch hitsBatch(w.*kind.hits), casesBatch(w.FgEv);
  begin(w, kind);
  clearMarks(w, kind.markColumn);
  w.CasiVerificati =
      playCases(w, kind, playWindow(w), true, [&w](int i) { return !w.CasiEsclusi[static_cast<std::size_t>(i)]; });
  if (kind.code != kLunghettaCode) coloraEsiti(w.*kind.hits);
  closeCases(w, kind);
  ContaEsitix(w);
  if (kind.code == kLunghettaCode) {
    coloraEsiti(w.*kind.hits);
    Cmd_Elabora100(w);
  }
}

void verificaOltreLimite(Workbench& w, const TableKind& kind) {
  if (!(w.*kind.formulas).hasData() || tooManyForLunghetta(w, kind)) return;
  const Grid::Batch hitsBatch(w.*kind.hits), casesBatch(w.FgEv);
  begin(w, kind);
  if (kind.clearsMarksBeyondLimit) clearMarks(w, kind.markColumn);
  PlayWindow window = playWindow(w);
  window.lastDraw = w.archive.UltimaEstrazione();
  playCases(w, kind, window, kind.marksBeyondLimit,
            [&w](int i) { return w.FgEv.back(i, case_column::kDraw) == Ciano; });
  coloraEsiti(w.*kind.hits);
  markOpenCases(w);
  azzeraStatistiche(w);
  w.shell().status("Verifica oltre limite: " + std::to_string((w.*kind.hits).dataRows()) + " righe");
}

void verificaRigaFormula(Workbench& w) {
  verificaRiga(w, w.Fg11, [&w] { OttieneNumero(w.archive, w.Formula); });
}

void verificaRigaRicerca(Workbench& w) {
  verificaRiga(w, w.FgF, [&w] {
    if (w.Formula.Nr == 0) return;  // a pure number can't be verified here
    ParametriFormula& p = w.Formula;
    const ParametriFormula loaded = p;
    // Elements that the row doesn't have, as all of a blank row, are 0 here, not those of the row before.
    if (w.FgF.text(w.FgF.current(), formula_column::kR2).empty()) p.R2 = p.P2 = 0;
    if (w.FgF.text(w.FgF.current(), formula_column::kR3).empty()) p.R3 = p.P3 = 0;
    // It knows four operators; a row with another keeps the value of the case before and adds its fix again.
    if (operatorOf(p.Operazione) > Operator::Product) p.Operazione.clear();
    OttieneNumero(w.archive, p);
    p.Operazione = loaded.Operazione;
    p.R2 = loaded.R2;
    p.P2 = loaded.P2;
    p.R3 = loaded.R3;
    p.P3 = loaded.P3;
  });
}

}  // namespace trv5
