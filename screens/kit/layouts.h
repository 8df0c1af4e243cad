#pragma once

#include <QFrame>
#include <QLayout>
#include <QString>
#include <vector>

class QBoxLayout;
class QLabel;
class QVBoxLayout;

namespace trv5 {

/// Lays its items out in lines, as words in a paragraph: a row of buttons that wraps where the width ends.
class FlowLayout : public QLayout {
  Q_OBJECT
 public:
  explicit FlowLayout(QWidget* parent = nullptr);
  ~FlowLayout() override;

  /// The items from `index` on stand at the right edge of their line.
  void setRightFrom(int index) { m_rightFrom = index; }

  void addItem(QLayoutItem* item) override;
  int count() const override { return static_cast<int>(m_items.size()); }
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return place(QRect(0, 0, width, 0), false); }
  void setGeometry(const QRect& rect) override;
  QSize sizeHint() const override;
  QSize minimumSize() const override;

 private:
  int place(const QRect& rect, bool apply) const;

  std::vector<QLayoutItem*> m_items;
  int m_rightFrom = -1;
};

/// A panel: a frame of its own ground, with padding inside, and at will a title at its head.
class Panel : public QFrame {
  Q_OBJECT
 public:
  explicit Panel(const QString& title = {}, QWidget* parent = nullptr);
  /// What stands below the title.
  QVBoxLayout* body() const { return m_body; }
  /// The row of the title, for what stands beside it; null without a title.
  QBoxLayout* head() const { return m_head; }
  void setTitle(const QString& title);
  /// Without padding, for what brings its own.
  void setBare();

 private:
  QVBoxLayout* m_body;
  QBoxLayout* m_head = nullptr;
  QLabel* m_title = nullptr;
};

/// What a row or column holds: a widget, a layout, or a gap that takes the free room.
struct Piece {
  Piece(QWidget* w, int s = 0) : widget(w), stretch(s) {}
  Piece(QLayout* l, int s = 0) : layout(l), stretch(s) {}
  static Piece gap(int stretch = 1) { return Piece(stretch); }
  /// A wider gap of fixed width, to part groups.
  static Piece space() { return Piece(0); }

  QWidget* widget = nullptr;
  QLayout* layout = nullptr;
  int stretch = 0;

 private:
  explicit Piece(int s) : stretch(s) {}
};

/// A row and a column without margins; the gaps are the theme's unit.
QBoxLayout* row(const std::vector<Piece>& pieces);
QBoxLayout* column(const std::vector<Piece>& pieces);
/// A row that wraps; those of `right` stand at the right edge.
FlowLayout* flow(const std::vector<QWidget*>& widgets, const std::vector<QWidget*>& right = {});
/// Puts a layout into a widget of its own, without margins.
QWidget* holding(QLayout* layout);
/// Gives the page of a tab, which has a layout, the padding of a panel.
void padAsPage(QWidget& page);
/// A line that parts groups.
QFrame* separator(Qt::Orientation orientation);

}  // namespace trv5
