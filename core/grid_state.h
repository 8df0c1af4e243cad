#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/cell.h"

namespace trv5 {

/// The cells of a grid in little room: some three bytes for a cell of two figures, where a `Cell` takes 48.
class PackedCells {
 public:
  explicit PackedCells(const std::vector<Cell>& cells);
  std::vector<Cell> unpacked() const;
  /// What it takes in memory.
  std::size_t bytes() const;
  bool operator==(const PackedCells&) const = default;

 private:
  // Cells that follow each other and look alike.
  struct Run {
    std::uint32_t cells;
    Rgb back, fore;
    bool bold;
    bool operator==(const Run&) const = default;
  };

  std::uint32_t m_count;
  std::string m_texts;  // a length before each text: one byte, or 255 and four
  std::vector<Run> m_runs;
};

/// All of a grid at one moment but the choices of its columns, which no operation changes. States of one grid share
/// their cells as long as those stay the same.
struct GridState {
  std::shared_ptr<const PackedCells> cells;
  int rows = 0, columns = 0, headingRows = 0;
  int current = -1, currentColumn = 0;
  std::set<int> hiddenRows, hiddenColumns, merged;
  std::map<std::pair<int, int>, Bar> bars;
  std::map<int, int> widths;
  int cellSize = 0;

  /// Equal in contents, whether shared or not.
  bool operator==(const GridState& other) const;
  bool sameButCurrent(const GridState& other) const;
  int dataRows() const { return rows - headingRows; }
  /// What it takes in memory beside its cells.
  std::size_t bytes() const;
};

}  // namespace trv5
