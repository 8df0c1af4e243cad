#include "engine/candidate_check.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "core/text.h"
#include "engine/colouring.h"
#include "engine/evaluation.h"
#include "engine/formula_tables.h"
#include "engine/hit_rows.h"
#include "engine/verification.h"
#include "method/companion_counts.h"
#include "method/formula.h"

namespace trv5 {
namespace {

constexpr int kMostLunghetta = 10;

// What differs between the three buttons, beside their kind of table.
struct CcKind {
  int sorte;
  bool keepsTable;                                  // candidates are verified on top of the table's own formulas
  GridControl Workbench::*emptiedHits;              // emptied at the end when the table was empty
  std::vector<GridControl Workbench::*> completed;  // tables whose numbers a candidate completes
};

const CcKind& ccKind(int sorte) {
  static const std::array<CcKind, 3> kinds = {
      {{2, false, &Workbench::FgZ2, {&Workbench::Fg11}},
       {3, false, &Workbench::FgZ3, {&Workbench::Fg11, &Workbench::Fg22}},
       {6, true, &Workbench::FgZ2, {&Workbench::Fg00}}}};  // the grid of the ambi, on purpose: FgZ0 stays
  return *std::find_if(kinds.begin(), kinds.end(), [sorte](const CcKind& kind) { return kind.sorte == sorte; });
}

bool isBlank(const Grid& candidates, int row) {
  return candidates.text(row, formula_column::kFix).empty() && candidates.text(row, formula_column::kR1).empty();
}

// True when the formula's value doesn't hang on the evaluation before it.
bool standsAlone(const Grid& formulas, int row) {
  using namespace formula_column;
  const int nr = formulas.number(row, kNr), qn = formulas.number(row, kQn);
  if (nr == 0) return true;
  if (findElementTable(formulas.text(row, kAlteration)) == nullptr) return false;
  if (nr == 1 && qn == 1) return true;
  if (formulas.text(row, kR2).empty()) return false;
  if (nr == 1 && qn == 3) return !formulas.text(row, kR3).empty();
  return (nr == 2 || (nr == 1 && qn == 2)) && operatorOf(formulas.text(row, kOperator)).has_value();
}

bool allStandAlone(const Workbench& w) {
  for (const Grid* table : {&w.Fg11.grid(), &w.Fg22.grid(), &w.Fg33.grid(), &w.Fg00.grid()})
    for (int row = 1; row < table->rows(); ++row)
      if (!standsAlone(*table, row)) return false;
  for (int row = 1; row < w.FgF.rows(); ++row)
    if (!isBlank(w.FgF, row) && !standsAlone(w.FgF, row)) return false;
  return true;
}

struct Counts {
  int hits = 0, covered = 0;
  void add(int ofCase) {
    hits += ofCase;
    if (ofCase > 0) ++covered;
  }
};

// Counts candidates by look-ups: in each case, how many hits each number 1..90 would make with the numbers in play.
class CountByTables {
 public:
  CountByTables(const Workbench& w, const CcKind& kind) : m_archive(w.archive) {
    for (int i = 1; i < w.FgEv.rows(); ++i) {
      OneCase one{.draw = caseDraw(w, i),
                  .excluded = w.Ch_Scoperti.checked() && w.CasiEsclusi[static_cast<std::size_t>(i)]};
      const std::vector<std::vector<int>> lists = numbersInPlay(w, kind, one.draw);
      if (kind.keepsTable) {
        NumberFlags inPlay{};
        for (int n : lists.front()) inPlay[static_cast<std::size_t>(n)] = true;
        one.counts = companionsOfAll(m_archive, one.draw, playWindow(w), inPlay, w.ComboSorte.number());
      } else if (!one.excluded) {
        one.counts = companionsOfSets(m_archive, one.draw, playWindow(w), lists);
      }
      m_cases.push_back(one);
    }
  }

  Counts candidate(const Grid& candidates, int row) const {
    ParametriFormula p;
    caricaParametri(candidates, row, p);
    Counts counts;
    for (const OneCase& one : m_cases) {
      p.Estr = one.draw;
      OttieneNumero(m_archive, p);
      counts.add(hits(one, p.NumeroOttenuto));
    }
    return counts;
  }

  // The table's own numbers, without a candidate.
  Counts tableAlone() const {
    Counts counts;
    for (const OneCase& one : m_cases) counts.add(hits(one, 0));
    return counts;
  }

 private:
  struct OneCase {
    int draw = 0;
    bool excluded = false;
    CompanionCounts counts = {};
  };

  static std::vector<std::vector<int>> numbersInPlay(const Workbench& w, const CcKind& kind, int draw) {
    std::vector<std::vector<int>> lists;
    ParametriFormula p;
    p.Estr = draw;
    for (const auto table : kind.completed) {
      const Grid& formulas = w.*table;
      std::vector<int>& list = lists.emplace_back();
      for (int row = 1; row < formulas.rows(); ++row) {
        caricaParametri(formulas, row, p);
        OttieneNumero(w.archive, p);
        const int n = p.NumeroOttenuto;
        if (n >= 1 && n <= kMostNumber && std::find(list.begin(), list.end(), n) == list.end()) list.push_back(n);
      }
    }
    return lists;
  }

