#pragma once

#include <array>
#include <string_view>

#include "cases/workbench.h"
#include "method/search.h"

namespace trv5 {

/// A search of the number that came out together with earlier hits, and what it has of its own.
struct CompanionButton {
  const char* name;
  Table table;  ///< that it works for
  Shape shape;
  const char* nr;  ///< columns 14 and 15 of the rows
  const char* qn;
  /// How many literals of operators it knows: with a later one `OperazioneCorrente` keeps that of an earlier search.
  int knownOperators = 0;
  bool writesOperator = false;  ///< column 10 = `OperazioneCorrente`
  /// A draw counts for one row only, and a companion on two wheels covers its case once.
  bool guarded = false;
};

/// The searches of the tabs Ambi, Terni and Lunghetta.
inline constexpr std::array<CompanionButton, 12> kCompanionButtons = {{
    {.name = "Command28", .table = Table::Ambi, .shape = Shape::OneNumber, .nr = "1", .qn = "1"},
    {.name = "Command39",
     .table = Table::Ambi,
     .shape = Shape::TwoOneWheel,
     .nr = "1",
     .qn = "2",
     .knownOperators = 6,
     .writesOperator = true},
    {.name = "Command37",
     .table = Table::Ambi,
     .shape = Shape::ThreeOneWheel,
     .nr = "1",
     .qn = "3",
     .knownOperators = 4},
    {.name = "Command31",
     .table = Table::Ambi,
     .shape = Shape::TwoTwoWheels,
     .nr = "1",
     .qn = "2",
     .knownOperators = 4,
     .writesOperator = true},
    {.name = "Command46", .table = Table::Terni, .shape = Shape::OneNumber, .nr = "1", .qn = "1"},
    {.name = "Command43",
     .table = Table::Terni,
     .shape = Shape::TwoOneWheel,
     .nr = "1",
     .qn = "2",
     .knownOperators = 6,
     .writesOperator = true,
     .guarded = true},
    {.name = "Command45",
     .table = Table::Terni,
     .shape = Shape::ThreeOneWheel,
     .nr = "1",
     .qn = "3",
     .knownOperators = 4,
     .writesOperator = true,
     .guarded = true},
    {.name = "Command40",
     .table = Table::Terni,
     .shape = Shape::TwoTwoWheels,
     .nr = "2",
     .qn = "2",
     .knownOperators = 6,
     .writesOperator = true,
     .guarded = true},
    {.name = "Command56", .table = Table::Lunghetta, .shape = Shape::OneNumber, .nr = "1", .qn = "1"},
    {.name = "Command58",
     .table = Table::Lunghetta,
     .shape = Shape::TwoOneWheel,
     .nr = "1",
     .qn = "2",
     .knownOperators = 6,
     .writesOperator = true},
    {.name = "Command57",
     .table = Table::Lunghetta,
     .shape = Shape::ThreeOneWheel,
     .nr = "1",
     .qn = "3",
     .knownOperators = 4},
    {.name = "Command59",
     .table = Table::Lunghetta,
     .shape = Shape::TwoTwoWheels,
     .nr = "1",
     .qn = "2",
     .knownOperators = 6,
     .writesOperator = true},
}};

/// The search of that control; throws std::logic_error when there is none.
const CompanionButton& companionSearch(std::string_view name);

/// Runs the search of a button: ranks in `FgF` the formulas that, evaluated on the draw of the case, give a number that
/// came out with the hit numbers, on their wheel, in the draw of the hit; then verifies each of them (CC). Ambi start
/// from `FgZ1`, terni from `FgZ2`, the lunghetta from `FgZ100`; ambi and terni without hit rows show a message.
void CercaCompagni(Workbench& w, const CompanionButton& button);

/// What every search of companions ends with: CC of its table, the rows by covered cases, colours, the time.
void closeCompanionSearch(Workbench& w, Table table);

}  // namespace trv5
