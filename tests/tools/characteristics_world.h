#pragma once

#include <gtest/gtest.h>

#include "support/archive_builder.h"
#include "support/fake_shell.h"
#include "tools/draw_characteristics.h"

namespace trv5 {

inline std::vector<DrawRow> threeDraws() {
  return {
      drawOf("07/01/1939", {{"BA", {58, 22, 47, 49, 69}}}),
      drawOf("14/01/1939", {{"BA", {45, 19, 30, 90, 1}}, {"CA", {45, 2, 30, 11, 89}}}),
      drawOf("04/02/1939", {{"BA", {7, 80, 9, 10, 11}}, {"NZ", {90, 89, 88, 87, 86}}}),
  };
}

using Cells = std::vector<std::pair<int, int>>;

struct CharacteristicsWorld {
  explicit CharacteristicsWorld(const std::vector<DrawRow>& rows = threeDraws()) : archive(archiveOfRows(rows)) {
    form.load();
  }

  static std::string row(const Grid& grid, int row) {
    std::string text;
    for (int column = 0; column < grid.columns(); ++column) text += (column > 0 ? " " : "") + grid.text(row, column);
    return text;
  }
  static std::vector<std::pair<int, int>> painted(const Grid& grid, Rgb colour) {
    std::vector<std::pair<int, int>> cells;
    for (int r = 0; r < grid.rows(); ++r)
      for (int c = 0; c < grid.columns(); ++c)
        if (grid.back(r, c) == colour) cells.emplace_back(r, c);
    return cells;
  }
  static bool blank(const Grid& grid) {
    for (int r = grid.headingRows(); r < grid.rows(); ++r)
      for (int c = 0; c < grid.columns(); ++c)
        if (grid.at(r, c) != Cell{}) return false;
    return true;
  }
  std::vector<std::optional<Rgb>> buttons() const {
    return {form.Command3.back(), form.Command4.back(), form.Command5.back(), form.Command6.back(),
            form.Command7.back()};
  }
  int count(int row, const char* heading) const {
    for (int column = 0; column < form.Fg5.columns(); ++column)
      if (form.Fg5.text(0, column) == heading) return form.Fg5.number(row, column);
    return -1;
  }

  Archive archive;
  FakeShell shell;
  DiDiSO form{archive, shell};
};

}  // namespace trv5
