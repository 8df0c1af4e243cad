#include <algorithm>

#include "core/text.h"
#include "support/plain_evaluation.h"
#include "support/plain_verification.h"

namespace trv5 {

void PlainWorkbench::RicavaElementiReali() {
  plainRicavaElementiReali({archive, FgEv, {&Fg11, &Fg22, &Fg33, &Fg00}, state.Formula, Fg15, state.NumeriInGioco});
}

void PlainWorkbench::Cmd_Elabora100() {
  if (Fg00.rows() < 2) return;
  if (Fg00.rows() > 11) {
    messages.emplace_back("Attenzione si possono elaborare al massimo 10 numeri.");
    return;
  }
  state.TipoVerifica = 6;
  state.EsitiPerSorte.fill(0);
  RicavaElementiReali();
  state.Sorte = 1;
  FgZ100.setRows(1);
  for (int i = 1; i < FgEv.rows(); ++i) elaborateCase(i, sorteChosen);
  if (FgEv.rows() > 1) {
    markOpen();
    ContaEsitix();
  }
}

void PlainWorkbench::elaborateCase(int i, int wanted) {
  NumberFlags present{};
  const std::string& cell = Fg15.text(i, 6);
  for (std::size_t at = 0; at < cell.size(); at += 3)
    present[static_cast<std::size_t>(numberOf(cell.substr(at, 2)))] = true;
  bool found = false;
  int hitsOfSorte = 0, last = 0;
  const int c = FgEv.number(i, 1);
  for (int d = c + 1; d <= c + state.Colpi; ++d) {
    if (d > state.EstrazioneRiferimento) continue;
    for (int w = 0; w < 11; ++w) {
      if (!plays(w)) continue;
      const auto matches = [&](int k) {
        return drawn(d, w, k) != 0 && present[static_cast<std::size_t>(drawn(d, w, k))];
      };
      last = 0;
      for (int k = 1; k <= 5; ++k) last += matches(k) ? 1 : 0;
      if (last < state.Sorte) continue;
      if (last >= wanted) ++hitsOfSorte;
      ++state.EsitiPerSorte[static_cast<std::size_t>(last)];
      found = true;
      const int row = appendHit(FgZ100, i, d, w);
      FgZ100.setNumber(row, 3, last);
      int column = 6;
      for (int k = 1; k <= 5; ++k) {
        if (!matches(k)) continue;
        FgZ100.setNumber(row, column++, drawn(d, w, k));
        FgZ100.setBack(row, 16 + k, ColoriSorte[static_cast<std::size_t>(last)]);
      }
    }
  }
  if (hitsOfSorte >= 1 && last >= 2) {
    FgEv.setBack(i, 22, 0x00FF00);
    FgEv.setNumber(i, 22, hitsOfSorte);
  }
  if (!found) appendMiss(FgZ100, i);
}

void PlainWorkbench::ContaEsitix() {
  if (FgEv.rows() < 2) return;
  for (int k = 17; k <= 22; ++k) {
    int total = 0, covered = 0;
    for (int i = 1; i < FgEv.rows(); ++i) {
      total += FgEv.number(i, k);
      if (FgEv.back(i, k) == 0x00FF00) ++covered;
    }
    FgSSS.setNumber(0, k - 17, total);
    FgSSS.setNumber(1, k - 17, covered);
  }
}

void PlainWorkbench::CreaStatistica() {
  for (int row = 0; row < 11; ++row) Fg_Stat.setText(row, 1, "");
  Fg_Stat.setNumber(1, 1, FgEv.rows() - 1);
  for (int q = 1; q <= 5; ++q) {
    if (state.EsitiPerSorte[static_cast<std::size_t>(q)] > 0)
      Fg_Stat.setNumber(q + 5, 1, state.EsitiPerSorte[static_cast<std::size_t>(q)]);
    Fg_Stat.setBack(q + 5, 1, ColoriSorte[static_cast<std::size_t>(q)]);
  }
  Fg_Stat.setBack(3, 1, 0x80FF80);
  Fg_Stat.setBack(4, 1, 0xFF8080);
  Fg_Stat.setBack(5, 1, 0x80FFFF);
  Fg_Stat.setFore(0, 1, 0xFF0000);
}

void PlainWorkbench::PopolaGrafico() {
  const std::array<int, 3> counts = {Fg_Stat.number(2, 1), Fg_Stat.number(4, 1), Fg_Stat.number(5, 1)};
  const std::array<Rgb, 3> colours = {0x00FF00, 0xFF8000, 0x00FFFF};
  const int total = Fg_Stat.number(1, 1);
  for (int row = 0; row < 3; ++row) {
    const int count = counts[static_cast<std::size_t>(row)];
    Fg_Graf.setNumber(row, 1, count);
    Fg_Graf.setText(row, 2, "");
    Fg_Graf.removeBar(row, 2);
    if (total == 0) continue;
    // Tenths of a percent, half of one upwards.
    const int tenths = (count * 2000 + total) / (2 * total);
    Fg_Graf.setText(row, 2, (tenths < 10 ? "" : std::to_string(tenths / 10)) + "." + std::to_string(tenths % 10));
    Fg_Graf.setBar(row, 2, {count * 100.0 / total, colours[static_cast<std::size_t>(row)]});
  }
}

void PlainWorkbench::coloraEsiti(Grid& hits) {
  if (hits.rows() < 2) return;
  for (int row = 1; row < hits.rows(); ++row) {
    hits.setBack(row, 2, 0xFFFFC0);
    hits.setBack(row, 15, 0xFFFFC0);
    hits.setBack(row, 16, 0xFFFFC0);
    hits.setBack(row, 13, 0x80FF80);
    hits.setBold(row, 13);
    hits.setBold(row, 14);
    for (int column = 6; column <= 11; ++column) {
      hits.setBold(row, column);
      hits.setFore(row, column, 0x0000FF);
    }
  }
  hits.setMerged({1});
}

}  // namespace trv5
