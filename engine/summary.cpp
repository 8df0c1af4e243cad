#include "engine/summary.h"

#include <algorithm>
#include <array>
#include <exception>
#include <string>

#include "engine/hit_rows.h"
#include "engine/statistics.h"

namespace trv5 {
namespace {

using namespace hit_column;

constexpr int kKind = kRow;  // column 3 of FgZZ: 1 ambata, 2 ambo, 3 terno, empty without hit

struct SummaryKind {
  int code;
  Check Workbench::*chosen;
  GridControl Workbench::*hits;
};

constexpr std::array<SummaryKind, 3> kKinds = {{{1, &Workbench::ChA, &Workbench::FgZ1},
                                                {2, &Workbench::ChB, &Workbench::FgZ2},
                                                {3, &Workbench::ChC, &Workbench::FgZ3}}};

// Hit rows only: a row of a case without hit comes back, if it should, from the case list.
void copyHits(Workbench& w, const SummaryKind& kind) {
  const Grid& hits = w.*kind.hits;
  for (int from = 1; from < hits.rows(); ++from) {
    if (hits.back(from, kCase) != VerdeMedio) continue;
    const int row = w.FgZZ.appendRow();
    for (int column = 0; column < hits.columns(); ++column) w.FgZZ.setCell(row, column, hits.at(from, column));
    w.FgZZ.setNumber(row, kKind, kind.code);
  }
}

void appendCasesWithoutHit(Workbench& w) {
  CaseFlags CasoConEsito{};
  for (int row = 1; row < w.FgZZ.rows(); ++row)
    CasoConEsito.at(static_cast<std::size_t>(w.FgZZ.number(row, kCase))) = true;
  for (int i = 1; i < w.FgEv.rows(); ++i) {
    if (CasoConEsito.at(static_cast<std::size_t>(w.FgEv.number(i, case_column::kProg)))) continue;
    const int row = w.FgZZ.appendRow();
    w.FgZZ.setNumber(row, kCase, i);
    w.FgZZ.setBack(row, kCase, AranciaMedio);
    w.FgZZ.setText(row, kCaseDraw, w.FgEv.text(i, case_column::kDraw));
    w.FgZZ.setText(row, kCaseDate, w.FgEv.text(i, case_column::kDate));
    w.FgZZ.setBack(row, kCaseDate, GialloChiaro);
  }
}

// All hits of the first colpo stay, on every wheel and of every kind. Hits later than 1000 draws are first of no case.
void keepFirstColpo(Workbench& w) {
  std::array<int, kMostCases + 1> PrimoColpo{};
  PrimoColpo.fill(1000);
  const auto first = [&](int row) -> int& {
    return PrimoColpo.at(static_cast<std::size_t>(w.FgZZ.number(row, kCase)));
  };
  for (int row = 1; row < w.FgZZ.rows(); ++row)
    if (const int colpo = w.FgZZ.number(row, kColpo); colpo > 0) first(row) = std::min(first(row), colpo);
  w.FgZZ.keepRows([&](int row) {
    const int colpo = w.FgZZ.number(row, kColpo);
    return colpo <= 0 || colpo == first(row);
  });
}

void writeStatistics(Workbench& w) {
  w.EsitiPerSorte = {};
  int positive = 0, negative = 0;  // Positivi, Negativi
  for (int row = 1; row < w.FgZZ.rows(); ++row) {
    const int kind = w.FgZZ.number(row, kKind);
    if (kind >= 1) {
      ++w.EsitiPerSorte.at(static_cast<std::size_t>(kind));
      ++positive;
    } else if (w.FgZZ.back(row, kCase) != Ciano) {
      ++negative;
    }
  }
  scriveRiepilogo(w, positive, negative);
  PopolaGrafico(w);
}

void paintKinds(Workbench& w) {
  for (int row = 1; row < w.FgZZ.rows(); ++row) {
    const int kind = w.FgZZ.number(row, kKind);
    if (kind < 1 || kind > 3) continue;
    for (int column = kDrawn; column < kDrawn + kPositions; ++column)
      if (w.FgZZ.back(row, column) == Verde) w.FgZZ.setBack(row, column, ColoriSorte[static_cast<std::size_t>(kind)]);
  }
}

void joinHits(Workbench& w) {
  const Grid::Batch batch(w.FgZZ);
  w.EsitiPerSorte = {};
  w.FgZZ.cutToHeading();
  for (const SummaryKind& kind : kKinds)
    if ((w.*kind.chosen).checked() && (w.*kind.hits).hasData()) copyHits(w, kind);
  appendCasesWithoutHit(w);
  for (int row = 1; row < w.FgZZ.rows(); ++row) w.FgZZ.setBack(row, kKind, CianoMedio);
  w.FgZZ.sortByNumbers({kCase, kColpo});
  if (w.Ch1esito.checked()) keepFirstColpo(w);
  countOpenCases(w, w.FgZZ);
  writeStatistics(w);
  paintKinds(w);
  w.FgZZ.setMerged({kCase, kCaseDraw, kCaseDate});
}

}  // namespace

void CreaRiepilogo(Workbench& w) {
  try {
    joinHits(w);
    w.shell().status("Riepilogo: " + std::to_string(w.FgEv.dataRows()) + " casi, " + w.Fg_Stat.text(3, 1) + " esiti");
  } catch (const std::exception&) {
    w.shell().message({.text = "Attenzione! probabile anomalia..", .icon = Icon::Critical});
  }
}

void RielaboraTutto(Workbench& w) {
  for (const char* button : {"Command44", "Command29", "Command34", "Command48", "Command51"}) w.button(button).press();
}

}  // namespace trv5
