#include "help/help_pages.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace trv5 {
namespace {

QUrl pageUrl(const QString& address) {
  return QUrl(QStringLiteral("qrc:/help/") + address);
}

QUrl pageOf(const QString& key) {
  static const QJsonObject contexts = [] {
    QFile file(QStringLiteral(":/help/contexts.json"));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
  }();
  const QString address = contexts.value(key).toString();
  return address.isEmpty() ? helpIndex() : pageUrl(address);
}

}  // namespace

QUrl helpPage(int context) {
  return pageOf(QString::number(context));
}

QUrl helpPageOfScreen(const QString& screen) {
  return pageOf(screen);
}

QUrl helpIndex() {
  return pageUrl(QStringLiteral("indice.html"));
}

}  // namespace trv5
