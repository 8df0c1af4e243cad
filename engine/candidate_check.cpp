#include "engine/candidate_check.h"

#include <optional>
#include <string>
#include <vector>

#include "cases/case_rows.h"
#include "cases/formula_rows.h"
#include "cases/method_codec.h"
#include "core/text.h"
#include "engine/colouring.h"
#include "engine/formula_tables.h"
#include "engine/verification.h"

namespace trv5 {
namespace {

// What differs between the three buttons.
struct CcTraits {
  bool keepsTable;                      // candidates are verified on top of the table's own formulas
  GridControl Workbench::*emptiedHits;  // emptied at the end when the table was empty
};

CcTraits ccTraits(Table table) {
  // The lunghetta empties the grid of the ambi, on purpose: FgZ0 stays.
  if (table == Table::Lunghetta) return {true, &Workbench::FgZ2};
  return {false, table == Table::Ambi ? &Workbench::FgZ2 : &Workbench::FgZ3};
}

void copyTexts(const Grid& from, Grid& to) {
  for (int row = 1; row < from.rows(); ++row)
    for (int c = 0; c < from.columns(); ++c) to.setText(row, c, from.text(row, c));
}

// Verifies every candidate as a value; the last one on the grids too, since its traces stay.
class Run {
 public:
  Run(Workbench& w, Table table)
      : m_w(w),
        m_table(table),
        m_traits(ccTraits(table)),
        m_formulas(w.formulas(table)),
        m_candidates(readFormulas(w.FgF)) {}

  void run() {
    begin();
    const int last = lastVerified();
    for (int row = 1; row < m_w.FgF.rows(); ++row) {
      if (row == last)
        verifyOnGrids(row);
      else if (!m_refused && !m_request.caseDraws.empty())
        count(candidate(row));
      writeCounts(row);
    }
    if (m_w.FgF.hasData()) m_w.FgF.setCurrent(m_w.FgF.rows() - 1, m_w.FgF.currentColumn());
    end();
  }

 private:
  int column() const { return traitsOf(m_table).markColumn - case_column::kHits; }
  const FormulaRow& candidate(int row) const { return m_candidates[static_cast<std::size_t>(row - 1)]; }
  // The table's formulas that each candidate finds there.
  std::vector<FormulaRow>& own() { return m_request.method.of(m_table); }
  bool accepts(const FormulaRow& row) {
    return !isBlank(row) && static_cast<int>(own().size()) < traitsOf(m_table).mostFormulas;
  }

  // The row whose verification is the last one. The formulas that a table keeps are verified at blank rows too.
  int lastVerified() {
    if (!own().empty()) return m_w.FgF.rows() - 1;
    for (int row = m_w.FgF.rows() - 1; row >= 1; --row)
      if (!isBlank(candidate(row))) return row;
    return 0;
  }

  void begin() {
    m_w.List1.clear();
    m_w.List1.add(timeText(m_w.shell().now()));
    m_w.CasiEsclusi = {};
    for (int row = 1; row < m_w.FgEv.rows() && row <= kMostCases; ++row)
      m_w.CasiEsclusi[static_cast<std::size_t>(row)] = isCovered(m_w, row, traitsOf(m_table).markColumn);
    m_w.Fg99.cutToHeading();
    m_w.Fg99.setRows(m_formulas.rows());
    copyTexts(m_formulas, m_w.Fg99);
    takeShownCounts();
    m_w.shell().progress(0, m_w.FgF.dataRows());

    m_request = candidateRequest(m_w, m_table);
    m_refused = static_cast<int>(own().size()) > traitsOf(m_table).mostFormulas;
    if (m_refused) verifyTable();  // its message, once a press
    if (!m_refused && countsStandAlone(m_request, m_candidates)) m_byTables.emplace(m_request);
  }

  void end() {
    m_w.shell().progress(m_w.FgF.dataRows(), m_w.FgF.dataRows());
    m_formulas.setRows(1);
    if (m_w.Fg99.hasData()) {
      m_formulas.setRows(m_w.Fg99.rows());
      copyTexts(m_w.Fg99, m_formulas);
      if (m_traits.keepsTable)
        Colora_fg00(m_w);
      else
        coloraFormule(m_formulas);
      if (!m_refused) verificaTutte(m_w, m_table);
    } else {
      (m_w.*m_traits.emptiedHits).cutToHeading();
      clearMarks(m_w, traitsOf(m_table).markColumn);
    }
    m_w.List1.add(timeText(m_w.shell().now()));
  }

