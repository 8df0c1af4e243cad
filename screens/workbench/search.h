#pragma once

#include <vector>

#include "cases/workbench.h"
#include "screens/kit/layouts.h"

class QAbstractButton;
class QLabel;
class QStackedWidget;

namespace trv5 {

class GridView;
class LuckFoot;

/// Ricerca: the inputs of a search beside its buttons, the ranked candidates, and what takes one of them into a table.
class WorkbenchSearch : public Panel {
  Q_OBJECT
 public:
  explicit WorkbenchSearch(Workbench& w, QWidget* parent = nullptr);

  /// Brings the searches of a tab of the forecasts to the front. On a tab without searches the last ones stay.
  void followTab(int tab);
  /// Puts the focus on the search buttons: arrows walk them, Enter searches and goes to the candidates.
  void focusSearches();

  /// Other panels leave it no more width than its buttons need.
  void setNarrow(bool narrow);
  /// The height at which so many candidates are in sight, at that width.
  int heightFor(int candidates, int width) const;
  /// As high as its rows are where they wrap at the width of the moment.
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* page(const std::vector<QWidget*>& groups, QWidget* atRight);
  std::vector<QAbstractButton*> buttons() const;
  void walk(const QWidget* from, int step);
  void goToCandidates();

  Workbench& m_w;
  QLabel* m_title;
  QStackedWidget* m_pages;
  GridView* m_candidates;
  LuckFoot* m_foot = nullptr;
};

}  // namespace trv5
