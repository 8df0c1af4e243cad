#include "console/offscreen_platform.h"

// Outside the namespace, as the resource's symbols are.
static void initResource() {
  Q_INIT_RESOURCE(console);
}

namespace trv5 {

OffscreenPlatform::OffscreenPlatform() {
  initResource();
  QFile description(QStringLiteral(":/console/offscreen.json"));
  if (m_screens.open() && description.open(QIODevice::ReadOnly) && m_screens.write(description.readAll()) > 0 &&
      m_screens.flush())
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + m_screens.fileName().toLocal8Bit());
  else
    qputenv("QT_QPA_PLATFORM", "offscreen");
  // A picture has the size that the script asks for, whatever the desktop is set to.
  for (const char* const name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI"}) qunsetenv(name);
}

}  // namespace trv5
