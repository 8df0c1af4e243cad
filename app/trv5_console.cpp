#include <QApplication>
#include <QCursor>
#include <QTemporaryFile>
#include <iostream>
#include <string>

#include "console/console.h"
#include "screens/theme.h"

// The offscreen platform tells what it can't do with windows; nobody is there to see them.
static void complain(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (text.startsWith(QStringLiteral("This plugin does not support")) ||
      text.startsWith(QStringLiteral("QStandardPaths")))
    return;
  std::cerr << text.toStdString() << std::endl;
}

// The same screens without a window, driven by lines on the standard input. Status 0 when every line was understood.
int main(int argc, char** argv) {
  Q_INIT_RESOURCE(console);
  // The platform wants the description of its screens, one for each scale of a picture, as a file of the disk.
  QTemporaryFile screens;
  QFile description(QStringLiteral(":/console/offscreen.json"));
  if (screens.open() && description.open(QIODevice::ReadOnly) && screens.write(description.readAll()) > 0 &&
      screens.flush())
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toLocal8Bit());
  else
    qputenv("QT_QPA_PLATFORM", "offscreen");
  // A picture has the size that the script asks for, whatever the desktop is set to.
  for (const char* const name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI"}) qunsetenv(name);
  qInstallMessageHandler(complain);
  QApplication app(argc, argv);
  QCursor::setPos(9000, 9000);  // over no window
  screens.remove();
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
