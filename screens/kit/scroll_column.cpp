#include "screens/kit/scroll_column.h"

#include <QEvent>
#include <QScrollBar>

#include "screens/kit/theme.h"

namespace trv5 {

ScrollColumn::ScrollColumn(QWidget* contents, QWidget* parent) : QScrollArea(parent) {
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setWidget(contents);
  // The ground of what surrounds it shows through.
  viewport()->setAutoFillBackground(false);
  contents->setAutoFillBackground(false);
}

QSize ScrollColumn::sizeHint() const {
  return widget()->sizeHint() + QSize(verticalScrollBar()->sizeHint().width(), 0);
}

QSize ScrollColumn::minimumSizeHint() const {
  const QSize contents = widget()->minimumSizeHint();
  const int bar = height() < contents.height() ? verticalScrollBar()->sizeHint().width() : 0;
  return {contents.width() + bar, 4 * Theme::current().control()};
}

void ScrollColumn::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  updateGeometry();  // the bar comes or goes with the height
}

bool ScrollColumn::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace trv5
