#include <gtest/gtest.h>

#include <QApplication>

#include "screens/kit/theme.h"

// Windows without a display, under the looks of the program.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  trv5::Theme theme(app);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
