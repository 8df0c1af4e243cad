#include "cases/result_states.h"

#include <fmt/format.h>

#include <algorithm>

#include "cases/case_rows.h"
#include "cases/chosen_situation.h"
#include "cases/formula_rows.h"

namespace trv5 {
namespace {

using Sources = std::vector<Origin>;
using Reason = std::optional<std::string>;

const Sources& sourcesOf(const Workbench& w, std::string_view grid) {
  static const Sources kNone;
  const auto found = w.origins.made.find(grid);
  return found == w.origins.made.end() ? kNone : found->second;
}

void setSources(Workbench& w, const GridControl& grid, Sources from) {
  w.origins.made[grid.name()] = std::move(from);
}

void addTo(Sources& all, const Sources& more) {
  for (const Origin& origin : more)
    if (std::find(all.begin(), all.end(), origin) == all.end()) all.push_back(origin);
}

bool areTheSame(const Workbench& w, const DrawsRead& draws) {
  return w.archive.digest(draws.last) == draws.digest;
}

// What is made from the draws 1..`last`; where it is made from cases too whose draws have changed since, it is no newer
// than these.
void readsDraws(const Workbench& w, Origin& origin, int last) {
  if (!origin.draws || areTheSame(w, *origin.draws)) origin.draws = DrawsRead{last, w.archive.digest(last)};
}

// The situation that the listed cases come from, the draws in which they were looked for, and these cases.
Origin casesOrigin(const Workbench& w) {
  Origin origin;
  if (const Sources& list = sourcesOf(w, w.FgEv.name()); !list.empty()) {
    origin.situation = list.front().situation;
    origin.draws = list.front().draws;
  }
  origin.cases = caseDraws(w);
  return origin;
}

// The wheels that a formula was found on play no part in its table.
std::vector<FormulaRow> formulasOf(const Workbench& w, Table table) {
  std::vector<FormulaRow> rows = readFormulas(w.formulas(table));
  for (FormulaRow& row : rows) row.wheels = 0;
  return rows;
}

WheelSet greenWheels(const Workbench& w) {
  WheelSet wheels = 0;
  for (int wheel = 0; wheel < kWheels; ++wheel)
    if (w.FgRG.back(0, wheel) == Verde) wheels |= 1U << wheel;
  return wheels;
}

// The list of the saved methods as it is shown.
std::vector<std::string> listedConfigurations(const Workbench& w) {
  std::vector<std::string> listed;
  for (int row = 1; row < w.FgPir1.rows(); ++row) listed.push_back(w.FgPir1.text(row, 1) + ' ' + w.FgPir1.text(row, 2));
  return listed;
}

Origin tableOrigin(const Workbench& w, Table table) {
  Origin origin = casesOrigin(w);
  origin.wheels = w.RuoteGioco;
  origin.colpi = w.Colpi;
  origin.reference = w.EstrazioneRiferimento;
  origin.table = table;
  readsDraws(w, origin, w.EstrazioneRiferimento);
  return origin;
}

// The hits that a summary of these tables joins.
Sources joinedHits(const Workbench& w, const SummaryChoice& choice) {
  Sources all;
  const std::pair<bool, Table> chosen[] = {
      {choice.ambate, Table::Ambate}, {choice.ambi, Table::Ambi}, {choice.terni, Table::Terni}};
  for (const auto& [joined, table] : chosen)
    if (joined && w.hits(table).hasData()) addTo(all, sourcesOf(w, w.hits(table).name()));
  return all;
}

// Text and green of each cell of S1..S5, LU.
std::vector<int> marksOf(const Workbench& w) {
  std::vector<int> marks;
  for (int row = 1; row < w.FgEv.rows(); ++row)
    for (int column = case_column::kHits; column <= case_column::kLunghetta; ++column)
      marks.push_back(2 * w.FgEv.number(row, column) + (isCovered(w, row, column) ? 1 : 0));
  return marks;
}

// What isn't hits itself tells when it was made from those of a row tried by itself.
Reason triedReason(const Sources& from) {
  for (const Origin& origin : from)
    if (origin.tried) return "Fatto con gli esiti della riga provata " + shortFormula(*origin.tried);
  return {};
}

Reason noReason(const Workbench&, const Sources&) {
  return {};
}

Reason marksReason(const Workbench& w, const Sources& from) {
  if (w.origins.counted != marksOf(w)) return "I segni sull'elenco sono cambiati dopo il conteggio";
  return triedReason(from);
}

// Also of the statistics where they are those of a summary.
Reason summaryReason(const Workbench& w, const Sources& from) {
  if (from.empty() || !from.back().summary) return {};
  const Sources now = joinedHits(w, *from.back().summary);
  if (!std::equal(from.begin(), from.end() - 1, now.begin(), now.end())) return "Gli esiti riassunti sono cambiati";
  return triedReason(from);
}

bool hasRows(const Grid& grid) {
  return grid.hasData();
}
bool hasTotals(const Grid& totals) {
  return !totals.text(0, 0).empty();
}
bool hasSection(const Grid& statistics) {
  return !statistics.text(0, 1).empty();
}

// A result that tells when it no longer fits: its grid, when that shows one, and what it has to look at beside the
// parts of its origins.
struct ResultRow {
  const char* grid;
  bool (*shown)(const Grid&);
  Reason (*reason)(const Workbench&, const Sources&);
};

constexpr ResultRow kResults[] = {
    {"FgEv", hasRows, noReason},
    {"FgSSS", hasTotals, marksReason},
    {"FgZ1", hasRows, noReason},
    {"FgZ2", hasRows, noReason},
    {"FgZ3", hasRows, noReason},
    {"FgZ0", hasRows, noReason},
    {"Fg_Stat", hasSection, summaryReason},
    {"FgZZ", hasRows, summaryReason},
    {"FgIC", hasRows, noReason},
    {"FgRagg", hasRows, noReason},
    {"FgConv", hasRows, noReason},
    {"FgRit", hasRows, noReason},
};

constexpr const char* kExpectedMeans =
    "Quanti casi coprirebbe in media la stessa giocata con numeri scelti prima, senza guardare l'archivio";

constexpr const char* kSeenMeans =
    "Una prova in avanti ha già percorso tutti i casi di questa situazione: ciò che si cerca ora su di essi non è "
    "più una prova";

std::string labelOf(const ResultRow& row) {
  return std::string("LblStato_") + row.grid;
}

Reason reasonOf(const Workbench& w, const ResultRow& row, const Origin& now) {
  const Sources& from = sourcesOf(w, row.grid);
  for (const Origin& origin : from)
    if (Reason reason = reasonOf(origin, now)) return reason;
  for (const Origin& origin : from)
    if (origin.draws && !areTheSame(w, *origin.draws)) return "Nell'archivio sono cambiate estrazioni su cui è fatto";
  return from.empty() ? Reason() : row.reason(w, from);
}

void show(Label& label, const std::string& text, const std::string& toolTip) {
  if (label.toolTip() != toolTip) label.setToolTip(toolTip);
  label.setText(text);
}

void showResults(Workbench& w) {
  std::optional<Origin> now;
  for (const ResultRow& row : kResults) {
    Reason reason;
    if (row.shown(w.get<GridControl>(row.grid))) {
      if (!now) now = chosenNow(w);
      reason = reasonOf(w, row, *now);
    }
    show(w.get<Label>(labelOf(row)), reason ? "non aggiornato" : "", reason.value_or(""));
  }
}

void showTriedRow(Workbench& w) {
  const Sources& from = sourcesOf(w, w.FgZ1.name());
  const bool tried = w.FgZ1.hasData() && !from.empty() && from.front().tried;
  const std::string text = tried ? "Esiti della riga provata " + shortFormula(*from.front().tried) : "";
  show(w.LblRigaProvata, text, text);
}

// What luck has to say goes with the statistics that it stands under: with them it grows old, and is told no more.
void showLuck(Workbench& w) {
  TableLuck luck = w.origins.luck;
  const bool stands = hasSection(w.Fg_Stat) && w.get<Label>("LblStato_Fg_Stat").text().empty();
  if (!stands || luck.archive != w.archive.loadStamp()) luck = {};
  show(w.LblAttesi, luck.expected, luck.expected.empty() ? "" : kExpectedMeans);
  show(w.LblBilancio, luck.balance, luck.toolTip);
}

// Which cases they are, whatever the draw from which they are looked for, and however many.
Situation ofAllCases(Situation situation) {
  situation.reference = situation.maxCases = 0;
  return situation;
}

void showSeen(Workbench& w) {
  const Sources& list = sourcesOf(w, w.FgEv.name());
  const bool known = w.FgEv.hasData() && !list.empty() && list.front().situation;
  const auto& seen = w.seenSituations;
  const bool was = known && std::find(seen.begin(), seen.end(), ofAllCases(*list.front().situation)) != seen.end();
  show(w.LblVisti, was ? "già visti" : "", was ? kSeenMeans : "");
}

void showReference(Workbench& w) {
  const int last = w.archive.UltimaEstrazione(), back = last - w.EstrazioneRiferimento;
  w.LblUltima.setText(back > 0 ? fmt::format("{} · {} prima dell'ultima", w.EstrazioneRiferimento, back)
                               : fmt::format("{} · ultima", w.EstrazioneRiferimento));
}

}  // namespace

Origin chosenNow(const Workbench& w) {
  Origin now;
  now.situation = chosenSituation(w);
  now.cases = caseDraws(w);
  now.wheels = greenWheels(w);
  now.colpi = w.ComboColpi.number();
  now.reference = w.EstrazioneRiferimento;
  now.archiveEnd = w.archive.UltimaEstrazione();
  now.sorte = w.ComboSorte.number();
  for (const TableTraits& table : kTables) now.formulas[indexOf(table.table)] = formulasOf(w, table.table);
  now.summary = {w.ChA.checked(), w.ChB.checked(), w.ChC.checked(), w.Ch1esito.checked()};
  now.configurations = listedConfigurations(w);
  now.grouping = w.origins.groupings;
  return now;
}

void noteSeenCases(Workbench& w, const Situation& situation) {
  const Situation seen = ofAllCases(situation);
  if (std::find(w.seenSituations.begin(), w.seenSituations.end(), seen) == w.seenSituations.end())
    w.seenSituations.push_back(seen);
}

Origin verificationOrigin(const Workbench& w, Table table, bool beyondLimit) {
  Origin origin = tableOrigin(w, table);
  const int joined = traitsOf(table).joinedTables;
  for (const Table read : {Table::Ambate, Table::Ambi, Table::Terni, Table::Lunghetta})
    if (read == table || static_cast<int>(indexOf(read)) < joined) origin.formulas[indexOf(read)] = formulasOf(w, read);
  if (table == Table::Lunghetta) origin.sorte = w.ComboSorte.number();
  if (beyondLimit) {
    origin.archiveEnd = w.archive.UltimaEstrazione();
    readsDraws(w, origin, w.archive.UltimaEstrazione());
  }
  return origin;
}

void noteCases(Workbench& w) {
  Origin origin;
  origin.situation = chosenSituation(w);
  readsDraws(w, origin, w.EstrazioneRiferimento);
  setSources(w, w.FgEv, {origin});
  w.origins.marks = {};
}

void noteHits(Workbench& w, Table table, bool beyondLimit) {
  setSources(w, w.hits(table), {verificationOrigin(w, table, beyondLimit)});
}

void noteTriedRow(Workbench& w, const FormulaRow& row) {
  Origin origin = tableOrigin(w, Table::Ambate);
  origin.tried = row;
  setSources(w, w.FgZ1, {origin});
  noteMarks(w, case_column::kHits + w.Sorte - 1, {origin});
}

void noteMarks(Workbench& w, int column, const std::vector<Origin>& from) {
  addTo(w.origins.marks[static_cast<std::size_t>(column - case_column::kHits)], from);
}

void noteElaboration(Workbench& w) {
  noteMarks(w, case_column::kLunghetta, {verificationOrigin(w, Table::Lunghetta)});
}

void noteTotals(Workbench& w) {
  Sources from = {casesOrigin(w)};
  for (const Sources& column : w.origins.marks) addTo(from, column);
  setSources(w, w.FgSSS, std::move(from));
  w.origins.counted = marksOf(w);
}

void noteStatistics(Workbench& w, const GridControl& from) {
  setSources(w, w.Fg_Stat, sourcesOf(w, from.name()));
  w.origins.luck = {};
}

void noteSummary(Workbench& w) {
  const SummaryChoice choice = {w.ChA.checked(), w.ChB.checked(), w.ChC.checked(), w.Ch1esito.checked()};
  Sources from = joinedHits(w, choice);
  Origin own = casesOrigin(w);
  own.summary = choice;
  from.push_back(std::move(own));
  setSources(w, w.FgZZ, std::move(from));
}

void noteNumbersInPlay(Workbench& w) {
  Origin origin = casesOrigin(w);
  origin.colpi = w.Colpi;
  origin.reference = w.EstrazioneRiferimento;
  readsDraws(w, origin, w.EstrazioneRiferimento);
  for (const TableTraits& table : kTables) origin.formulas[indexOf(table.table)] = formulasOf(w, table.table);
  setSources(w, w.Fg15, {origin});
}

void noteForecasts(Workbench& w) {
  Origin own = casesOrigin(w);
  own.wheels = greenWheels(w);
  own.colpi = w.Colpi;
  own.reference = w.EstrazioneRiferimento;
  readsDraws(w, own, w.EstrazioneRiferimento);
  if (w.Fg00.hasData()) own.sorte = w.ComboSorte.number();
  Sources from = sourcesOf(w, w.Fg15.name());
  from.push_back(std::move(own));
  setSources(w, w.FgIC, std::move(from));
}

void noteAddedHits(Workbench& w) {
  addTo(w.origins.made[w.FgZ1.name()], {verificationOrigin(w, Table::Ambate, true)});
}

void noteGrouping(Workbench& w) {
  ++w.origins.groupings;
  Origin origin;
  origin.archiveEnd = w.archive.UltimaEstrazione();
  origin.configurations = listedConfigurations(w);
  readsDraws(w, origin, w.archive.UltimaEstrazione());
  setSources(w, w.FgRagg, {origin});
}

void noteConvergences(Workbench& w) {
  Sources from = sourcesOf(w, w.FgRagg.name());
  Origin own;
  own.grouping = w.origins.groupings;
  from.push_back(own);
  setSources(w, w.FgConv, std::move(from));
}

void noteDelays(Workbench& w, bool ofCases) {
  Origin origin;
  if (ofCases) {
    origin = casesOrigin(w);
    origin.colpi = w.Colpi;
  }
  origin.wheels = greenWheels(w);
  origin.reference = w.EstrazioneRiferimento;
  readsDraws(w, origin, w.EstrazioneRiferimento);
  setSources(w, w.FgRit, {origin});
}

void MostraStati(Workbench& w) {
  showResults(w);
  showLuck(w);
  showSeen(w);
  showTriedRow(w);
  show(w.LblOrigine, w.FgF.hasData() ? w.origins.ranking : "", w.FgF.hasData() ? w.origins.ranking : "");
  showReference(w);
}

void connectResultStates(Workbench& w) {
  for (const ResultRow& row : kResults) w.addLabel(labelOf(row));
  w.settled = w.shell().operations().whenSettled([&w] { MostraStati(w); });
}

}  // namespace trv5
