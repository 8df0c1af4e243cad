#pragma once

#include "cases/workbench.h"
#include "screens/kit/page_pair.h"

namespace trv5 {

// The pages of `SSTab3` beside those of the four sorti.

QWidget* summaryTab(Workbench& w);
QWidget* liveForecastsTab(Workbench& w);
QWidget* numbersInPlayTab(Workbench& w);
/// `sheets` becomes the pair of sheets inside it.
QWidget* groupingTab(Workbench& w, PagePair*& sheets);
QWidget* informationTab(Workbench& w);
QWidget* configurationsTab(Workbench& w);

}  // namespace trv5
