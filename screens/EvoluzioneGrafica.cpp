#include "screens/EvoluzioneGrafica.h"

#include <QVBoxLayout>

#include "cases/case_map.h"
#include "screens/kit/theme.h"

namespace trv5 {

EvoluzioneGraficaScreen::EvoluzioneGraficaScreen(EvoluzioneGrafica& form) : Screen(form) {
  auto* const layout = new QVBoxLayout(this);
  const int unit = Theme::current().unit();
  layout->setContentsMargins(unit, unit, unit, unit);
  layout->addWidget(
      kit.grid("Fg1", {.samples = {QStringLiteral("88")},
                       .even = true,
                       .evenFrom = 1,
                       .minColumn = 3,
                       .minRow = 8,
                       .maxRow = 24,
                       .toolTip = [&form](int row, int column) { return qs(mapCellText(form.Fg1, row, column)); }}));
}

}  // namespace trv5
