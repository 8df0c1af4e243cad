#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "core/errors.h"
#include "core/program.h"
#include "screens/kit/theme.h"
#include "screens/shell/qt_shell.h"
#include "screens/shell/run_place.h"

// The desktop program. It has no options: what the user sets lives in the program's folder.
int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("trv5"));
  QApplication::setApplicationDisplayName(QString());
  QApplication::setDesktopFileName(QStringLiteral("trv5"));
  QApplication::setQuitOnLastWindowClosed(false);
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  // Qt's own words (file dialogs, print preview) in Italian too, where its translations are installed.
  QTranslator words;
  if (words.load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(&words);
  trv5::Theme theme(app);

  trv5::QtShell shell;
  trv5::Program program(shell, trv5::programFolder(), trv5::shippedModel());
  shell.attach(program);
  try {
    shell.show("INIZIO");
  } catch (const trv5::UserError& error) {
    shell.message({.text = error.what(), .title = "TRV5", .icon = trv5::Icon::Critical});
    return 1;
  }
  shell.useSettings(program.folder / "TRV5.ini");
  const int status = QApplication::exec();
  shell.closeAll();
  shell.purge();
  return status;
}
