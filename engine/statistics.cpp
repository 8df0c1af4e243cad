#include "engine/statistics.h"

#include <fmt/format.h>

#include <array>
#include <string>

#include "cases/case_rows.h"
#include "cases/result_states.h"

namespace trv5 {
namespace {

constexpr int kSection = 0, kCases = 1, kCovered = 2, kPositive = 3, kNegative = 4, kOpen = 5, kByQuantity = 6;

// Tenths of a percent, halves away from zero, without a leading zero: "80.0", ".0".
std::string percentText(int count, int total) {
  const int tenths = (count * 2000 + total) / (total * 2);
  return tenths < 10 ? fmt::format(".{}", tenths) : fmt::format("{}.{}", tenths / 10, tenths % 10);
}

// The panel emptied, then what each of its uses writes: the cases and the hits by quantity of numbers.
void startPanel(Workbench& w) {
  for (int row = 0; row < w.Fg_Stat.rows(); ++row) w.Fg_Stat.setText(row, 1, "");
  w.Fg_Stat.setNumber(kCases, 1, w.FgEv.dataRows());
  for (int q = 1; q <= 5; ++q)
    if (const int hits = w.EsitiPerSorte[static_cast<std::size_t>(q)]; hits > 0)
      w.Fg_Stat.setNumber(kByQuantity + q - 1, 1, hits);
}

}  // namespace

void ContaEsitix(Workbench& w) {
  if (!w.FgEv.hasData()) return;
  const Grid::Batch batch(w.FgSSS);
  for (int column = case_column::kHits; column <= case_column::kLunghetta; ++column) {
    const Totals totals = totalsOfMarks(w, column);
    w.FgSSS.setNumber(0, column - case_column::kHits, totals.hits);
    w.FgSSS.setNumber(1, column - case_column::kHits, totals.cases);
  }
  noteTotals(w);
}

void CreaStatistica(Workbench& w) {
  Grid& stat = w.Fg_Stat;
  const Grid::Batch batch(stat);
  startPanel(w);
  for (int q = 1; q <= 5; ++q) stat.setBack(kByQuantity + q - 1, 1, ColoriSorte[static_cast<std::size_t>(q)]);
  stat.setBack(kPositive, 1, VerdeMedio);
  stat.setBack(kNegative, 1, RossoMedio);
  stat.setBack(kOpen, 1, CianoMedio);
  stat.setFore(kSection, 1, Rosso);
}

void scriveStatistica(Workbench& w, std::string_view section, const std::string& covered, int positive, int negative) {
  w.Fg_Stat.setText(kSection, 1, section);
  w.Fg_Stat.setText(kCovered, 1, covered);
  w.Fg_Stat.setNumber(kPositive, 1, positive);
  w.Fg_Stat.setNumber(kNegative, 1, negative);
  w.Fg_Stat.setNumber(kOpen, 1, w.CasiInCorso);
}

void scriveRiepilogo(Workbench& w, int positive, int negative) {
  const Grid::Batch batch(w.Fg_Stat);
  startPanel(w);
  w.Fg_Stat.setText(kSection, 1, "RIE");
  w.Fg_Stat.setNumber(kCovered, 1, w.FgEv.dataRows() - negative);
  w.Fg_Stat.setNumber(kPositive, 1, positive);
  w.Fg_Stat.setNumber(kNegative, 1, negative);
  w.Fg_Stat.setNumber(kOpen, 1, w.CasiInCorso);
}

void PopolaGrafico(Workbench& w) {
  struct Row {
    int source;
    Rgb colour;
  };
  constexpr std::array<Row, 3> kRows = {{{kCovered, Verde}, {kNegative, Arancia}, {kOpen, Ciano}}};
  Grid& chart = w.Fg_Graf;
  const Grid::Batch batch(chart);
  const int total = w.Fg_Stat.number(kCases, 1);
  for (int row = 0; row < 3; ++row) {
    const Row& source = kRows[static_cast<std::size_t>(row)];
    const int count = w.Fg_Stat.number(source.source, 1);
    chart.setNumber(row, 1, count);
    chart.setText(row, 2, total > 0 ? percentText(count, total) : "");
    if (total > 0)
      chart.setBar(row, 2, {.percent = count * 100.0 / total, .colour = source.colour});
    else
      chart.removeBar(row, 2);
  }
}

void azzeraStatistiche(Workbench& w) {
  for (int row = 0; row < w.Fg_Graf.rows(); ++row) {
    w.Fg_Graf.setText(row, 1, "");
    w.Fg_Graf.setText(row, 2, "");
  }
  w.origins.luck = {};
  w.Fg_Graf.removeBar(1, 2);
  w.FgSSS.clearTexts();
}

}  // namespace trv5
