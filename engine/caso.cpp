#include "engine/caso.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <optional>
#include <utility>

#include "core/text.h"
#include "engine/search_luck_line.h"
#include "engine/table_tools.h"
#include "engine/time_slice.h"

namespace trv5 {
namespace {

constexpr int kReplicas[] = {999, 9999, 99999};

std::optional<std::uint64_t> seedOf(const std::string& text) {
  std::uint64_t seed = 0;
  const std::string_view digits = trimmed(text);
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), seed);
  return error == std::errc() && end == digits.data() + digits.size() ? std::optional(seed) : std::nullopt;
}

}  // namespace

Caso::Caso(Shell& shell) : Form(shell, "Caso", "Merito del caso") {
  std::vector<std::string> items;
  for (const int replicas : kReplicas) items.push_back(thousands(replicas));
  ComboRepliche.setItems(std::move(items));
  ComboRepliche.select(0);
  Cmd_Ferma.setEnabled(false);
  Fg_Conti.setEmptyText("Premi Sorteggia");
  Cmd_Sorteggia.onEvent([this] { Sorteggia(); });
  Cmd_Ferma.onEvent([this] { Ferma(); });
  Stampa.onEvent([this] { StampaTabella(Fg_Conti); });
  Copia.onEvent([this] { CopiaTabella(Fg_Conti); });
}

Caso::Caso(Program& program) : Caso(program.shell) {
  keep(program.archiveReloaded.subscribe([this] { forget(); }));
}

Caso::~Caso() {
  ++*m_run;
}

int Caso::wanted() const {
  return kReplicas[static_cast<std::size_t>(std::clamp(ComboRepliche.index(), 0, 2))];
}

void Caso::study(const RankedSearch& search, std::string origin, std::string tried, const Archive& archive) {
  forget();
  m_search = search;
  m_tried = std::move(tried);
  LblOrigine.setText(std::move(origin));
  LblFermi.setText(search.heldFixed);
  if (trimmed(Txt_Seme.text()).empty()) Txt_Seme.set(std::to_string(usualSeed(archive)));
  Sorteggia();
}

void Caso::forget() {
  end();
  m_search = {};
  m_tally.reset();
  m_seconds = 0;
  LblOrigine.setText("");
  LblFermi.setText("");
  showFigures();
}

void Caso::Sorteggia() {
  const std::optional<std::uint64_t> seed = seedOf(Txt_Seme.text());
  if (!m_search.repeat) {
    shell().status("Nessuna ricerca: premi Quanto è merito del caso? sul banco");
    return;
  }
  if (!seed) {
    shell().status("Il seme è un numero di al più 18 cifre");
    return;
  }
  end();
  // A longer series goes on from the shorter one, of which it is the continuation.
  if (m_tally == nullptr || m_tally->seed() != *seed || m_tally->replicas() > wanted()) {
    m_tally = std::make_unique<FormulaTally>(m_search.repeat(), *seed, 1);
    m_seconds = 0;
  }
  m_target = wanted();
  m_running = true;
  Cmd_Ferma.setEnabled(true);
  Cmd_Sorteggia.setEnabled(false);
  showFigures();
  shell().inSteps([this, alive = std::weak_ptr<int>(m_run), run = *m_run] {
    const auto current = alive.lock();
    return current != nullptr && *current == run && step();
  });
}

bool Caso::step() {
  const TimeSlice slice;
  const auto begin = std::chrono::steady_clock::now();
  while (m_tally->replicas() < m_target && !slice.over())
    m_tally->draw(std::min(m_target, m_tally->replicas() + kReplicasOfPiece));
  m_seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
  shell().progress(m_tally->replicas(), m_target);
  if (m_tally->replicas() == m_target) end();
  showFigures();
  return m_running;
}

void Caso::Ferma() {
  end();
  shell().progress(m_target, m_target);
  showFigures();
  shell().status("Sorteggi fermati a " + thousands(m_tally == nullptr ? 0 : m_tally->replicas()));
}

