#include "core/grid_control.h"

#include <algorithm>
#include <optional>

#include "core/form.h"

namespace trv5 {

void GridControl::setEmptyText(std::string text) {
  if (m_emptyText == text) return;
  m_emptyText = std::move(text);
  changed();
}

void GridControl::setHeld(const ControlValue& value) {
  const auto& own = std::get<GridValue>(value);
  m_emptyText = own.emptyText;
  Grid::restore(own.grid);
}

void GridControl::moveTo(int row, int column) {
  if (row == current() && column == currentColumn()) return;
  setCurrent(row, column);
  if (m_move) form().perform(m_move, this);
}

// Choosing a row is no act by itself.
void GridControl::clickCell(int row, int column) {
  std::optional<UserAct> act;
  if (m_click) act.emplace(form(), this);
  const std::uint64_t cells = cellsRevision();
  if (row >= headingRows()) moveTo(row, column);
  if (!m_click) return;
  form().perform([&] { m_click(row, column); }, this);
  act->setMoves(cellsRevision() == cells);
}

void GridControl::clickHeading() {
  if (!m_headingClick) return;
  const UserAct act(form(), this);
  form().perform(m_headingClick, this);
}

void GridControl::doubleClickCell(int row, int column) {
  std::optional<UserAct> act;
  if (m_cellDoubleClick) act.emplace(form(), this);
  if (row >= headingRows()) moveTo(row, column);
  if (m_cellDoubleClick) form().perform([&] { m_cellDoubleClick(row, column); }, this);
}

bool GridControl::edit(int row, int column, const std::string& text) {
  const std::vector<std::string>* const allowed = choices(column);
  if (allowed == nullptr || row < headingRows() || row >= rows()) return false;
  if (std::find(allowed->begin(), allowed->end(), text) == allowed->end()) return false;
  const UserAct act(form(), this);
  setText(row, column, text);
  return true;
}

}  // namespace trv5
