#pragma once

#include <QScrollArea>

namespace trv5 {

/// Scrolls what it holds up and down where it is too high. It is never narrower than its contents.
class ScrollColumn : public QScrollArea {
  Q_OBJECT
 public:
  explicit ScrollColumn(QWidget* contents, QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace trv5
