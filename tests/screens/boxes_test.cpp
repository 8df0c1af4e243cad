// The boxes of the desktop program as they stand on the screen.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include "screens/shell/qt_shell.h"

namespace trv5 {
namespace {

struct Seen {
  int width = 0, sixtyCharacters = 0;
};

// Looks at the box that `open` waits for, then gives it up.
Seen lookAtBox(const std::function<void()>& open) {
  Seen seen;
  QTimer::singleShot(0, [&seen] {
    auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    seen.width = box->width();
    seen.sixtyCharacters = 60 * box->fontMetrics().averageCharWidth();
    box->reject();
  });
  open();
  return seen;
}

TEST(Boxes, AnInputBoxHasRoomForSixtyCharacters) {
  QtShell shell(std::vector<ScreenEntry>{});
  const Seen seen = lookAtBox([&] { shell.input({.text = "Ricerca per data GG/MM/AAAA", .title = "Data ?"}); });
  EXPECT_GE(seen.width, seen.sixtyCharacters);
  EXPECT_GT(seen.sixtyCharacters, 0);
}

TEST(Boxes, AMessageHasRoomForSixtyCharacters) {
  QtShell shell(std::vector<ScreenEntry>{});
  const Seen seen = lookAtBox([&] { shell.confirm({.text = "Procedere ?", .title = "Conferma"}); });
  EXPECT_GE(seen.width, seen.sixtyCharacters);
  EXPECT_GT(seen.sixtyCharacters, 0);
}

}  // namespace
}  // namespace trv5
