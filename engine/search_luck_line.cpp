#include "engine/search_luck_line.h"

#include <fmt/format.h>

#include <utility>

#include "cases/case_rows.h"
#include "cases/formula_rows.h"
#include "cases/result_states.h"
#include "core/dates.h"
#include "core/text.h"
#include "engine/hit_sources.h"
#include "engine/luck_texts.h"
#include "engine/time_slice.h"

namespace trv5 {
namespace {

std::string textsOf(const Grid& grid) {
  std::string texts;
  for (int row = 0; row < grid.rows(); ++row)
    for (int column = 0; column < grid.columns(); ++column) texts += grid.text(row, column) + '\n';
  return texts;
}

// The choices that a search has read: a change of any other leaves its ranking what it was.
Origin readBy(const Workbench& w, const RankedSearch& search) {
  Origin origin = chosenNow(w);
  origin.archiveEnd.reset();
  origin.summary.reset();
  origin.configurations.reset();
  origin.grouping.reset();
  if (search.ownWheels) origin.wheels.reset();
  if (search.companionsOf != Table::Lunghetta) origin.sorte.reset();
  // Companions are verified beside the tables below theirs and, where these are kept, the formulas of their own.
  const std::size_t tables = search.companionsOf ? indexOf(*search.companionsOf) + 1 : 0;
  for (std::size_t table = tables; table < origin.formulas.size(); ++table) origin.formulas[table].reset();
  if (search.companionsOf) origin.table = *search.companionsOf;
  return origin;
}

std::string hitsText(const Workbench& w, const RankedSearch& search) {
  return search.companionsOf ? textsOf((w.*hitSource(*search.companionsOf).hits).grid()) : std::string();
}

// All marks: which column the search looked at hangs on its sorte.
std::vector<bool> coveredMarks(const Workbench& w) {
  std::vector<bool> marks;
  for (int row = 1; row < w.FgEv.rows(); ++row)
    for (int column = case_column::kHits; column <= case_column::kLunghetta; ++column)
      marks.push_back(isCovered(w, row, column));
  return marks;
}

// What makes one search another one, on the same cases.
std::string nameOf(const Workbench& w) {
  std::string name = fmt::format("{} {} {} {}", w.origins.ranking, w.Colpi, w.EstrazioneRiferimento, w.Sorte);
  for (const bool allowed : w.FixAmmessi) name += allowed ? '1' : '0';
  return name;
}

void setText(Label& label, const std::string& text) {
  if (label.text() != text) label.setText(text);
}

}  // namespace

void SearchLuckLine::note(RankedSearch search) {
  m_tried[caseDraws(m_w)].insert(nameOf(m_w));
  m_figures.reset();
  m_luck.reset();
  m_running = m_demanded = false;
  ++m_run;
  Seen seen;
  seen.search = std::move(search);
  seen.archive = m_w.archive.loadStamp();
  seen.origin = readBy(m_w, seen.search);
  seen.ranking = textsOf(m_w.FgF.grid());
  seen.hits = hitsText(m_w, seen.search);
  if (m_w.Ch_Scoperti.checked()) seen.covered = coveredMarks(m_w);
  m_seen = std::move(seen);
}

bool SearchLuckLine::fresh() const {
  return m_seen && m_seen->archive == m_w.archive.loadStamp() && !reasonOf(m_seen->origin, chosenNow(m_w)) &&
         (m_seen->covered.empty() || m_seen->covered == coveredMarks(m_w)) &&
         m_seen->ranking == textsOf(m_w.FgF.grid()) && m_seen->hits == hitsText(m_w, m_seen->search);
}

const RankedSearch* SearchLuckLine::search() const {
  const bool found = m_w.FgF.hasData() && m_w.FgF.number(m_w.FgF.headingRows(), formula_column::kCc) > 0;
  return found && m_seen && m_seen->search.repeat && fresh() ? &m_seen->search : nullptr;
}

std::string SearchLuckLine::whyNone() const {
  if (!m_w.FgF.hasData()) return "Nessuna ricerca da confrontare col caso: prima premi una ricerca";
  if (!fresh()) return "La ricerca non è più quella di prima: ripetila per confrontarla col caso";
  return search() == nullptr ? "Per questa ricerca il confronto col caso non c'è" : "";
}

int SearchLuckLine::tried() const {
  const auto found = m_tried.find(caseDraws(m_w));
  return found == m_tried.end() ? 0 : static_cast<int>(found->second.size());
}

void SearchLuckLine::demand() {
  m_demanded = true;
}

void SearchLuckLine::settle() {
  const bool holds = search() != nullptr;
  if (!holds && m_running) {
    ++m_run;
    m_running = false;
    m_luck.reset();
  }
  if (holds && !m_figures && !m_running && (m_demanded || m_w.Ch_Caso.checked())) begin();
  show(holds);
}

void SearchLuckLine::begin() {
  m_running = true;
  m_w.shell().inSteps([weak = weak_from_this(), run = m_run] {
    const auto self = weak.lock();
    return self != nullptr && self->step(run);
  });
}

bool SearchLuckLine::step(int run) {
  if (run != m_run || !m_seen) return false;
  const TimeSlice slice;
  if (m_luck == nullptr) m_luck = std::make_unique<SearchLuck>(m_seen->search.repeat(), usualSeed(m_w.archive));
  while (m_luck->replicas() < kReplicas) {
    if (slice.over()) return true;
    m_luck->draw(std::min(kReplicas, m_luck->replicas() + kReplicasOfPiece));
  }
  m_figures = m_luck->figures();
  m_luck.reset();
  m_running = false;
  show(search() != nullptr);
  return false;
}

// Where the best of the ranking isn't the best that was set beside luck, nothing is said.
void SearchLuckLine::show(bool holds) {
  std::string line, brief, searches;
  if (holds && m_figures && m_figures->best == m_w.FgF.number(m_w.FgF.headingRows(), formula_column::kCc)) {
    const LuckOfBest luck{.best = m_figures->best,
                          .reached = m_figures->reached(m_figures->best),
                          .replicas = m_figures->replicas,
                          .mean = m_figures->mean,
                          .numbers = m_seen->search.numbers};
    searches = searchesTried(tried());
    line = luckSentence(luck) + " " + searches;
    brief = shortLuck(luck);
  }
  setText(m_w.LblCasoBreve, brief);
  setText(m_w.LblRicerche, searches);
  if (m_w.LblCaso.toolTip() != line) m_w.LblCaso.setToolTip(line);
  setText(m_w.LblCaso, line);
}

std::string SearchLuckLine::ofRow(int row) const {
  if (m_w.LblCaso.text().empty() || !m_figures) return {};
  const int count = m_w.FgF.number(row, formula_column::kCc);
  for (const LuckOfCount& luck : m_figures->counts)
    if (luck.count == count && count > 0)
      return luckOfRow(luck, m_figures->replicas, count == m_figures->best, m_seen->search.numbers);
  return {};
}

void noteSearch(Workbench& w, RankedSearch search) {
  if (w.luck != nullptr) w.luck->note(std::move(search));
}

std::uint64_t usualSeed(const Archive& archive) {
  const std::string date = archive.UltimaEstrazione() > 0 ? archive.DateEstrazioni(archive.UltimaEstrazione()) : "";
  if (date.size() != 10) return 1;
  return static_cast<std::uint64_t>(numberOf(date.substr(6, 4))) * 10000 +
         static_cast<std::uint64_t>(numberOf(date.substr(3, 2))) * 100 +
         static_cast<std::uint64_t>(numberOf(date.substr(0, 2)));
}

std::string rankingCellText(const Workbench& w, int row, int column) {
  if (w.luck == nullptr || column != formula_column::kCc || row < w.FgF.headingRows() || row >= w.FgF.rows()) return {};
  return w.luck->ofRow(row);
}

void connectLuck(Workbench& w) {
  w.luck = std::make_shared<SearchLuckLine>(w);
  for (Label* const label : {&w.LblCaso, &w.LblCasoBreve, &w.LblRicerche}) label->leaveOutOfState();
  w.Ch_Caso.set(true);
  w.keep(w.shell().operations().whenSettled([&w] { w.luck->settle(); }));
}

}  // namespace trv5
