#include "screens/ElencoRiscontri.h"

#include <QVBoxLayout>

#include "screens/kit/theme.h"

namespace trv5 {

ElencoRiscontriScreen::ElencoRiscontriScreen(ElencoRiscontri& form) : Screen(form) {
  auto* const layout = new QVBoxLayout(this);
  const int unit = Theme::current().unit();
  layout->setContentsMargins(unit, unit, unit, unit);
  layout->addLayout(flow({kit.button("Stampa_Fg1", {.kind = ButtonKind::Quiet, .icon = "print", .mnemonic = 'S'}),
                          kit.button("Copia_Fg1", {.kind = ButtonKind::Quiet, .icon = "copy", .mnemonic = 'C'}),
                          kit.button("Pulisce_Fg1", {.kind = ButtonKind::Quiet, .icon = "broom", .mnemonic = 'P'})}));
  const QString number = QStringLiteral("88"), draw = QStringLiteral("8888"), date = QStringLiteral("88/88/8888");
  layout->addWidget(
      kit.grid("Fg1", {.name = QStringLiteral("Elenco dei riscontri"), .samples = {number, draw,
                                                                                   date,   number,
                                                                                   number, QStringLiteral("NZ"),
                                                                                   number, number,
                                                                                   number, number,
                                                                                   number, number,
                                                                                   number, QStringLiteral("NZ"),
                                                                                   number, draw,
                                                                                   date,   number,
                                                                                   number, number,
                                                                                   number, number}}),
      1);
}

}  // namespace trv5
