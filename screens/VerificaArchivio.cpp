#include "screens/VerificaArchivio.h"

#include <QVBoxLayout>

#include "screens/kit/theme.h"

namespace trv5 {

VerificaArchivioScreen::VerificaArchivioScreen(VerificaArchivio& form) : Screen(form) {
  auto* const layout = new QVBoxLayout(this);
  const int unit = Theme::current().unit();
  layout->setContentsMargins(unit, unit, unit, unit);
  QLabel* const text = kit.label("LblSpiegazione");
  text->setWordWrap(true);
  layout->addWidget(text);
  const QString wheel = QStringLiteral("88-88-88-88-88");
  layout->addWidget(
      kit.grid("Fg_Differenze", {.samples = {QStringLiteral("88/88/8888"), QStringLiteral("mancante"), wheel, wheel,
                                             wheel, wheel, wheel, wheel, wheel, wheel, wheel, wheel, wheel}}),
      1);
  layout->addLayout(flow({kit.button("Cmd_Accetta", {.mnemonic = 'A'})}));
}

}  // namespace trv5
