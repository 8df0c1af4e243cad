#include <QApplication>
#include <iostream>
#include <string>

#include "console/console.h"
#include "screens/theme.h"

// The same screens without a window, driven by lines on the standard input. Status 0 when every line was understood.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // A picture has the size that the script asks for, whatever the desktop is set to.
  for (const char* const name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI"}) qunsetenv(name);
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  trv5::Theme theme(app);
  trv5::Console console(theme);

  std::ios::sync_with_stdio(false);
  std::string line;
  while (!console.wantsToQuit() && std::getline(std::cin, line)) {
    const std::string answer = console.answer(line);
    if (!answer.empty()) std::cout << answer << '\n' << std::flush;
  }
  return console.allUnderstood() ? 0 : 1;
}
