#pragma once

#include <functional>

#include "cases/workbench.h"
#include "screens/kit/layouts.h"

namespace trv5 {

class PagePair;

/// `SSTab3`: the tables of formulas with their hits, the summary, the live forecasts and what is made of them.
class WorkbenchForecasts : public Panel {
  Q_OBJECT
 public:
  explicit WorkbenchForecasts(Workbench& w, QWidget* parent = nullptr);
  /// With room the two sheets of Raggruppamento stand side by side.
  void setWide(bool wide);

 Q_SIGNALS:
  /// A tab came to the front, by the user or by an operation: its given index.
  void tabInFront(int tab);

 private:
  PagePair* m_grouping = nullptr;  // once its page is made
  bool m_wide = false;
};

}  // namespace trv5
