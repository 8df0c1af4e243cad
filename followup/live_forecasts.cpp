#include "followup/live_forecasts.h"

#include <fmt/format.h>

#include <functional>
#include <string>

#include "cases/case_rows.h"
#include "cases/hit_rows.h"
#include "cases/result_states.h"
#include "cases/selections.h"
#include "core/text.h"
#include "engine/colouring.h"
#include "engine/statistics.h"
#include "followup/case_forecasts.h"
#include "followup/live_columns.h"

namespace trv5 {
namespace {

using namespace live_column;

constexpr const char* kNoForecast = "Nessuna previsione: premi prima Elenco previsioni in corso";

std::string playedWheels(const Workbench& w) {
  std::string text;
  for (int wheel = 0; wheel < kWheels; ++wheel)
    if (w.FgRG.back(0, wheel) == Verde) text += (text.empty() ? "" : "-") + w.FgRG.text(0, wheel);
  return text;
}

void writeForecast(Workbench& w, int caseRow, const Forecast& forecast, const std::string& wheels) {
  Grid& grid = w.FgIC;
  const int row = grid.appendRow();
  grid.setText(row, kDate, w.FgEv.text(caseRow, case_column::kDate));
  grid.setText(row, kPlayedOn, wheels);
  grid.setText(row, kDraw, w.FgEv.text(caseRow, case_column::kDraw));
  grid.setText(
      row, kKind,
      forecast.table == Table::Lunghetta ? w.ComboSorte.text() + "L" : std::to_string(traitsOf(forecast.table).code));
  grid.setText(row, kColpo, fmt::format("{}/{}", w.EstrazioneRiferimento - caseDraw(w, caseRow), w.Colpi));
  int column = kNumbers;
  for (const int number : forecast.numbers) grid.setText(row, column++, twoDigits(number));
  for (column = kNumbers; column < kPlayedOn; ++column) grid.setFore(row, column, Rosso);
  grid.setBack(row, kKind, GialloMedio);
}

std::vector<int> numbersOf(const Grid& grid, int row) {
  std::vector<int> numbers;
  for (int column = kNumbers; column < kDate; ++column) numbers.push_back(grid.number(row, column));
  return numbers;
}

// The open cases go on to the end of the archive: only the walk of the verification beyond the limit, with what the
// last evaluation put in play.
void playOpenCasesOn(Workbench& w) {
  const PlayWindow window{.colpi = w.Colpi, .lastDraw = w.archive.UltimaEstrazione(), .wheels = w.RuoteGioco};
  const Grid::Batch hitsBatch(w.FgZ1), casesBatch(w.FgEv);
  for (int row = 1; row < w.FgEv.rows(); ++row) {
    if (!isOpen(w, row)) continue;
    const Hits hits =
        hitsOfNumbers(w.archive, caseDraw(w, row), window, w.NumeriInGioco[static_cast<std::size_t>(row)]);
    w.EsitiPerSorte[1] += static_cast<int>(hits.size());
    appendHits(w, w.FgZ1, row, hits, RowColumn::RunningCount, HitColour::Green);
    if (hits.empty()) appendMiss(w, w.FgZ1, row);
  }
  noteAddedHits(w);
  coloraEsiti(w, Table::Ambate);
  markOpenCases(w);
  azzeraStatistiche(w);
}

// Shows the rows whose kind is wanted; tells how many under the filter's name.
void filterRows(Workbench& w, const char* name, const std::function<bool(const std::string& kind)>& wanted) {
  if (!w.FgIC.hasData()) return w.shell().status(kNoForecast);
  const Grid::Batch batch(w.FgIC);
  int shown = 0;
  for (int row = 1; row < w.FgIC.rows(); ++row) {
    const bool show = wanted(w.FgIC.text(row, kKind));
    w.FgIC.setRowHidden(row, !show);
    shown += show;
  }
  w.shell().status(fmt::format("{}: {} su {}", name, counted(shown, "previsione", "previsioni"), w.FgIC.dataRows()));
}

bool isLunghetta(const std::string& kind) {
  return kind.ends_with('L');
}

}  // namespace

void ElencaPrevisioniInCorso(Workbench& w) {
  const std::string wheels = playedWheels(w);
  const Grid::Batch listBatch(w.FgIC), casesBatch(w.Fg15);
  w.FgIC.cutToHeading();
  int open = 0, listed = 0;
  for (int row = 1; row < w.FgEv.rows(); ++row) {
    if (!isOpen(w, row)) continue;
    ++open;
    listed = w.FgEv.number(row, case_column::kProg);
    for (const Forecast& forecast : previsioniDelCaso(w, listed)) writeForecast(w, row, forecast, wheels);
  }
  // Each case was chosen in turn: the forecasts of the last one stay in sight.
  if (open > 0) {
    w.Fg15.setCurrent(listed);
    MostraPrevisioniDelCaso(w, listed);
  }
  if (w.FgIC.hasData()) {
    w.FgIC.setMerged({kDate, kPlayedOn});
    w.FgIC.fitColumns();
  }
  w.FgIC.setEmptyText(open > 0 ? "Nessuna previsione: i casi in corso non hanno numeri" : "Nessun caso in corso");
  noteForecasts(w);
  w.shell().status(open == 0 ? "Nessun caso in corso"
                             : "Previsioni in corso: " + counted(w.FgIC.dataRows(), "previsione", "previsioni") + ", " +
                                   counted(open, "caso", "casi"));
}

void VerificaPrevisioniOltreLimite(Workbench& w) {
  if (!w.FgIC.hasData()) return w.shell().status(kNoForecast);
  RicavaRuoteGioco(w);
  const Grid::Batch batch(w.FgIC);
  const PlayWindow window{.colpi = w.Colpi, .lastDraw = w.archive.UltimaEstrazione(), .wheels = w.RuoteGioco};
  int out = 0;
  for (int row = 1; row < w.FgIC.rows(); ++row) {
    if (!hasComeOut(w.archive, w.FgIC.number(row, kDraw), window, numbersOf(w.FgIC, row), w.FgIC.number(row, kKind)))
      continue;
    w.FgIC.setBack(row, kDraw, Verde);
    ++out;
  }
  playOpenCasesOn(w);
  w.shell().status(fmt::format("Verifica oltre limite: {} {} su {}", out == 1 ? "uscita" : "uscite",
                               counted(out, "previsione", "previsioni"), w.FgIC.dataRows()));
}

void FiltraPrevisioni(Workbench& w, char kind) {
  const auto exactly = [kind](const std::string& text) { return text == std::string(1, kind); };
  switch (kind) {
    case '1':
      return filterRows(w, "Filtra ambate", exactly);
    case '2':
      return filterRows(w, "Filtra ambi", exactly);
    case '3':
      return filterRows(w, "Filtra terni", exactly);
    default:
      return filterRows(w, "Filtra lunghette", isLunghetta);
  }
}

void FiltraPrevisioniSelezionate(Workbench& w) {
  constexpr int kLunghette = 0;
  filterRows(w, "Filtra selezionati", [&w](const std::string& kind) {
    if (isLunghetta(kind)) return w.Ch_FF[kLunghette].checked();
    return (kind == "1" || kind == "2" || kind == "3") && w.Ch_FF[kind.front() - '0'].checked();
  });
}

void StampaPrevisioni(Workbench& w) {
  std::string title = "Ruote gioco  ";
  for (int wheel = 0; wheel < kWheels; ++wheel)
    if (w.FgRG.back(0, wheel) == Verde) title += "  " + w.FgRG.text(0, wheel);
  w.shell().print(w.FgIC, {.title = title, .landscape = false});
}

}  // namespace trv5
