#include <QApplication>
#include <QCursor>
#include <iostream>
#include <string>

#include "console/console.h"
#include "console/offscreen_platform.h"
#include "screens/kit/theme.h"

// The offscreen platform tells what it can't do with windows; nobody is there to see them.
static void complain(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (text.startsWith(QStringLiteral("This plugin does not support")) ||
      text.startsWith(QStringLiteral("QStandardPaths")))
    return;
  std::cerr << text.toStdString() << std::endl;
}

// The same screens without a window, driven by lines on the standard input. Status 0 when every line was understood.
int main(int argc, char** argv) {
  const trv5::OffscreenPlatform platform;
  qInstallMessageHandler(complain);
  QApplication app(argc, argv);
  QCursor::setPos(9000, 9000);  // over no window
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
