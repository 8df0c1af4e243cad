// The control that has the focus shows it once.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>

#include "screens/shell/qt_shell.h"
#include "window_world.h"
#include "workbench_screen.h"

namespace trv5 {
namespace {

// The widgets below `window` that the Tab key can reach as it stands.
std::vector<QWidget*> focusable(QWidget& window) {
  std::vector<QWidget*> found;
  for (QWidget* const widget : window.findChildren<QWidget*>())
    if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0 &&
        widget->focusProxy() == nullptr && !widget->visibleRegion().isEmpty())
      found.push_back(widget);
  return found;
}

// The lines of a colour that the focus adds, met on the way down through the picture at x: two for a ring, one for the
// ring of a tab, which stands on its line.
int linesAdded(const QImage& without, const QImage& with, int x, Rgb colour) {
  int lines = 0;
  bool before = false;
  for (int y = 0; y < with.height(); ++y) {
    const bool added = pixel(with, x, y) == colour && pixel(without, x, y) != colour;
    lines += added && !before;
    before = added;
  }
  return lines;
}

long pixelsOf(const QImage& image, Rgb colour) {
  long found = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) found += pixel(image, x, y) == colour;
  return found;
}

// Looks at each widget without and with the focus.
void expectOneMarkEach(QWidget& window) {
  const ChromeColours& colours = Theme::current().colours();
  const std::vector<QWidget*> widgets = focusable(window);
  ASSERT_GE(widgets.size(), 3U);
  for (QWidget* const widget : widgets) {
    SCOPED_TRACE(std::string(widget->metaObject()->className()) + ": " + widget->objectName().toStdString());
    QWidget* const other = widget == widgets.front() ? widgets.back() : widgets.front();
    other->setFocus(Qt::OtherFocusReason);
    settle();
    const QImage without = widget->grab().toImage();
    widget->setFocus(Qt::OtherFocusReason);
    settle();
    ASSERT_TRUE(widget->hasFocus());
    // The text of a list that takes typing is selected: that is no mark.
    if (auto* const list = qobject_cast<QComboBox*>(widget); list != nullptr && list->isEditable())
      list->lineEdit()->deselect();
    settle();
    const QImage with = widget->grab().toImage();
    ASSERT_EQ(with.size(), without.size()) << "the mark takes no room";
    const bool primary = widget->property("kind") == QStringLiteral("primary");
    int most = 0;
    for (int x = 4; x < with.width(); x += 8)
      most = std::max(most, linesAdded(without, with, x, primary ? colours.text : colours.accent));
    EXPECT_GE(most, 1) << "the focus can't be seen";
    EXPECT_LE(most, 2) << "more than one mark";
    if (primary || qobject_cast<QAbstractButton*>(widget) == nullptr) continue;
    EXPECT_EQ(pixelsOf(with, colours.text), pixelsOf(without, colours.text)) << "the caption is cut";
  }
}

TEST(FocusMarks, OfTheStartAreOneForEachControl) {
  WindowWorld world;
  world.start();
  expectOneMarkEach(*world.shell.widget("INIZIO"));
}

TEST(FocusMarks, OfTheWorkbenchAreOneForEachControl) {
  for (const bool dark : {false, true}) {
    Theme::edit().setDark(dark);
    WorkbenchScreen world({1920, 1080});
    expectOneMarkEach(*world.screen);
  }
  Theme::edit().setDark(false);
}

}  // namespace
}  // namespace trv5
