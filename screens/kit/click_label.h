#pragma once

#include <QLabel>
#include <optional>

#include "core/palette.h"

namespace trv5 {

/// A text, or a swatch of colour with or without a text, that can be clicked, and pressed by Space with the focus.
class ClickLabel : public QLabel {
  Q_OBJECT
 public:
  explicit ClickLabel(QWidget* parent = nullptr);
  /// A square of that colour at the left of the text.
  void setSwatch(Rgb colour);
  /// Without its text only the swatch shows.
  void setCaptionShown(bool shown);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 Q_SIGNALS:
  void clicked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  int swatchSize() const;

  std::optional<Rgb> m_swatch;
  bool m_captionShown = true;
};

/// A text of one line that gives up its middle where there is no room; the whole of it is the tooltip.
class ElidedLabel : public QLabel {
  Q_OBJECT
 public:
  using QLabel::QLabel;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
};

}  // namespace trv5
