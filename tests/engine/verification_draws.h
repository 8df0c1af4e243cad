#pragma once

#include "support/workbench_world.h"

namespace trv5 {

/// Six draws on Bari, on Roma in the second one: 7 comes out twice in draw 2, once in draw 4; 7 and 8 come together on
/// Roma in draw 2 and on Bari in draw 4, with 9 only on Roma.
inline Archive drawsWithSeven() {
  return archiveOf({{{"BA", {10, 20, 30, 40, 50}}},
                    {{"BA", {7, 1, 2, 3, 4}}, {"RO", {12, 8, 9, 11, 7}}},
                    {{"BA", {60, 61, 62, 63, 64}}},
                    {{"BA", {8, 7, 65, 66, 67}}},
                    {{"BA", {70, 71, 72, 73, 74}}},
                    {{"BA", {80, 81, 82, 83, 84}}}});
}

/// The workbench on these draws with Bari and Roma as wheels of play.
class SevenWorld : public WorkbenchWorld {
 public:
  SevenWorld() : WorkbenchWorld(drawsWithSeven()) { playOn({0, 7}); }

  /// Adds a pure number to a table.
  static void addNumber(Grid& table, int number) { addFormula(table, {.fix = number, .nr = "0"}); }

  /// The texts of a row from column `from` to `to`, joined by blanks.
  static std::string texts(const Grid& grid, int row, int from, int to) {
    std::string all;
    for (int column = from; column <= to; ++column) all += (column > from ? " " : "") + grid.text(row, column);
    return all;
  }
};

}  // namespace trv5
