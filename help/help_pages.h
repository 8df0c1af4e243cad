#pragma once

#include <QString>
#include <QUrl>

namespace trv5 {

/// The page, with its anchor, that explains a help context: "qrc:/help/finestra.html#finestra". The index for a context
/// that has no page.
QUrl helpPage(int context);

/// The page of a screen that has no context number, by its name; the index for one without a page.
QUrl helpPageOfScreen(const QString& screen);

/// The first page of the help.
QUrl helpIndex();

}  // namespace trv5
