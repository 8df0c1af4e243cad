#pragma once

#include <string>
#include <vector>

#include "cases/workbench.h"
#include "method/search.h"

namespace trv5 {

/// What an alteration text makes of the drawn numbers for each element of a formula. A text that no list holds leaves
/// the elements as the evaluation before left them, 0 read as 90.
enum class StaleElement { NumeroOttenuto, Elem };
std::array<ElementTable, 3> elementTables(const Workbench& w, StaleElement oneNumber, Shape shape);

/// The operator of `Combo1R_2N`: its empty item stands for the first one.
int operatorIndex(const Workbench& w);

/// `List1` emptied, then the time.
void startLog(Workbench& w);
/// The time added to `List1`.
void addTime(Workbench& w);

/// `FgF` with `rows` blank candidate rows.
void blankCandidates(Workbench& w, int rows);

/// Writes the elements, the fix (with `withFix`) and the counters of each ranked formula, from row 1.
void writeRanking(Workbench& w, const std::vector<Candidate>& ranking, Shape shape, bool withFix);

/// The first candidate becomes the current row: what a search ends with.
void chooseFirstCandidate(Workbench& w);

/// Writes `text` into a column of all candidate rows, the blank ones too.
void writeAllRows(Workbench& w, int column, const std::string& text);

/// All sets of `size` wheels (1, 2 or 3) in ascending order, the first wheel outermost.
std::vector<WheelSet> wheelSetsOf(int size);

/// The draws of the cases that count: all, or with "Casi scoperti" those whose cell of `Sorte` isn't green.
std::vector<int> countingCases(const Workbench& w);

}  // namespace trv5