  static int hits(const OneCase& one, int number) {
    const auto n = static_cast<std::size_t>(number >= 1 && number <= kMostNumber ? number : 0);
    const int hits = one.counts.always + one.counts.with[n];
    if (!one.excluded) return hits;
    // The closing elaboration of the lunghetta knows no exclusion: it marks by the last wheel looked at.
    return one.counts.playedOnLastWheel + (one.counts.onLastWheel[n] ? 1 : 0) >= 2 ? hits : 0;
  }

  const Archive& m_archive;
  std::vector<OneCase> m_cases;
};

class Run {
 public:
  Run(Workbench& w, int sorte)
      : m_w(w), m_kind(ccKind(sorte)), m_verification(tableKind(sorte)), m_table(w.*m_verification.formulas) {}

  void inFull() {
    begin();
    for (int row = 1; row < m_w.FgF.rows(); ++row) {
      verify(row);
      takeCounts(row);
    }
    end();
  }

  // Counts every candidate without writing a hit row; the last one is verified in full, since its traces stay.
  void quick() {
    begin();
    const int last = lastCandidate();
    const bool byTables = !m_refused && allStandAlone(m_w) && !m_w.archive.repeatsNumbers();
    const auto tables = byTables ? std::make_unique<CountByTables>(m_w, m_kind) : nullptr;
    for (int row = 1; row < m_w.FgF.rows(); ++row) {
      if (row == last) {
        verify(row);
        takeCounts(row);
        continue;
      }
      if (m_refused) {
        writeCounts(row);
        continue;
      }
      const bool added = accepts() && !isBlank(m_w.FgF, row);
      if (!byTables) {
        countInSequence(row, added);
      } else if (added) {
        m_counts = texts(tables->candidate(m_w.FgF, row));
        leaveInRecord(row);
      } else if (m_rowsBefore > 1) {
        m_counts = texts(tables->tableAlone());
      }
      writeCounts(row);
    }
    if (m_w.FgF.hasData()) m_w.FgF.setCurrent(m_w.FgF.rows() - 1, m_w.FgF.currentColumn());
    end();
  }

 private:
  struct CountTexts {
    std::string hits, covered;
  };

  static CountTexts texts(const Counts& counts) {
    return {std::to_string(counts.hits), std::to_string(counts.covered)};
  }

  int column() const { return m_verification.markColumn - case_column::kHits; }
  bool accepts() const { return !m_kind.keepsTable || m_rowsBefore - 1 < kMostLunghetta; }

  // The row whose verification is the last one. The formulas that a table keeps are verified at blank rows too.
  int lastCandidate() const {
    if (m_rowsBefore > 1) return m_w.FgF.rows() - 1;
    for (int row = m_w.FgF.rows() - 1; row >= 1; --row)
      if (!isBlank(m_w.FgF, row)) return row;
    return 0;
  }

  void begin() {
    m_w.List1.clear();
    m_w.List1.add(timeText(m_w.shell().now()));
    m_w.CasiEsclusi = {};
    for (int row = 1; row < m_w.FgEv.rows() && row <= kMostCases; ++row)
      m_w.CasiEsclusi[static_cast<std::size_t>(row)] = isCovered(m_w, row, m_verification.markColumn);
    m_w.Fg99.cutToHeading();
    m_w.Fg99.setRows(m_table.rows());
    copyTexts(m_table, m_w.Fg99);
    m_rowsBefore = m_kind.keepsTable ? m_table.rows() : 1;
    m_counts = {m_w.FgSSS.text(0, column()), m_w.FgSSS.text(1, column())};
    m_w.shell().progress(0, m_w.FgF.dataRows());
    m_refused = m_kind.keepsTable && m_table.dataRows() > kMostLunghetta;
    if (m_refused) runVerification();  // its message, once a press
  }

  void end() {
    m_w.shell().progress(m_w.FgF.dataRows(), m_w.FgF.dataRows());
    m_table.setRows(1);
    if (m_w.Fg99.hasData()) {
      m_table.setRows(m_w.Fg99.rows());
      copyTexts(m_w.Fg99, m_table);
      if (m_kind.keepsTable)
        Colora_fg00(m_w);
      else
        coloraFormule(m_table);
      if (!m_refused) verificaTutte(m_w, m_verification);
    } else {
      (m_w.*m_kind.emptiedHits).cutToHeading();
      clearMarks(m_w, m_verification.markColumn);
    }
    m_w.List1.add(timeText(m_w.shell().now()));
  }

  static void copyTexts(const Grid& from, Grid& to) {
    for (int row = 1; row < from.rows(); ++row)
      for (int c = 0; c < from.columns(); ++c) to.setText(row, c, from.text(row, c));
  }

