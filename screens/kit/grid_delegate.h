#pragma once

#include <QHeaderView>
#include <QStyledItemDelegate>

namespace trv5 {

class GridView;

/// Lines between the cells, and the frames of the current row, on the white paper of every theme.
inline constexpr unsigned kGridLine = 0xD9DDE1;
inline constexpr unsigned kRowFrame = 0x1D232A;

/// Paints the cells of a GridView: colours, bar, text in readable ink, lines but for those between merged neighbours.
class GridDelegate : public QStyledItemDelegate {
  Q_OBJECT
 public:
  explicit GridDelegate(GridView& view);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

 private:
  GridView& m_view;
};

/// The heading of a GridView. Where the columns are narrower than their headings only every n-th is written.
class GridHeading : public QHeaderView {
  Q_OBJECT
 public:
  explicit GridHeading(GridView& view);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool sparse() const;

  GridView& m_view;
  QPoint m_pressed;
};

}  // namespace trv5
