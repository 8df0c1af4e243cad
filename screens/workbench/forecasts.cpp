#include "screens/workbench/forecasts.h"

#include <QTabBar>
#include <QTabWidget>

#include "screens/kit/kit.h"
#include "screens/kit/lazy_page.h"
#include "screens/kit/page_pair.h"
#include "screens/workbench/sorte_tab.h"
#include "screens/workbench/tabs.h"

namespace trv5 {
namespace {

// The tables take five formulas, the lunghetta ten.
constexpr SorteTab kAmbate = {"ambate",    "Fg11",      5,        "FgZ1",        "Command29",  "Command21", "Command90",
                              "Command32", "Command19", "Check3", "Stampa_FgZ1", "Copia_FgZ1", "Command75", nullptr};
constexpr SorteTab kAmbi = {
    "ambi",         "Fg22",       5,       "FgZ2",        "Command34",  nullptr,        "Command5",
    "Rimuove_Fg22", "Nuova_Fg22", nullptr, "Stampa_FgZ2", "Copia_FgZ2", "Pulisce_FgZ2", nullptr};
constexpr SorteTab kTerni = {
    "terni",        "Fg33",       5,       "FgZ3",        "Command48",  nullptr,        "Command91",
    "Rimuove_Fg33", "Nuova_Fg33", nullptr, "Stampa_FgZ3", "Copia_FgZ3", "Pulisce_FgZ3", nullptr};
constexpr SorteTab kLunghette = {"lunghetta",    "Fg00",         10,           "FgZ0",  "Command51",   nullptr,
                                 "Command92",    "Rimuove_Fg00", "Nuova_Fg00", nullptr, "Stampa_FgZ0", "Copia_FgZ0",
                                 "Pulisce_FgZ0", "Command85"};

QLayout* lunghettaRow(Workbench& w) {
  Kit kit(w);
  return row({Kit::captioned(QStringLiteral("&Sorte"), kit.combo("ComboSorte", QStringLiteral("8"))),
              kit.button("Cmd_Elabora100"), kit.button("Command30"), Piece::gap()});
}

}  // namespace

WorkbenchForecasts::WorkbenchForecasts(Workbench& w, QWidget* parent) : Panel({}, parent) {
  setBare();
  Kit kit(w);
  const auto grouping = [this, &w] {
    QWidget* const made = groupingTab(w, m_grouping);
    m_grouping->setSideBySide(m_wide);
    return made;
  };
  // Only the first is in sight when the workbench opens.
  const std::function<QWidget*()> later[] = {[&w] { return sorteTab(w, kAmbi); },
                                             [&w] { return sorteTab(w, kTerni); },
                                             [&w] { return summaryTab(w); },
                                             [&w] { return sorteTab(w, kLunghette, lunghettaRow(w)); },
                                             [&w] { return liveForecastsTab(w); },
                                             [&w] { return numbersInPlayTab(w); },
                                             grouping,
                                             [&w] { return informationTab(w); },
                                             [&w] { return configurationsTab(w); }};
  std::vector<QWidget*> pages = {sorteTab(w, kAmbate)};
  for (const auto& make : later) pages.push_back(new LazyPage(make));
  for (QWidget* const page : pages) padAsPage(*page);
  QTabWidget* const tabs = kit.tabs("SSTab3", pages);
  body()->addWidget(tabs);
  connect(tabs, &QTabWidget::currentChanged, this,
          [this, tabs](int i) { Q_EMIT tabInFront(tabs->tabBar()->tabData(i).toInt()); });
}

void WorkbenchForecasts::setWide(bool wide) {
  m_wide = wide;
  if (m_grouping != nullptr) m_grouping->setSideBySide(wide);
}

}  // namespace trv5
