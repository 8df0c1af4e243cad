#pragma once

#include <QString>
#include <QUrl>
#include <vector>

namespace trv5 {

/// A place of the help that holds the words looked for.
struct HelpHit {
  QUrl page;
  QString title;  ///< of the page
  QString line;   ///< the paragraph, or the first of them where the words stand apart
};

/// The places of all pages that hold every word of `text`, in whatever order and case: first those with the words in
/// the title of the page. At most three of a page; none for a text without words.
std::vector<HelpHit> searchHelp(const QString& text);

}  // namespace trv5
