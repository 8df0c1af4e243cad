#include "core/grid_state.h"

#include <cstring>
#include <tuple>

#include "core/grid.h"

namespace trv5 {
namespace {

constexpr std::uint8_t kLong = 255;  // the length follows in four bytes

// A node of a set or map holds its value behind the links of the tree.
template <class Container>
std::size_t bytesOfTree(const Container& container) {
  constexpr std::size_t kLinks = 4 * sizeof(void*);
  return container.size() * (kLinks + sizeof(typename Container::value_type));
}

}  // namespace

PackedCells::PackedCells(const std::vector<Cell>& cells) : m_count(static_cast<std::uint32_t>(cells.size())) {
  m_texts.reserve(cells.size() * 4);
  for (const Cell& cell : cells) {
    if (const auto length = static_cast<std::uint32_t>(cell.text.size()); length < kLong) {
      m_texts.push_back(static_cast<char>(length));
    } else {
      m_texts.push_back(static_cast<char>(kLong));
      char bytes[sizeof length];
      std::memcpy(bytes, &length, sizeof length);
      m_texts.append(bytes, sizeof length);
    }
    m_texts += cell.text;
    if (Run* const last = m_runs.empty() ? nullptr : &m_runs.back();
        last != nullptr && last->back == cell.back && last->fore == cell.fore && last->bold == cell.bold)
      ++last->cells;
    else
      m_runs.push_back({1, cell.back, cell.fore, cell.bold});
  }
  m_texts.shrink_to_fit();
  m_runs.shrink_to_fit();
}

std::vector<Cell> PackedCells::unpacked() const {
  std::vector<Cell> cells(m_count);
  auto cell = cells.begin();
  const char* at = m_texts.data();
  for (const Run& run : m_runs)
    for (std::uint32_t i = 0; i < run.cells; ++i, ++cell) {
      std::uint32_t length = static_cast<std::uint8_t>(*at++);
      if (length == kLong) {
        std::memcpy(&length, at, sizeof length);
        at += sizeof length;
      }
      cell->text.assign(at, length);
      at += length;
      cell->back = run.back;
      cell->fore = run.fore;
      cell->bold = run.bold;
    }
  return cells;
}

std::size_t PackedCells::bytes() const {
  return sizeof *this + m_texts.capacity() + m_runs.capacity() * sizeof(Run);
}

bool GridState::operator==(const GridState& other) const {
  return std::tie(current, currentColumn) == std::tie(other.current, other.currentColumn) && sameButCurrent(other);
}

bool GridState::sameButCurrent(const GridState& other) const {
  const auto rest = [](const GridState& s) {
    return std::tie(s.rows, s.columns, s.headingRows, s.hiddenRows, s.hiddenColumns, s.merged, s.bars, s.widths,
                    s.cellSize);
  };
  return rest(*this) == rest(other) && (cells == other.cells || *cells == *other.cells);
}

std::size_t GridState::bytes() const {
  return sizeof *this + bytesOfTree(hiddenRows) + bytesOfTree(hiddenColumns) + bytesOfTree(merged) + bytesOfTree(bars) +
         bytesOfTree(widths);
}

GridState Grid::state() const {
  if (m_packed == nullptr || m_packedAt != m_cellsRevision) {
    auto packed = std::make_shared<const PackedCells>(m_cells);
    if (m_packed == nullptr || !(*m_packed == *packed)) m_packed = std::move(packed);
    m_packedAt = m_cellsRevision;
  }
  return {.cells = m_packed,
          .rows = m_rows,
          .columns = m_columns,
          .headingRows = m_headingRows,
          .current = m_current,
          .currentColumn = m_currentColumn,
          .hiddenRows = m_hiddenRows,
          .hiddenColumns = m_hiddenColumns,
          .merged = m_merged,
          .bars = m_bars,
          .widths = m_widths,
          .cellSize = m_cellSize};
}

void Grid::restore(const GridState& state) {
  const GridState now = this->state();
  if (now.sameButCurrent(state)) return setCurrent(state.current, state.currentColumn);
  if (now.cells != state.cells) m_cells = state.cells->unpacked();
  m_rows = state.rows;
  m_columns = state.columns;
  m_headingRows = state.headingRows;
  m_current = state.current;
  m_currentColumn = state.currentColumn;
  m_hiddenRows = state.hiddenRows;
  m_hiddenColumns = state.hiddenColumns;
  m_merged = state.merged;
  m_bars = state.bars;
  m_widths = state.widths;
  m_cellSize = state.cellSize;
  m_packed = state.cells;
  m_packedAt = m_cellsRevision + 1;  // what the notice makes of it
  notify({});
}

}  // namespace trv5