  void verifyTable() {
    if (m_w.Ch_Scoperti.checked())
      verificaPerCc(m_w, m_table);
    else
      verificaTutte(m_w, m_table);
  }

  void verifyOnGrids(int row) {
    m_formulas.setRows(static_cast<int>(own().size()) + 1);
    m_w.FgF.setCurrent(row, m_w.FgF.currentColumn());
    if (!m_refused) {
      AggiungePrevisione(m_w, m_table);
      verifyTable();
    }
    takeShownCounts();
  }

  void count(const FormulaRow& row) {
    const bool added = accepts(row);
    if (!added && own().empty()) return;  // nothing is verified, the counts stay those of the row before
    if (m_byTables)
      takeCounts(added ? m_byTables->with(row) : m_byTables->without());
    else
      countCarried(row, added);
    if (m_byTables && added) leaveInRecord(row);
  }

  // A formula may hang on the evaluation before it: all are evaluated as often and in the order in which the
  // verifications would.
  void countCarried(const FormulaRow& row, bool added) {
    if (added) own().push_back(row);
    if (added && m_w.ChVerifica.checked()) verifiedTotals(m_request, m_w.Formula);  // that of "Verifica automatica"
    takeCounts(verifiedTotals(m_request, m_w.Formula));
    if (added) own().pop_back();
  }

  // What the candidate's verification leaves in the shared record where no later formula writes: that of its last case.
  void leaveInRecord(const FormulaRow& row) {
    Formula(row).evaluate(m_w.archive, m_request.caseDraws.back(), m_w.Formula);
  }

  void takeCounts(const Totals& totals) {
    m_hits = std::to_string(totals.hits);
    m_covered = std::to_string(totals.cases);
  }
  void takeShownCounts() {
    m_hits = m_w.FgSSS.text(0, column());
    m_covered = m_w.FgSSS.text(1, column());
  }

  void writeCounts(int row) {
    using namespace formula_column;
    if (numberOf(m_covered) != m_w.FgF.number(row, kCc)) m_w.FgF.setBack(row, kCc, VerdeMedio);
    m_w.FgF.setText(row, kCc, m_covered);
    m_w.FgF.setText(row, kPres, m_hits);
  }

  Workbench& m_w;
  Table m_table;
  CcTraits m_traits;
  GridControl& m_formulas;
  std::vector<FormulaRow> m_candidates;
  CandidateRequest m_request;
  std::optional<CandidateCounts> m_byTables;  // where formulas stand alone
  bool m_refused = false;                     // more formulas than a lunghetta may have: nothing is verified
  std::string m_hits, m_covered;              // what FgSSS shows after the candidate before
};

}  // namespace

CandidateRequest candidateRequest(const Workbench& w, Table table) {
  CandidateRequest request = {.archive = &w.archive, .method = methodOf(w), .table = table, .caseDraws = caseDraws(w)};
  if (w.Ch_Scoperti.checked())
    for (int row = 1; row < w.FgEv.rows(); ++row)
      request.leftOut.push_back(row <= kMostCases && isCovered(w, row, traitsOf(table).markColumn));
  if (!ccTraits(table).keepsTable) request.method.of(table).clear();
  return request;
}

void VerificaCandidati(Workbench& w, Table table) {
  if (!w.FgF.hasData()) {
    w.shell().status("Nessuna ricerca da riverificare");
    return;
  }
  const Grid::Batch candidates(w.FgF), cases(w.FgEv), formulas(w.formulas(table)), hits(w.hits(table)), numbers(w.Fg15),
      totals(w.FgSSS), panel(w.Fg_Stat), chart(w.Fg_Graf);
  Run(w, table).run();
  w.shell().status("CC: " + counted(w.FgF.dataRows(), "riga riverificata", "righe riverificate"));
}

}  // namespace trv5
