#include "screens/FunzioniAggiuntive.h"

#include <QVBoxLayout>

#include "screens/kit/theme.h"

namespace trv5 {

FunzioniAggiuntiveScreen::FunzioniAggiuntiveScreen(FunzioniAggiuntive& form) : Screen(form) {
  auto* const layout = new QVBoxLayout(this);
  const int unit = Theme::current().unit();
  layout->setContentsMargins(unit, unit, unit, unit);
  layout->addWidget(kit.button("Command3", {.icon = "search", .mnemonic = 'V'}));
  layout->addWidget(kit.button("Command1", {.icon = "extra", .mnemonic = 'G'}));
  layout->addWidget(kit.button("Command2", {.icon = "broom", .mnemonic = 'Z'}));
  QListWidget* const log = kit.lines("List1", 5);
  log->setAccessibleName(QStringLiteral("Esito delle operazioni"));
  layout->addWidget(log, 1);
}

}  // namespace trv5
