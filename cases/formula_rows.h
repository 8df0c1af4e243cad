#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/grid.h"
#include "method/formula_row.h"
#include "method/search.h"

namespace trv5 {

/// A column of a formula row. The list below is the one description of the formula tables (`Fg11`, `Fg22`, `Fg33`,
/// `Fg00`), the ranking (`FgF`) and the scratch table (`Fg99`): a new column is one line of it.
struct FormulaColumn {
  std::string_view name;     ///< what the constants below find it by
  std::string_view heading;  ///< its blanks are room
  bool inRanking, inTables;  ///< shown there; a column that isn't is kept all the same
  std::string_view widest;   ///< the widest text it shows
  std::string_view scratchHeading = heading;
};

inline constexpr std::array<FormulaColumn, 22> kFormulaColumns = {{
    {"row", "", true, true, "88", "Prog"},
    {"wheel 1", "1", false, false, ""},
    {"code 1", "R1", true, true, "MI"},
    {"position 1", "P1", true, true, "88"},
    {"wheel 2", "2", false, false, ""},
    {"code 2", "R2", true, true, "MI"},
    {"position 2", "P2", true, true, "88"},
    {"wheel 3", "3", false, false, ""},
    {"code 3", "R3", true, true, "MI"},
    {"position 3", "P3", true, true, "88"},
    {"operator", "Operazione", true, true, "N1 X N2", "Operatore    "},
    {"fix", "Fix", true, true, "88"},
    {"pres", "Pres", true, true, "888"},
    {"cc", "CC  ", true, true, "88"},
    {"nr", "Nr", false, false, ""},
    {"qn", "Qn", false, false, ""},
    {"formu", "Formu", false, false, ""},
    {"alteration", "Alteraz", true, true, "DIAM"},
    {"wheels", "Ruota", true, false, "MI-MI-MI"},
    {"ruote", "Ruote", false, false, ""},
    {"delay", "Ritardo", false, false, ""},
    {"table", "Sorte", false, false, ""},
}};
/// The ranking ends before its last column.
inline constexpr std::size_t kRankingColumns = kFormulaColumns.size() - 1;

namespace formula_column {

consteval int at(std::string_view name) {
  for (std::size_t i = 0; i < kFormulaColumns.size(); ++i)
    if (kFormulaColumns[i].name == name) return static_cast<int>(i);
  throw "no such column";
}

inline constexpr int kR1 = at("wheel 1"), kRu1 = at("code 1"), kP1 = at("position 1");
inline constexpr int kR2 = at("wheel 2"), kP2 = at("position 2");
inline constexpr int kR3 = at("wheel 3"), kP3 = at("position 3");
inline constexpr int kOperator = at("operator"), kFix = at("fix"), kPres = at("pres"), kCc = at("cc");
inline constexpr int kNr = at("nr"), kQn = at("qn");
inline constexpr int kAlteration = at("alteration"), kOwnWheels = at("wheels"), kSorte = at("table");
/// Columns of one element; the elements follow each other.
inline constexpr int kElement = kR2 - kR1;

}  // namespace formula_column

/// The headings of a table, of the ranking and of the scratch table.
std::string tableHeading();
std::string rankingHeading();
std::string scratchHeading();

/// The columns kept out of sight in a table, in the ranking.
std::vector<int> hiddenTableColumns();
std::vector<int> hiddenRankingColumns();

/// A row of a table or of the ranking.
FormulaRow readFormula(const Grid& grid, int row);
/// All rows of a table, in order.
std::vector<FormulaRow> readFormulas(const Grid& grid);

/// The first `count` elements of a found formula.
void writeElements(Grid& grid, int row, const ElementSet& elements, int count);

/// Codes of the wheels of a set joined by "-".
std::string wheelCodes(WheelSet wheels);
/// The wheels of such a text: the codes stand every three characters.
WheelSet wheelsOfCodes(std::string_view codes);

}  // namespace trv5
