#pragma once

#include "cases/workbench.h"
#include "screens/kit/layouts.h"

class QBoxLayout;
class QGridLayout;

namespace trv5 {

class GridView;
class LuckLine;
class StateMark;

/// Statistiche: how the cases fared, beside every tab of the forecasts.
class WorkbenchStatistics : public Panel {
  Q_OBJECT
 public:
  explicit WorkbenchStatistics(Workbench& w, QWidget* parent = nullptr);
  /// With room a title, higher rows and the legend of the colours; with more room long bars.
  void setWide(bool wide, bool longBars);

 private:
  void arrange();

  GridView *m_counts, *m_bars;
  QWidget *m_countsHolder, *m_legend;
  StateMark* m_state;
  LuckLine* m_luck;
  QLabel* m_title;
  QGridLayout* m_grid;
  bool m_wide = false, m_longBars = false;
};

}  // namespace trv5
