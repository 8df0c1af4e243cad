#pragma once

#include <QAbstractTableModel>

#include "core/controls.h"

namespace trv5 {

/// Shows a grid of the core to Qt: rows below the heading, all columns. It computes nothing.
///
/// Operations change a grid many times between two pictures, so the model follows when control comes back to the event
/// loop, or at `sync()`: it then adds or removes rows at the end and reports all cells as changed. A view thereby keeps
/// its scroll position. Until then it tells its old size and nothing for cells that are gone.
class GridModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  explicit GridModel(GridControl& grid, QObject* parent = nullptr);
  ~GridModel() override;

  GridControl& grid() const { return m_grid; }
  /// Index in the grid of a row of the model.
  int gridRow(int row) const { return row + m_heading; }
  int modelRow(int gridRow) const { return gridRow - m_heading; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

  /// Catches up with the grid now.
  void sync();

 Q_SIGNALS:
  /// The model is up to the grid: hidden rows and columns and the current row may be others.
  void synced();

 private:
  void noted();

  GridControl& m_grid;
  int m_heading, m_rows, m_columns;
  bool m_behind = false;
};

}  // namespace trv5
