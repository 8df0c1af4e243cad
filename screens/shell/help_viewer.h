#pragma once

#include <QUrl>
#include <QWidget>

class QLineEdit;
class QListWidget;
class QTextBrowser;

namespace trv5 {

/// Where a help of that size stands beside what it explains, all on the desktop: at its right, else at its left; where
/// neither has room, at the edge of the desktop that is further from where the user works.
QRect besideOf(const QRect& explained, const QPoint& work, const QSize& size, const QRect& desktop);

/// The window of the on-line help: the pages made at build time, with back, forward and index, and a search over all of
/// them.
class HelpViewer : public QWidget {
  Q_OBJECT
 public:
  explicit HelpViewer(QWidget* parent = nullptr);

  /// Shows a page, scrolled to its anchor, in front of everything. A help that isn't open yet takes its place beside
  /// `explained`; null for none.
  void open(const QUrl& page, const QWidget* explained = nullptr);
  QUrl page() const;

 private:
  void buildSearch();
  void dressPage();
  void search();

  QTextBrowser* m_browser;
  QLineEdit* m_words;
  QListWidget* m_hits;
};

}  // namespace trv5
