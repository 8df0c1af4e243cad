#pragma once

#include <QApplication>
#include <QImage>
#include <QWidget>

#include "core/controls.h"
#include "screens/kit/grid_view.h"
#include "screens/kit/ink.h"
#include "screens/kit/theme.h"
#include "support/fake_shell.h"

namespace trv5 {

/// A form for the widgets of a test, with a user who is none.
struct FormWorld {
  FakeShell shell;
  Form form{shell, "Prova", "Prova", 0};
};

/// Lets layouts, grids and paintings catch up.
inline void settle() {
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }
}

/// A shown widget of that size, with the looks of the program.
template <class Widget>
Widget& shown(Widget& widget, int width, int height) {
  if (widget.parentWidget() == nullptr) Theme::edit().dressWindow(widget);
  widget.resize(width, height);
  widget.show();
  settle();
  return widget;
}

/// What a cell of a grid looks like, rows counted as in the grid.
inline QImage pictureOfCell(GridView& view, int row, int column) {
  settle();
  const QRect place = view.visualRect(view.model()->index(view.gridModel().modelRow(row), column));
  return view.viewport()->grab(place).toImage();
}

inline Rgb pixel(const QImage& image, int x, int y) {
  return image.pixel(x, y) & 0xFFFFFFU;
}

/// The colours of a picture that cover at least `share` of it.
inline bool hasColour(const QImage& image, Rgb colour, double share = 0.0) {
  long found = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) found += pixel(image, x, y) == colour;
  return found > 0 && found >= share * image.width() * image.height();
}

/// Relative luminance of the brightest pixel: strokes of letters are thinner than a pixel.
inline double brightest(const QImage& image) {
  double found = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) found = std::max(found, relativeLuminance(pixel(image, x, y)));
  return found;
}

}  // namespace trv5