void Caso::end() {
  ++*m_run;
  m_running = false;
  Cmd_Ferma.setEnabled(false);
  Cmd_Sorteggia.setEnabled(true);
}

void Caso::showCount() {
  if (m_tally == nullptr) return LblConto.setText("");
  std::string text = fmt::format("{} di {}", thousands(m_tally->replicas()), thousands(m_target));
  if (m_tally->replicas() == m_target) text += fmt::format(" in {} s", oneDecimal(m_seconds));
  LblConto.setText(std::move(text));
}

void Caso::showFigures() {
  m_bars = {};
  showCount();
  showSentences();
  if (barsChanged) barsChanged();
}

void Caso::showSentences() {
  if (m_tally == nullptr || m_tally->replicas() == 0) {
    for (Label* const label : {&LblFrase, &LblSerie, &LblColonne}) label->setText("");
    Fg_Conti.cutToHeading();
    return;
  }
  const int best = m_tally->best();
  LuckOfBest luck{.best = best, .replicas = m_tally->replicas(), .mean = m_tally->mean(), .numbers = m_search.numbers};
  const std::vector<int>& byBest = m_tally->replicasByBest();
  for (auto count = static_cast<std::size_t>(best); count < byBest.size(); ++count) luck.reached += byBest[count];
  m_bars = {.replicasByBest = byBest, .best = best, .rare = luck.rare()};
  const bool whole = m_tally->replicas() == m_target;
  LblFrase.setText(whole ? luckSentence(luck) : luckSoFar(luck));
  LblSerie.setText(luckOfLongerSeries(luck) + " " + m_tried);
  LblColonne.setText(fmt::format(
      "Tue: {} che coprono almeno tanti casi. Dal caso: {} in media in un archivio "
      "sorteggiato. Archivi: quanti su {} ne hanno almeno {}.",
      // Of companions the rows of the list are counted, no others.
      m_search.numbers        ? "i numeri della ricerca"
      : m_search.companionsOf ? "le formule in elenco"
                              : "le formule della ricerca",
      m_search.numbers ? "quanti" : "quante", thousands(luck.archives()), m_search.numbers ? "uno" : "una"));
  showTable(luck);
}

// A row a count, from the most that luck or the own search reaches down to three below the least best of luck.
void Caso::showTable(const LuckOfBest& luck) {
  const std::vector<int>& byBest = m_tally->replicasByBest();
  const auto least = std::find_if(byBest.begin(), byBest.end(), [](int replicas) { return replicas > 0; });
  const int from = std::max(1, std::min(static_cast<int>(least - byBest.begin()), luck.best) - 3);
  const Grid::Batch batch(Fg_Conti.grid());
  Fg_Conti.cutToHeading();
  int reached = 0;
  std::size_t seen = byBest.size();
  for (const TallyOfCount& count : m_tally->rows()) {
    if (count.count < from) break;
    while (seen > static_cast<std::size_t>(count.count)) reached += byBest[--seen];
    const int row = Fg_Conti.appendRow();
    Fg_Conti.setNumber(row, 0, count.count);
    Fg_Conti.setText(row, 1, thousands(count.own));
    Fg_Conti.setText(row, 2, oneDecimal(count.byLuck));
    Fg_Conti.setText(row, 3, thousands(reached + (luck.best >= count.count ? 1 : 0)));
    if (count.count == luck.best) Fg_Conti.setCurrent(row);
  }
}

void MostraMeritoCaso(Workbench& w) {
  const RankedSearch* const search = w.luck == nullptr ? nullptr : w.luck->search();
  if (search == nullptr) {
    w.shell().status(w.luck == nullptr ? "" : w.luck->whyNone());
    return;
  }
  w.luck->demand();
  auto& window = dynamic_cast<Caso&>(w.shell().show("Caso"));
  window.study(*search, w.origins.ranking, searchesTried(w.luck->tried()), w.archive);
  w.shell().status("Merito del caso: " + w.origins.ranking);
}

}  // namespace trv5
