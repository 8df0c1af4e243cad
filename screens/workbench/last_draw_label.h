#pragma once

#include "cases/workbench.h"
#include "screens/kit/click_label.h"

namespace trv5 {

/// How far back the reference draw lies: a quiet word at the last draw, anywhere else a chip whose click goes back to
/// it.
class LastDrawLabel : public ClickLabel {
  Q_OBJECT
 public:
  explicit LastDrawLabel(Workbench& w, QWidget* parent = nullptr);
  /// True while it is a chip.
  bool isChip() const;
  /// Leaves out the index of the draw, which stands beside it.
  void setShort(bool isShort);

  /// With the index.
  int wholeWidth() const { return widthOf(text()); }
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString shownText() const;
  int widthOf(const QString& text) const;

  const Workbench& m_w;
  bool m_short = false;
};

}  // namespace trv5
