#pragma once

#include <QHash>
#include <QList>
#include <functional>

#include "cases/workbench.h"
#include "screens/kit/screen.h"

class QScrollArea;
class QSplitter;

namespace trv5 {

class PagePair;
class WorkbenchForecasts;
class WorkbenchReferenceBar;
class WorkbenchSearch;
class WorkbenchSelections;
class WorkbenchStatistics;

/// The workbench: the whole road from the situation to the statistics in one window. Two rows with splitters; what
/// stands where is the same at every size, but for the two pages of `SSTab1`, which share one place where there is
/// little room.
class Sommativi1Screen : public Screen {
  Q_OBJECT
 public:
  explicit Sommativi1Screen(Workbench& form);

  void restore(const QSettings& settings) override;
  void store(QSettings& settings) const override;
  /// The narrow layout must find its way back from a wide one, which needs more room.
  QSize minimumSizeHint() const override;
  std::vector<std::string> printHeader(const GridControl& grid) const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Handle {
    QSplitter* splitter;
    const char* name;
  };

  void buildKeys();
  void key(const QKeySequence& sequence, std::function<void()> run);
  void followPages();
  void orderTabs();
  void tellKeys();
  void makeNextPage();
  /// Where the handles of a splitter are kept: each density and each layout has its own.
  QString memoryKey(const char* splitter) const;
  /// False when nothing has changed since the last time.
  bool layOut();
  void layOutLater();
  QList<int> defaultSizes(const char* splitter) const;
  int leastTop(bool wide) const;

  Workbench& m_w;
  WorkbenchReferenceBar* m_bar;
  WorkbenchSelections* m_selections;
  PagePair* m_pages;
  WorkbenchSearch* m_search;
  WorkbenchForecasts* m_forecasts;
  WorkbenchStatistics* m_statistics;
  QScrollArea* m_scroll = nullptr;
  QSplitter *m_rows, *m_top, *m_bottom;
  QList<Handle> m_handles;
  QList<int> m_laidOutFor;  // sizes and needs of the parts
  bool m_layOutAsked = false, m_painted = false;
  QHash<QString, QList<int>> m_moved;  // sizes that the user gave, by memoryKey
};

}  // namespace trv5
