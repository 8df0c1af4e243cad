#pragma once

#include <QToolButton>

namespace trv5 {

/// A button of the shell's panel: icon and caption, or the icon alone where the panel is folded. The screen in front
/// has a bar at the left, an open one a dot.
class RailButton : public QToolButton {
  Q_OBJECT
 public:
  enum class Mark { None, Open, Current };

  explicit RailButton(const QString& iconName, QWidget* parent = nullptr);
  void setWide(bool wide);
  void setMark(Mark mark);
  /// A caption in large type.
  void setLarge(bool large) { m_large = large; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool m_wide = true, m_large = false;
  Mark m_mark = Mark::None;
};

}  // namespace trv5
