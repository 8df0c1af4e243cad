#include "followup/grouping.h"

#include <fmt/format.h>

#include <optional>

#include "cases/result_states.h"
#include "configs/configurations.h"
#include "core/text.h"
#include "engine/result_forms.h"
#include "engine/summary.h"
#include "followup/convergences.h"
#include "followup/forecasts.h"
#include "followup/live_columns.h"
#include "followup/live_forecasts.h"

namespace trv5 {
namespace {

using namespace group_column;

constexpr const char* kPlayed = "X";

// The column of that name in the list of configurations; throws UserError when there is none.
int listColumn(const Grid& list, std::string_view name) {
  for (int column = 0; column < list.columns(); ++column)
    if (equalIgnoringCase(list.text(0, column), name)) return column;
  throw UserError("L'elenco delle configurazioni non è completo: premi ELENCO.");
}

void leaveOut(Workbench& w, int row) {
  w.FgPir1.setBack(row, kKey, Arancia);
  w.FgPir1.setBack(row, kName, Arancia);
}

// Loads the configuration of a row and runs it at the last draw; where it can't be loaded, why.
std::optional<std::string> runConfiguration(Workbench& w, int row) {
  w.FgPir1.setCurrent(row, kKey);
  if (auto reason = ricaricaChiave(w, chiaveDellaRiga(w, row))) return reason;
  w.hs1.set(w.archive.UltimaEstrazione());
  RielaboraTutto(w);
  ElencaPrevisioniInCorso(w);
  return {};
}

void paintGathered(Grid& grid, int row) {
  grid.setBack(row, kDraw, VerdeMedio);
  grid.setBack(row, kDate, VerdeMedio);
  grid.setBack(row, kColpo, GialloMedio);
  grid.setBold(row, kSorte);
  grid.setFore(row, kSorte, Rosso);
  for (int column = kNumbers; column < group_column::kWheels; ++column) grid.setBold(row, column);
}

// The live forecasts of the configuration in a row of the list, below those gathered before.
void gather(Workbench& w, int listRow) {
  Grid& grid = w.FgRagg;
  for (int live = 1; live < w.FgIC.rows(); ++live) {
    const int row = grid.appendRow();
    grid.setText(row, kKey, w.FgPir1.text(listRow, kKey));
    grid.setText(row, kName, w.FgPir1.text(listRow, kName));
    grid.setText(row, kDraw, w.FgIC.text(live, live_column::kDraw));
    grid.setText(row, kDate, w.FgIC.text(live, live_column::kDate));
    const std::string& kind = w.FgIC.text(live, live_column::kKind);
    grid.setText(row, kSorte, kind.ends_with('L') ? w.ComboSorte.text() : kind);
    grid.setText(row, kColpo, w.FgIC.text(live, live_column::kColpo));
    for (int i = 0; i < kMostForecastNumbers; ++i)
      grid.setText(row, kNumbers + i, w.FgIC.text(live, live_column::kNumbers + i));
    paintGathered(grid, row);
    for (int wheel = 0; wheel < trv5::kWheels; ++wheel) {
      grid.setBack(row, group_column::kWheels + wheel, w.FgRG.back(0, wheel));
      if (w.FgRG.back(0, wheel) == Verde) grid.setText(row, group_column::kWheels + wheel, kPlayed);
    }
  }
}

std::vector<int> numbersOf(const Grid& grid, int row) {
  std::vector<int> numbers;
  for (int i = 0; i < kMostForecastNumbers; ++i) numbers.push_back(grid.number(row, kNumbers + i));
  return numbers;
}

WheelSet wheelsOf(const Grid& grid, int row) {
  WheelSet wheels = 0;
  for (int wheel = 0; wheel < trv5::kWheels; ++wheel)
    if (grid.text(row, group_column::kWheels + wheel) == kPlayed) wheels |= 1U << wheel;
  return wheels;
}

std::vector<GroupedForecast> gathered(const Workbench& w) {
  std::vector<GroupedForecast> forecasts;
  for (int row = 1; row < w.FgRagg.rows(); ++row)
    forecasts.push_back(
        {w.FgRagg.text(row, kName), w.FgRagg.number(row, kSorte), numbersOf(w.FgRagg, row), wheelsOf(w.FgRagg, row)});
  return forecasts;
}

// A forecast that came out, in `Speciale`.
void writeOutcome(const Workbench& w, Grid& out, int from, const Hit& hit) {
  const int row = out.appendRow();
  const std::uint8_t* const drawn = w.archive.wheelOf(hit.draw, hit.wheel);
  NumberFlags onWheel{};
  for (int k = 0; k < kPositions; ++k) onWheel[drawn[k]] = drawn[k] != 0;
  for (int column = kKey; column < outcome_column::kQuantity; ++column) {
    out.setText(row, column, w.FgRagg.text(from, column));
    const int number = column < kNumbers ? 0 : w.FgRagg.number(from, column);
    if (number >= 1 && number <= kMostNumber && onWheel[static_cast<std::size_t>(number)])
      out.setBack(row, column, ColoriSorte[static_cast<std::size_t>(hit.count)]);
  }
  out.setNumber(row, outcome_column::kQuantity, hit.count);
  out.setNumber(row, outcome_column::kColpo, hit.draw - w.FgRagg.number(from, kDraw));
  out.setText(row, outcome_column::kWheel, CodiciRuote[static_cast<std::size_t>(hit.wheel)]);
  for (const int column : {outcome_column::kQuantity, outcome_column::kWheel}) out.setBold(row, column);
  for (const int column : {outcome_column::kColpo, outcome_column::kWheel}) out.setBack(row, column, GialloChiaro);
  for (const int column : {kDraw, kDate}) out.setBack(row, column, AranciaChiaro);
}

// What came out of each row of `FgRagg`, from row 1 on.
std::vector<Hits> outcomes(const Workbench& w) {
  std::vector<Hits> all;
  for (int row = 1; row < w.FgRagg.rows(); ++row)
    all.push_back(hitsOfAll(w.archive, w.FgRagg.number(row, kDraw),
                            {w.Colpi, w.archive.UltimaEstrazione(), wheelsOf(w.FgRagg, row)},
                            flagsOf(numbersOf(w.FgRagg, row)), w.FgRagg.number(row, kSorte)));
  return all;
}

void showOutcomes(Workbench& w, Grid& out, const std::vector<Hits>& all) {
  const Grid::Batch outBatch(out), groupBatch(w.FgRagg);
  out.cutToHeading();
  int row = 0;
  for (const Hits& hits : all) {
    ++row;
    for (const Hit& hit : hits) {
      w.FgRagg.setBack(row, group_column::kWheels + hit.wheel, Ciano);
      writeOutcome(w, out, row, hit);
    }
  }
  out.fitColumns();
  out.setMerged({kKey, kDraw, kDate});
}

std::string placeInList(const Workbench& w, int row, std::string_view what) {
  return fmt::format("Esegue procedura: configurazione {} di {}{}, {}", row, w.FgPir1.dataRows(), what,
                     w.FgPir1.text(row, kName));
}

// Returns how many ran.
int runAll(Workbench& w) {
  constexpr int kCycle = 5;
  const int kind = listColumn(w.FgPir1, "TipoRilevazione");
  int run = 0;
  for (int row = 1; row < w.FgPir1.rows(); ++row) {
    w.shell().status(placeInList(w, row, ""));
    w.shell().progress(row - 1, w.FgPir1.dataRows());
    if (w.FgPir1.number(row, kind) == kCycle) {
      leaveOut(w, row);
    } else if (const auto reason = runConfiguration(w, row)) {
      leaveOut(w, row);
      w.shell().status(placeInList(w, row, " non ricaricata"));
      mostraMancataRicarica(w, fmt::format("{}: {}", w.FgPir1.text(row, kName), *reason));
    } else {
      gather(w, row);
      ++run;
    }
  }
  return run;
}

}  // namespace

void EseguiProcedura(Workbench& w) {
  if (!w.FgPir1.hasData()) return w.shell().status("Nessuna configurazione: premi ELENCO in Configurazioni");
  const Form::Still still(w);
  w.FgRagg.cutToHeading();
  w.ComboFix.select(0);
  const int run = runAll(w);
  if (w.FgRagg.hasData()) w.FgRagg.setMerged({kKey, kName});
  w.FgRagg.setEmptyText("Nessuna previsione in corso");
  noteGrouping(w);
  MostraSfaldamenti(w);
  w.shell().progress(w.FgPir1.dataRows(), w.FgPir1.dataRows());
  w.shell().status(fmt::format("Esegue procedura: {} su {}, {} in corso",
                               counted(run, "configurazione", "configurazioni"), w.FgPir1.dataRows(),
                               counted(w.FgRagg.dataRows(), "previsione", "previsioni")));
}

void MostraSfaldamenti(Workbench& w) {
  const std::vector<Hits> all = outcomes(w);
  std::size_t out = 0;
  for (const Hits& hits : all) out += hits.size();
  if (out == 0) return w.shell().close("Speciale");
  showOutcomes(w, dynamic_cast<Speciale&>(w.shell().show("Speciale")).Fg1, all);
}

void ContaConvergenze(Workbench& w, int sorte) {
  const Convergences counts = convergencesOf(gathered(w), sorte);
  const Grid::Batch batch(w.FgConv);
  w.FgConv.cutToHeading();
  w.FgConv.setRows(1 + kMostNumber);
  int most = 0;
  for (int number = 1; number <= kMostNumber; ++number) {
    w.FgConv.setNumber(number, 0, number);
    for (int wheel = 0; wheel < trv5::kWheels; ++wheel) {
      const int count = counts[static_cast<std::size_t>(number)][static_cast<std::size_t>(wheel)];
      if (count > 0) w.FgConv.setNumber(number, wheel + 1, count);
      most = std::max(most, count);
    }
  }
  w.SorteConvergenze = sorte;
  noteConvergences(w);
  constexpr const char* kNames[] = {"", "ambate", "ambi", "terni"};
  w.shell().status(most == 0 ? fmt::format("Convergenze: nessuna previsione di {}", kNames[sorte])
                             : fmt::format("Convergenze di {}: al più {} sullo stesso numero e ruota", kNames[sorte],
                                           counted(most, "previsione", "previsioni")));
}

std::string spiegaConvergenza(const Workbench& w, int row, int column) {
  if (row < 1 || row >= w.FgConv.rows() || column < 1 || w.FgConv.number(row, column) == 0) return {};
  const std::vector<GroupedForecast> forecasts = gathered(w);
  const int wheel = column - 1;
  const int counted =
      convergencesOf(forecasts, w.SorteConvergenze)[static_cast<std::size_t>(row)][static_cast<std::size_t>(wheel)];
  if (counted != w.FgConv.number(row, column)) return {};
  std::string text;
  for (const std::string& name : configurationsBehind(forecasts, w.SorteConvergenze, row, wheel))
    text += (text.empty() ? "" : "\n") + name;
  return text;
}

void MostraNomeConfigurazione(Workbench& w, int row) {
  if (row >= 1 && row < w.FgRagg.rows()) w.Label7.setText(w.FgRagg.text(row, kName));
}

}  // namespace trv5
