#include "engine/prova_avanti.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "cases/formula_rows.h"
#include "core/figures.h"
#include "core/palette.h"
#include "core/text.h"
#include "engine/forward_texts.h"
#include "engine/table_tools.h"
#include "method/verification.h"

namespace trv5 {
namespace {

constexpr int kLearnt[] = {10, 20, 30, 50};
constexpr int kUsual = 2;  // of these

namespace test_column {
enum : int { kDate, kFormula, kFix, kOnLearnt, kNumber, kColpo, kPlayedOn };
}

// By case: covered by the table whose cases the search had left out.
std::vector<bool> coveredCases(const Archive& archive, const LastSearch& search, const std::vector<int>& cases) {
  std::vector<bool> covered;
  if (!search.coveredBy) return covered;
  ParametriFormula carry;
  const Verification verified = verify(archive, *search.coveredBy, search.coveredTable, cases, {}, carry);
  for (std::size_t i = 0; i < cases.size(); ++i) covered.push_back(verified.covered(i));
  return covered;
}

}  // namespace

ProvaAvanti::ProvaAvanti(const Archive& archive, Shell& shell)
    : Form(shell, "ProvaAvanti", "Prova in avanti", kHelpContext), m_archive(archive) {
  Fg_Prove.setEmptyText("Premi Prova");
  Fg_Prove.setColumnHidden(test_column::kPlayedOn);
  Stampa_Fg_Prove.onEvent([this] { StampaTabella(Fg_Prove); });
  Copia_Fg_Prove.onEvent([this] { CopiaTabella(Fg_Prove); });
  Cmd_Prova.onEvent([this] { start(); });
  Cmd_Ferma.onEvent([this] {
    if (m_walk != nullptr) finish();
  });
}

ProvaAvanti::ProvaAvanti(Program& program) : ProvaAvanti(program.archive, program.shell) {
  // The draws that a walk reads are gone, and what it told was told of them.
  keep(program.archiveReloaded.subscribe([this] { prepare({}, {}); }));
}

void ProvaAvanti::load() {
  std::vector<std::string> items;
  for (const int learnt : kLearnt) items.push_back(std::to_string(learnt));
  ComboImpara.setItems(std::move(items));
  ComboImpara.select(kUsual);
  enable();
}

void ProvaAvanti::prepare(const std::optional<LastSearch>& search, std::function<void(const LastSearch&)> tested) {
  m_tested = std::move(tested);
  if (search == m_search) return;
  forgetWalk();
  m_search = search;
  clearFigures();
  LblRicerca.setText(search ? search->name
                            : "Nessuna ricerca da provare: fanne prima una sul banco, poi Prova in avanti");
  enable();
}

void ProvaAvanti::enable() {
  Cmd_Prova.setEnabled(m_search && m_walk == nullptr);
  ComboImpara.setEnabled(m_walk == nullptr);
  Cmd_Ferma.setEnabled(m_walk != nullptr);
}

void ProvaAvanti::clearFigures() {
  m_figures = {.tests = {}, .share = {}};
  for (Label* const label : {&LblFrase, &LblDettaglio, &LblVisti, &LblConto}) label->setText("");
  Fg_Prove.cutToHeading();
  figuresChanged.send();
}

void ProvaAvanti::forgetWalk() {
  if (m_walk == nullptr) return;
  m_walk.reset();
  ++*m_runs;
  shell().progress(0, 0);
}

void ProvaAvanti::start() {
  if (!m_search || m_walk != nullptr) return;
  clearFigures();
  m_learnt = ComboImpara.number();
  ForwardRequest request{
      .search = m_search->request, .cases = allCases(m_archive, m_search->situation), .learnt = m_learnt};
  request.search.archive = &m_archive;
  request.passedOver = coveredCases(m_archive, *m_search, request.cases);
  m_walk = std::make_unique<ForwardWalk>(std::move(request));
  enable();
  // This form may go, and the run may be over, before the shell's next step.
  shell().inSteps([this, runs = std::weak_ptr(m_runs), run = *m_runs] {
    const auto alive = runs.lock();
    return alive != nullptr && *alive == run && step();
  });
}

// A slice of the walk; true while there is more to come.
bool ProvaAvanti::step() {
  m_walk->advance(slice);
  shell().progress(m_walk->done(), std::max(1, m_walk->planned()));
  LblConto.setText(fmt::format("{} di {}", figureText(m_walk->done()), figureText(m_walk->planned())));
  if (!m_walk->over()) return true;
  perform([this] { finish(); });
  return false;
}

// The walk is over, or it is stopped where it stands.
void ProvaAvanti::finish() {
  m_figures = m_walk->figures();
  m_whole = m_walk->over();
  m_planned = m_walk->planned();
  forgetWalk();
  writeTests();
  writeSentence();
  figuresChanged.send();
  enable();
  if (!m_figures.tests.empty()) {
    LblVisti.setText("I casi dell'elenco valgono ora come già visti.");
    if (m_tested) m_tested(*m_search);
  }
  shell().status("Prova in avanti: " + counted(static_cast<int>(m_figures.tests.size()), "prova", "prove"));
}

void ProvaAvanti::writeTests() {
  using namespace test_column;
  const Grid::Batch batch(Fg_Prove);
  const AmbataRequest& search = m_search->request;
  Fg_Prove.cutToHeading();
  Fg_Prove.setText(0, kOnLearnt, "Su " + std::to_string(m_learnt));
  Fg_Prove.setColumnHidden(kPlayedOn, search.wheelSets.size() < 2);
  Fg_Prove.setColumnHidden(kFix, !search.withFix);
  for (auto test = m_figures.tests.rbegin(); test != m_figures.tests.rend(); ++test) {
    const int row = Fg_Prove.appendRow();
    Fg_Prove.setText(row, kDate, m_archive.DateEstrazioni(test->draw));
    Fg_Prove.setText(row, kFormula, briefFormula(search.formula, test->formula.elements));
    Fg_Prove.setNumber(row, kFix, test->formula.fix);
    Fg_Prove.setNumber(row, kOnLearnt, test->formula.cc);
    Fg_Prove.setNumber(row, kNumber, test->number);
    if (test->colpo > 0) Fg_Prove.setNumber(row, kColpo, test->colpo);
    Fg_Prove.setBack(row, kColpo, test->colpo > 0 ? VerdeMedio : AranciaMedio);
    Fg_Prove.setText(row, kPlayedOn, wheelCodes(search.wheelSets[static_cast<std::size_t>(test->formula.wheelSet)]));
  }
  if (Fg_Prove.hasData()) Fg_Prove.setCurrent(1);
}

void ProvaAvanti::writeSentence() {
  if (m_figures.tests.empty()) {
    LblFrase.setText(!m_whole ? "La prova è stata fermata prima della prima riga."
                     : m_planned > 0
                         ? "In nessun caso c'era una formula da giocare."
                         : fmt::format("Troppo pochi casi: prima di ogni prova ne servono {} già conclusi.", m_learnt));
    return;
  }
  const bool toNow = m_whole && m_search->request.lastDraw == m_archive.UltimaEstrazione();
  LblFrase.setText(forwardSentence(m_archive, m_figures, m_whole, toNow));
  LblDettaglio.setText(forwardDetails(m_figures));
}

std::vector<ProvaAvanti::YearTick> ProvaAvanti::yearTicks() const {
  std::vector<YearTick> ticks;
  if (m_figures.tests.empty()) return ticks;
  const int first = yearOf(m_archive, m_figures.tests.front()), last = yearOf(m_archive, m_figures.tests.back());
  const int every = last - first >= 30 ? 10 : last - first >= 10 ? 5 : 1;
  int next = (first + every - 1) / every * every;
  for (std::size_t i = 0; i < m_figures.tests.size(); ++i) {
    const int year = yearOf(m_archive, m_figures.tests[i]);
    if (year < next) continue;
    const int told = year / every * every;
    ticks.push_back({static_cast<int>(i) + 1, std::to_string(told)});
    next = told + every;
  }
  return ticks;
}

}  // namespace trv5
