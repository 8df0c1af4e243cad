#include "screens/kit/grid_model.h"

#include <QColor>
#include <algorithm>

#include "screens/kit/theme.h"

namespace trv5 {

GridModel::GridModel(GridControl& grid, QObject* parent)
    : QAbstractTableModel(parent),
      m_grid(grid),
      m_heading(grid.headingRows()),
      m_rows(grid.dataRows()),
      m_columns(grid.columns()) {
  m_grid.setGridListener([this](const GridChange&) { noted(); });
}

GridModel::~GridModel() {
  m_grid.setGridListener({});
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : m_rows;
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : m_columns;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const int row = gridRow(index.row());
  if (row >= m_grid.rows() || index.column() >= m_grid.columns()) return {};
  const Cell& cell = m_grid.at(row, index.column());
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return qs(cell.text);
    case Qt::BackgroundRole:
      return cell.back == kWhite ? QVariant() : QVariant(toColor(cell.back));
    case Qt::ForegroundRole:
      return cell.fore == kBlack ? QVariant() : QVariant(toColor(cell.fore));
    case Qt::TextAlignmentRole:
      return int(Qt::AlignCenter);
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  if (m_heading == 0 || section < 0 || section >= m_grid.columns()) return {};
  return qs(m_grid.text(0, section)).trimmed();
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  if (index.isValid() && m_grid.choices(index.column()) != nullptr) flags |= Qt::ItemIsEditable;
  return flags;
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !index.isValid()) return false;
  return m_grid.edit(gridRow(index.row()), index.column(), value.toString().toStdString());
}

void GridModel::noted() {
  if (m_behind) return;
  m_behind = true;
  QMetaObject::invokeMethod(this, &GridModel::sync, Qt::QueuedConnection);
}

void GridModel::sync() {
  if (!m_behind) return;
  m_behind = false;
  m_heading = m_grid.headingRows();
  const int rows = m_grid.dataRows(), columns = m_grid.columns();
  if (columns > m_columns) {
    beginInsertColumns({}, m_columns, columns - 1);
    m_columns = columns;
    endInsertColumns();
  } else if (columns < m_columns) {
    beginRemoveColumns({}, columns, m_columns - 1);
    m_columns = columns;
    endRemoveColumns();
  }
  if (rows > m_rows) {
    beginInsertRows({}, m_rows, rows - 1);
    m_rows = rows;
    endInsertRows();
  } else if (rows < m_rows) {
    beginRemoveRows({}, rows, m_rows - 1);
    m_rows = rows;
    endRemoveRows();
  }
  if (m_rows > 0 && m_columns > 0) Q_EMIT dataChanged(index(0, 0), index(m_rows - 1, m_columns - 1));
  if (m_columns > 0) Q_EMIT headerDataChanged(Qt::Horizontal, 0, m_columns - 1);
  Q_EMIT synced();
}

}  // namespace trv5
