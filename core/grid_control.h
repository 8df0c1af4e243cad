#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/control.h"
#include "core/grid.h"

namespace trv5 {

/// A grid on a screen.
class GridControl : public Control, public Grid {
 public:
  GridControl(Form& form, std::string name, std::string_view heading) : Control(form, std::move(name)), Grid(heading) {}
  GridControl(Form& form, std::string name, int rows, int columns)
      : Control(form, std::move(name)), Grid(rows, columns) {}
  GridControl(const GridControl&) = delete;
  GridControl& operator=(const GridControl&) = delete;
  /// Replaces the grid's contents.
  Grid& grid() { return *this; }
  const Grid& grid() const { return *this; }

  void onCellClick(std::function<void(int row, int column)> operation) { m_click = std::move(operation); }
  /// On a heading row a click does nothing, unless it has an operation of its own.
  void onHeadingClick(std::function<void()> operation) { m_headingClick = std::move(operation); }
  void onCellDoubleClick(std::function<void(int row, int column)> operation) {
    m_cellDoubleClick = std::move(operation);
  }
  /// Run when the user comes to another cell, by mouse or key.
  void onMove(std::function<void()> operation) { m_move = std::move(operation); }
  /// Shown in the middle of the empty grid, given the grid's state.
  void setEmptyText(std::string text);
  const std::string& emptyText() const { return m_emptyText; }
  /// True when a click is a toggle, so that Space and dragging do the same.
  bool hasCellClick() const { return static_cast<bool>(m_click); }

  /// The user's way to a cell, which becomes the current one.
  void moveTo(int row, int column);
  /// The user's click: makes the cell current (a heading row never), then runs the operation.
  void clickCell(int row, int column);
  void clickHeading();
  void doubleClickCell(int row, int column);
  /// Writes an editable cell. False when the cell isn't editable or the text isn't one of its choices.
  bool edit(int row, int column, const std::string& text);
  /// The view follows looks (Control) and contents (Grid) by two listeners.
  using Control::setListener;
  void setGridListener(std::function<void(const GridChange&)> listener) { Grid::setListener(std::move(listener)); }

  // A colour of the control and one of a cell are different things.
  using Grid::back;
  using Grid::setBack;
  using Grid::setFore;
  // The state of the control, with its looks.
  using Control::state;

 protected:
  ControlValue held() const override { return GridValue{Grid::state(), m_emptyText}; }
  void setHeld(const ControlValue& value) override;
  std::uint64_t revision() const override { return Control::revision() + Grid::revision(); }

 private:
  std::function<void(int, int)> m_click, m_cellDoubleClick;
  std::function<void()> m_headingClick, m_move;
  std::string m_emptyText;
};

}  // namespace trv5
