#include "support/plain_verification.h"

#include <algorithm>
#include <array>

#include "core/numbers.h"
#include "core/text.h"
#include "support/plain_evaluation.h"

namespace trv5 {
namespace {

using SetGiocato = NumberFlags;

// The numbers of a cell of `Fg15`, two characters at 1, 4, 7 .., ascending.
std::vector<int> sortedNumbers(const std::string& cell) {
  std::vector<int> numbers;
  for (std::size_t at = 0; at < cell.size(); at += 3) numbers.push_back(numberOf(cell.substr(at, 2)));
  std::sort(numbers.begin(), numbers.end());
  return numbers;
}

void put(SetGiocato& set, int number) {
  set[static_cast<std::size_t>(number)] = true;
}

bool has(const SetGiocato& set, int number) {
  return number != 0 && set[static_cast<std::size_t>(number)];
}

}  // namespace

struct PlainWorkbench::Kind {
  int code;
  Grid& formulas;
  Grid& hits;
  int column;        ///< of `FgEv`
  int totalsColumn;  ///< of `FgSSS`
  std::string label;
};

PlainWorkbench::PlainWorkbench(const Workbench& w)
    : WorkbenchSnapshot(w),
      archive(w.archive),
      sorteChosen(w.ComboSorte.index() + 1),
      ownWheels(w.Check3.checked()),
      onlyUncovered(w.Ch_Scoperti.checked()),
      automatic(w.ChVerifica.checked()),
      time(timeText(w.shell().now())),
      FgRG(grids.at("FgRG")),
      FgEv(grids.at("FgEv")),
      FgSSS(grids.at("FgSSS")),
      FgF(grids.at("FgF")),
      Fg11(grids.at("Fg11")),
      Fg22(grids.at("Fg22")),
      Fg33(grids.at("Fg33")),
      Fg00(grids.at("Fg00")),
      FgZ1(grids.at("FgZ1")),
      FgZ2(grids.at("FgZ2")),
      FgZ3(grids.at("FgZ3")),
      FgZ0(grids.at("FgZ0")),
      FgZ100(grids.at("FgZ100")),
      Fg15(grids.at("Fg15")),
      Fg_Stat(grids.at("Fg_Stat")),
      Fg_Graf(grids.at("Fg_Graf")),
      Fg99(grids.at("Fg99")) {}

PlainWorkbench::Kind PlainWorkbench::kindOf(int code) {
  if (code == 1) return {1, Fg11, FgZ1, 17, 0, "1N"};
  if (code == 2) return {2, Fg22, FgZ2, 18, 1, "2N"};
  if (code == 3) return {3, Fg33, FgZ3, 19, 2, "3N"};
  return {6, Fg00, FgZ0, 22, 5, "LU"};
}

void PlainWorkbench::tutteLeRighe(int kind) {
  verify(kind, Mode::All);
}

void PlainWorkbench::perCc(int kind) {
  verify(kind, Mode::ForCc);
}

void PlainWorkbench::oltreLimite(int kind) {
  verify(kind, Mode::BeyondLimit);
}

void PlainWorkbench::proseguiCasiAperti() {
  for (int i = 1; i < FgEv.rows(); ++i)
    if (FgEv.back(i, 1) == 0x00FFFF && numbersOfCase(kindOf(1), i, archive.UltimaEstrazione()) == 0)
      appendMiss(FgZ1, i);
  closeBeyondLimit(kindOf(1));
}

void PlainWorkbench::verify(int code, Mode mode) {
  const Kind kind = kindOf(code);
  if (kind.formulas.rows() < 2) return;
  if (code == 6 && kind.formulas.rows() >= 12) {
    messages.emplace_back("Attenzione si possono elaborare al massimo 10 numeri. Rimuovere le formule in eccesso");
    return;
  }
  state.TipoVerifica = code;
  state.EsitiPerSorte.fill(0);
  if (code == 6) state.Sorte = sorteChosen;
  if (mode == Mode::ForCc) state.CasiVerificati.fill(false);
  RicavaElementiReali();
  if (mode != Mode::BeyondLimit || code != 1)
    for (int i = 1; i < FgEv.rows(); ++i) {
      FgEv.setText(i, kind.column, "");
      FgEv.setBack(i, kind.column, 0xFFFFFF);
    }
  kind.hits.setRows(1);
  const int lastDraw = mode == Mode::BeyondLimit ? archive.UltimaEstrazione() : state.EstrazioneRiferimento;
  const bool paint = mode != Mode::BeyondLimit || code == 2 || code == 3;
  for (int i = 1; i < FgEv.rows(); ++i) {
    if (mode == Mode::BeyondLimit && FgEv.back(i, 1) != 0x00FFFF) continue;
    if (mode == Mode::ForCc && state.CasiEsclusi[static_cast<std::size_t>(i)]) continue;
    int hits = 0;
    if (code == 1)
      hits = numbersOfCase(kind, i, lastDraw);
    else if (code == 6)
      hits = lunghettaOfCase(kind, i, lastDraw, paint);
    else
      hits = setsOfCase(kind, i, lastDraw, paint);
    if (code == 1 && paint && hits > 0) {
      FgEv.setBack(i, kind.column, 0x00FF00);
      FgEv.setNumber(i, kind.column, hits);
    }
    if (mode == Mode::ForCc && hits > 0) state.CasiVerificati[static_cast<std::size_t>(i)] = true;
    if (hits == 0) appendMiss(kind.hits, i);
  }
  if (mode == Mode::All) closeAll(kind);
  if (mode == Mode::ForCc) closeForCc(kind);
  if (mode == Mode::BeyondLimit) closeBeyondLimit(kind);
}

int PlainWorkbench::numbersOfCase(const Kind& kind, int i, int lastDraw) {
  int hits = 0;
  const int c = FgEv.number(i, 1);
  for (int e = c + 1; e <= c + state.Colpi; ++e) {
    if (e > lastDraw) continue;
    for (int w = 0; w < 11; ++w) {
      if (!plays(w)) continue;
      for (int k = 1; k <= 5; ++k) {
        if (!has(state.NumeriInGioco[static_cast<std::size_t>(i)], drawn(e, w, k))) continue;
        ++hits;
        ++state.EsitiPerSorte[1];
        const int row = appendHit(kind.hits, i, e, w);
        kind.hits.setNumber(row, 3, hits);
        if (hits > 1) kind.hits.setBack(row, 3, 0xC0C0FF);
        kind.hits.setNumber(row, 6, drawn(e, w, k));
        kind.hits.setBack(row, 16 + k, 0x00FF00);
      }
    }
  }
  return hits;
}

int PlainWorkbench::setsOfCase(const Kind& kind, int i, int lastDraw, bool paint) {
  std::vector<std::vector<int>> sets;
  for (int a : sortedNumbers(Fg15.text(i, 1)))
    for (int b : sortedNumbers(Fg15.text(i, 2))) {
      if (kind.code == 2) sets.push_back({a, b});
      if (kind.code == 3)
        for (int c : sortedNumbers(Fg15.text(i, 3))) sets.push_back({a, b, c});
    }
  int hits = 0;
  const int c = FgEv.number(i, 1);
  for (const std::vector<int>& numbers : sets) {
    SetGiocato played{};
    for (int number : numbers) put(played, number);
    int hitsOfSet = 0;
    for (int e = c + 1; e <= c + state.Colpi; ++e) {
      if (e > lastDraw) continue;
      for (int w = 0; w < 11; ++w) {
        if (!plays(w)) continue;
        int count = 0;
        for (int k = 1; k <= 5; ++k) count += has(played, drawn(e, w, k)) ? 1 : 0;
        if (count < kind.code) continue;
        ++hitsOfSet;
        ++hits;
        ++state.EsitiPerSorte[static_cast<std::size_t>(kind.code)];
        const int row = appendHit(kind.hits, i, e, w);
        kind.hits.setNumber(row, 3, hits);
        if (hitsOfSet > 1) kind.hits.setBack(row, 3, 0xC0C0FF);
        for (std::size_t n = 0; n < numbers.size(); ++n) kind.hits.setNumber(row, 6 + static_cast<int>(n), numbers[n]);
        for (int k = 1; k <= 5; ++k)
          if (has(played, drawn(e, w, k))) kind.hits.setBack(row, 16 + k, 0x00FF00);
        if (paint) {
          FgEv.setBack(i, kind.column, 0x00FF00);
          FgEv.setNumber(i, kind.column, hits);
        }
      }
    }
  }
  return hits;
}

int PlainWorkbench::lunghettaOfCase(const Kind& kind, int i, int lastDraw, bool paint) {
  SetGiocato played{};
  for (int number : sortedNumbers(Fg15.text(i, 6))) put(played, number);
  int hits = 0;
  const int c = FgEv.number(i, 1);
  for (int e = c + 1; e <= c + state.Colpi; ++e) {
    if (e > lastDraw) continue;
    for (int w = 0; w < 11; ++w) {
      if (!plays(w)) continue;
      int count = 0;
      for (int k = 1; k <= 5; ++k) count += has(played, drawn(e, w, k)) ? 1 : 0;
      if (count < state.Sorte) continue;
      ++hits;
      ++state.EsitiPerSorte[static_cast<std::size_t>(count)];
      const int row = appendHit(kind.hits, i, e, w);
      kind.hits.setNumber(row, 3, hits);
      if (hits > 1) kind.hits.setBack(row, 3, 0xC0C0FF);
      int column = 6;
      for (int k = 1; k <= 5; ++k) {
        if (!has(played, drawn(e, w, k))) continue;
        kind.hits.setNumber(row, column++, drawn(e, w, k));
        kind.hits.setBack(row, 16 + k, ColoriSorte[static_cast<std::size_t>(count)]);
      }
      if (paint) {
        FgEv.setBack(i, kind.column, 0x00FF00);
        FgEv.setNumber(i, kind.column, hits);
      }
    }
  }
  return hits;
}

int PlainWorkbench::appendHit(Grid& hits, int i, int draw, int wheel) const {
  const int row = hits.appendRow();
  const int c = FgEv.number(i, 1);
  hits.setNumber(row, 0, i);
  hits.setBack(row, 0, 0x80FF80);
  hits.setNumber(row, 1, c);
  hits.setText(row, 2, archive.DateEstrazioni(c));
  hits.setNumber(row, 12, wheel);
  hits.setText(row, 13, CodiciRuote[static_cast<std::size_t>(wheel)]);
  hits.setNumber(row, 14, draw - c);
  hits.setNumber(row, 15, draw);
  hits.setText(row, 16, archive.DateEstrazioni(draw));
  for (int k = 1; k <= 5; ++k) hits.setNumber(row, 16 + k, archive.NumeriEstratti(draw, wheel, k));
  return row;
}

void PlainWorkbench::appendMiss(Grid& hits, int i) const {
  const int row = hits.appendRow();
  hits.setNumber(row, 0, i);
  hits.setBack(row, 0, 0xFFC080);
  hits.setText(row, 1, FgEv.text(i, 1));
  hits.setText(row, 2, archive.DateEstrazioni(FgEv.number(i, 1)));
}

void PlainWorkbench::markOpen() {
  for (int i = 1; i < FgEv.rows(); ++i)
    if (isOpen(i)) FgEv.setBack(i, 1, 0x00FFFF);
}

void PlainWorkbench::countOpen(Grid& hits) {
  state.CasiInCorso = 0;
  for (int i = 1; i < FgEv.rows(); ++i) {
    if (FgEv.back(i, 1) != 0x00FFFF) continue;
    ++state.CasiInCorso;
    for (int row = 1; row < hits.rows(); ++row)
      if (hits.text(row, 0) == FgEv.text(i, 0)) hits.setBack(row, 0, 0x00FFFF);
  }
}

void PlainWorkbench::closeAll(const Kind& kind) {
  if (kind.code != 6) coloraEsiti(kind.hits);
  markOpen();
  countOpen(kind.hits);
  CreaStatistica();
  ContaEsitix();
  if (kind.code == 6) {
    coloraEsiti(kind.hits);
    Cmd_Elabora100();
  }
  int positive = 0, negative = 0;
  for (int row = 1; row < kind.hits.rows(); ++row) {
    if (!kind.hits.text(row, 15).empty()) ++positive;
    if (kind.hits.back(row, 0) == 0xFFC080) ++negative;
  }
  Fg_Stat.setText(0, 1, kind.label);
  Fg_Stat.setText(2, 1, FgSSS.text(1, kind.totalsColumn));
  Fg_Stat.setNumber(3, 1, positive);
  Fg_Stat.setNumber(4, 1, negative);
  Fg_Stat.setNumber(5, 1, state.CasiInCorso);
  PopolaGrafico();
}

void PlainWorkbench::closeForCc(const Kind& kind) {
  if (kind.code != 6) coloraEsiti(kind.hits);
  markOpen();
  countOpen(kind.hits);
  ContaEsitix();
  if (kind.code == 6) {
    coloraEsiti(kind.hits);
    Cmd_Elabora100();
  }
}

void PlainWorkbench::closeBeyondLimit(const Kind& kind) {
  coloraEsiti(kind.hits);
  markOpen();
  for (int row = 0; row < 3; ++row) {
    Fg_Graf.setText(row, 1, "");
    Fg_Graf.setText(row, 2, "");
  }
  Fg_Graf.removeBar(1, 2);
  for (int column = 0; column < FgSSS.columns(); ++column) {
    FgSSS.setText(0, column, "");
    FgSSS.setText(1, column, "");
  }
}

void PlainWorkbench::Command21() {
  singleRow(Fg11, false);
}

void PlainWorkbench::Command22() {
  singleRow(FgF, true);
}

void PlainWorkbench::playRowWheels(const Grid& formulas, int row) {
  if (ownWheels) {
    for (int w = 0; w < 11; ++w) FgRG.setBack(0, w, 0xFFFFFF);
    const std::string& wheels = formulas.text(row, 18);
    for (std::size_t at = 0; at < wheels.size(); at += 3)
      for (int w = 0; w < 11; ++w)
        if (FgRG.text(0, w) == wheels.substr(at, 2)) FgRG.setBack(0, w, 0x00FF00);
  }
  state.RuoteGioco = 0;
  for (int w = 0; w < 11; ++w)
    if (FgRG.back(0, w) == 0x00FF00) state.RuoteGioco |= 1U << w;
}

void PlainWorkbench::singleRow(const Grid& formulas, bool inlineEvaluation) {
  const int row = formulas.current();
  if (row < 1) return;
  playRowWheels(formulas, row);
  state.Sorte = sorteChosen;
  FgZ1.setRows(1);
  plainCaricaParametri(formulas, row, state.Formula);
  for (int i = 1; i < FgEv.rows(); ++i) {
    const int c = FgEv.number(i, 1);
    state.Formula.Estr = c;
    if (inlineEvaluation)
      evaluateInline(formulas, row);
    else
      plainOttieneNumero(archive, state.Formula);
    const int number = state.Formula.NumeroOttenuto;
    int hits = 0;
    for (int e = c + 1; e <= c + state.Colpi; ++e) {
      if (e > state.EstrazioneRiferimento) continue;
      for (int w = 0; w < 11; ++w) {
        if (!plays(w)) continue;
        for (int k = 1; k <= 5; ++k) {
          if (number == 0 || drawn(e, w, k) != number) continue;
          ++hits;
          const int at = appendHit(FgZ1, i, e, w);
          FgZ1.setNumber(at, 3, hits);
          if (hits > 1) FgZ1.setBack(at, 3, 0xC0C0FF);
          FgZ1.setNumber(at, 6, number);
          FgZ1.setBack(at, 16 + k, 0x00FF00);
        }
      }
    }
    if (hits > 0) {
      FgEv.setBack(i, state.Sorte + 16, 0x00FF00);
      FgEv.setNumber(i, state.Sorte + 16, hits);
    } else {
      appendMiss(FgZ1, i);
      FgZ1.setNumber(FgZ1.rows() - 1, 6, number);
    }
  }
  coloraEsiti(FgZ1);
}

// Every column is read from the row, an element that it doesn't have is 0. Knows four operators only. What it doesn't
// know leaves the number of the case before, the fix added once more.
void PlainWorkbench::evaluateInline(const Grid& formulas, int row) {
  ParametriFormula& p = state.Formula;
  plainCaricaParametri(formulas, row, p);
  if (p.Nr == 0) return;
  const ParametriFormula loaded = p;
  p.R2 = formulas.number(row, 4);
  p.P2 = formulas.number(row, 6);
  p.R3 = formulas.number(row, 7);
  p.P3 = formulas.number(row, 9);
  if (p.Operazione == "D1 e U2" || p.Operazione == "D2 e U1") p.Operazione = "unknown here";
  plainOttieneNumero(archive, p);
  p.Operazione = loaded.Operazione;
  p.R2 = loaded.R2;
  p.P2 = loaded.P2;
  p.R3 = loaded.R3;
  p.P3 = loaded.P3;
}

}  // namespace trv5
