#pragma once

#include <array>
#include <string_view>

#include "cases/workbench.h"
#include "method/search.h"

namespace trv5 {

/// A search of ambate and what it has of its own.
struct AmbataButton {
  const char* name;
  Shape shape;
  int wheelsOfSet;  ///< 0: plays on `RuoteGioco`; 1, 2, 3: tries every set of so many wheels
  const char* nr;   ///< columns 14 and 15 of the rows
  const char* qn;
  bool readsColpi = true;  ///< else it takes the `Colpi` that the last operation left
  bool movesProgress = true;
  bool logsEachPass = false;    ///< `List1` is cleared at each wheel set
  bool ownAlterations = false;  ///< "FIG" goes through the vertible, "VERT" and "CAPO" are constants
  bool repeatsAtZeroGetLost = false;
};

/// The four searches and their best-wheel buttons.
inline constexpr std::array<AmbataButton, 12> kAmbataButtons = {{
    {.name = "Command20", .shape = Shape::OneNumber, .wheelsOfSet = 0, .nr = "1", .qn = "1", .ownAlterations = true},
    {.name = "Command11",
     .shape = Shape::OneNumber,
     .wheelsOfSet = 1,
     .nr = "1",
     .qn = "1",
     .movesProgress = false,
     .repeatsAtZeroGetLost = true},
    {.name = "Command13",
     .shape = Shape::OneNumber,
     .wheelsOfSet = 2,
     .nr = "1",
     .qn = "1",
     .repeatsAtZeroGetLost = true},
    {.name = "Command15",
     .shape = Shape::OneNumber,
     .wheelsOfSet = 3,
     .nr = "1",
     .qn = "1",
     .readsColpi = false,
     .repeatsAtZeroGetLost = true},
    {.name = "Command23", .shape = Shape::TwoOneWheel, .wheelsOfSet = 0, .nr = "1", .qn = "2"},
    {.name = "Command17", .shape = Shape::TwoOneWheel, .wheelsOfSet = 1, .nr = "1", .qn = "2", .movesProgress = false},
    {.name = "Command16", .shape = Shape::TwoOneWheel, .wheelsOfSet = 2, .nr = "1", .qn = "2"},
    {.name = "Command7", .shape = Shape::TwoOneWheel, .wheelsOfSet = 3, .nr = "1", .qn = "2"},
    {.name = "Command18", .shape = Shape::ThreeOneWheel, .wheelsOfSet = 0, .nr = "1", .qn = "3"},
    {.name = "Command10", .shape = Shape::TwoTwoWheels, .wheelsOfSet = 0, .nr = "2", .qn = "1"},
    {.name = "Command1", .shape = Shape::TwoTwoWheels, .wheelsOfSet = 1, .nr = "2", .qn = "1", .logsEachPass = true},
    {.name = "Command2", .shape = Shape::TwoTwoWheels, .wheelsOfSet = 2, .nr = "2", .qn = "2"},
}};

/// The search of that control; throws std::logic_error when there is none.
const AmbataButton& ambataSearch(std::string_view name);

/// Runs the search of a button: the formulas that, applied to the cases, would have given a number drawn in the
/// following colpi, ranked in `FgF`. Without cases nothing happens at all.
void CercaAmbate(Workbench& w, const AmbataButton& button);

}  // namespace trv5
