#include "screens/shell/help_search.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

namespace trv5 {
namespace {

struct PageText {
  QUrl url;
  QStringList paragraphs;  // the title first
};

// All pages as plain paragraphs, read once.
const std::vector<PageText>& pages() {
  static const std::vector<PageText> all = [] {
    std::vector<PageText> read;
    for (const QString& name : QDir(QStringLiteral(":/help")).entryList({QStringLiteral("*.html")})) {
      QFile file(QStringLiteral(":/help/") + name);
      if (!file.open(QIODevice::ReadOnly)) continue;
      QTextDocument document;
      document.setHtml(QString::fromUtf8(file.readAll()));
      PageText& page = read.emplace_back(PageText{QUrl(QStringLiteral("qrc:/help/") + name), {}});
      for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        if (const QString text = block.text().simplified(); !text.isEmpty()) page.paragraphs.append(text);
    }
    return read;
  }();
  return all;
}

bool holdsAll(const QString& text, const QStringList& words) {
  return std::all_of(words.begin(), words.end(),
                     [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

}  // namespace

std::vector<HelpHit> searchHelp(const QString& text) {
  constexpr int kMostOfPage = 3;
  const QStringList words = text.simplified().split(u' ', Qt::SkipEmptyParts);
  std::vector<HelpHit> inTitles, hits;
  if (words.isEmpty()) return hits;
  for (const PageText& page : pages()) {
    if (page.paragraphs.isEmpty() || !holdsAll(page.paragraphs.join(u' '), words)) continue;
    const QString& title = page.paragraphs.front();
    std::vector<HelpHit>& into = holdsAll(title, words) ? inTitles : hits;
    int found = 0;
    for (const QString& paragraph : page.paragraphs) {
      if (found == kMostOfPage) break;
      if (!holdsAll(paragraph, words)) continue;
      into.push_back({page.url, title, paragraph});
      ++found;
    }
    if (found > 0) continue;
    const auto first = std::find_if(page.paragraphs.begin(), page.paragraphs.end(), [&](const QString& paragraph) {
      return paragraph.contains(words.front(), Qt::CaseInsensitive);
    });
    if (first != page.paragraphs.end()) into.push_back({page.url, title, *first});
  }
  inTitles.insert(inTitles.end(), hits.begin(), hits.end());
  return inTitles;
}

}  // namespace trv5