  void runVerification() {
    if (m_w.Ch_Scoperti.checked())
      verificaPerCc(m_w, m_verification);
    else
      verificaTutte(m_w, m_verification);
  }

  void verify(int row) {
    m_table.setRows(m_rowsBefore);
    m_w.FgF.setCurrent(row, m_w.FgF.currentColumn());
    if (m_refused) return;
    AggiungePrevisione(m_w, m_kind.sorte);
    runVerification();
  }

  void takeCounts(int row) {
    m_counts = {m_w.FgSSS.text(0, column()), m_w.FgSSS.text(1, column())};
    writeCounts(row);
  }

  void writeCounts(int row) {
    using namespace formula_column;
    if (numberOf(m_counts.covered) != m_w.FgF.number(row, kCc)) m_w.FgF.setBack(row, kCc, VerdeMedio);
    m_w.FgF.setText(row, kCc, m_counts.covered);
    m_w.FgF.setText(row, kPres, m_counts.hits);
  }

  // What the candidate's verification leaves in the shared record where no later formula writes: that of its last case.
  void leaveInRecord(int row) {
    caricaParametri(m_w.FgF, row, m_w.Formula);
    m_w.Formula.Estr = caseDraw(m_w, m_w.FgEv.rows() - 1);
    OttieneNumero(m_w.archive, m_w.Formula);
  }

  // Evaluates all formulas as often and in the order in which the verifications would, since a formula may hang on the
  // evaluation before it; counts the hits of the last verification.
  void countInSequence(int row, bool added) {
    m_table.setRows(m_rowsBefore);
    m_w.FgF.setCurrent(row, m_w.FgF.currentColumn());
    if (added) {
      const bool automatic = m_w.ChVerifica.checked();
      m_w.ChVerifica.set(false);
      AggiungePrevisione(m_w, m_kind.sorte);
      m_w.ChVerifica.set(automatic);
      if (automatic) {
        RicavaElementiReali(m_w);
        if (m_kind.keepsTable) RicavaElementiReali(m_w);
      }
    }
    if (!m_table.hasData()) return;
    RicavaElementiReali(m_w);
    if (m_kind.keepsTable) m_w.Sorte = m_w.ComboSorte.number();
    std::vector<int> ofCase(static_cast<std::size_t>(m_w.FgEv.rows()), 0);
    for (int i = 1; i < m_w.FgEv.rows(); ++i)
      if (!m_w.Ch_Scoperti.checked() || !m_w.CasiEsclusi[static_cast<std::size_t>(i)])
        ofCase[static_cast<std::size_t>(i)] =
            static_cast<int>(hitsOfCase(m_w, m_verification, i, playWindow(m_w)).size());
    if (m_kind.keepsTable) elaborate(ofCase);
    Counts counts;
    for (int hits : ofCase) counts.add(hits);
    m_counts = texts(counts);
  }

  // The marks that the closing elaboration of the lunghetta sets over those of the verification.
  void elaborate(std::vector<int>& ofCase) {
    RicavaElementiReali(m_w);
    for (int i = 1; i < m_w.FgEv.rows(); ++i) {
      const auto reached = hitsOfCase(m_w, m_verification, i, playWindow(m_w)).size();
      if (reached == 0) continue;
      NumberFlags inPlay{};
      for (int n : numbersEveryThree(m_w.Fg15.text(i, m_verification.numberColumns.front())))
        if (n <= kMostNumber) inPlay[static_cast<std::size_t>(n)] = true;
      if (matchesOnLastWheel(m_w.archive, caseDraw(m_w, i), playWindow(m_w), inPlay) >= 2)
        ofCase[static_cast<std::size_t>(i)] = static_cast<int>(reached);
    }
  }

  Workbench& m_w;
  const CcKind& m_kind;
  const TableKind& m_verification;
  GridControl& m_table;
  int m_rowsBefore = 1;    // of the table, heading included: what each candidate finds
  bool m_refused = false;  // more formulas than a lunghetta may have: nothing is verified
  CountTexts m_counts;     // what FgSSS shows after the candidate before
};

template <class Work>
void withBatches(Workbench& w, int sorte, Work work) {
  if (w.FgF.rows() < 2) return;
  const TableKind& kind = tableKind(sorte);
  const Grid::Batch candidates(w.FgF), cases(w.FgEv), formulas(w.*kind.formulas), hits(w.*kind.hits), numbers(w.Fg15),
      totals(w.FgSSS), panel(w.Fg_Stat), chart(w.Fg_Graf);
  work();
}

}  // namespace

void VerificaCandidati(Workbench& w, int sorte) {
  // Without cases nothing is counted, and the totals stay as they are.
  if (!w.FgEv.hasData()) return VerificaCandidatiPerEsteso(w, sorte);
  withBatches(w, sorte, [&] { Run(w, sorte).quick(); });
}

void VerificaCandidatiPerEsteso(Workbench& w, int sorte) {
  withBatches(w, sorte, [&] { Run(w, sorte).inFull(); });
}

}  // namespace trv5
