#pragma once

#include <QUrl>
#include <QWidget>

class QTextBrowser;

namespace trv5 {

/// The window of the on-line help: the pages made at build time, with back, forward and index.
class HelpViewer : public QWidget {
  Q_OBJECT
 public:
  explicit HelpViewer(QWidget* parent = nullptr);

  /// Shows a page, scrolled to its anchor, in front of everything.
  void open(const QUrl& page);
  QUrl page() const;

 private:
  void dressPage();

  QTextBrowser* m_browser;
};

}  // namespace trv5
