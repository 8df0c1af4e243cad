#include "core/grid_control.h"

#include <algorithm>

#include "core/form.h"

namespace trv5 {

void GridControl::setEmptyText(std::string text) {
  if (m_emptyText == text) return;
  m_emptyText = std::move(text);
  changed();
}

void GridControl::clickCell(int row, int column) {
  if (row >= headingRows()) setCurrent(row, column);
  if (m_click) form().perform([&] { m_click(row, column); });
}

void GridControl::doubleClickCell(int row, int column) {
  if (row >= headingRows()) setCurrent(row, column);
  if (m_cellDoubleClick) form().perform([&] { m_cellDoubleClick(row, column); });
}

bool GridControl::edit(int row, int column, const std::string& text) {
  const std::vector<std::string>* const allowed = choices(column);
  if (allowed == nullptr || row < headingRows() || row >= rows()) return false;
  if (std::find(allowed->begin(), allowed->end(), text) == allowed->end()) return false;
  setText(row, column, text);
  return true;
}

}  // namespace trv5
