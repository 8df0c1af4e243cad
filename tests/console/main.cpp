#include <gtest/gtest.h>

#include <QApplication>

#include "console/offscreen_platform.h"
#include "screens/kit/theme.h"

// Tests that run the console in their own process need Qt; those that start the program don't mind.
int main(int argc, char** argv) {
  const trv5::OffscreenPlatform platform;
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  trv5::Theme theme(app);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
