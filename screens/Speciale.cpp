#include "screens/Speciale.h"

#include <QVBoxLayout>

#include "screens/kit/theme.h"

namespace trv5 {

SpecialeScreen::SpecialeScreen(Speciale& form) : Screen(form) {
  auto* const layout = new QVBoxLayout(this);
  const int unit = Theme::current().unit();
  layout->setContentsMargins(unit, unit, unit, unit);
  const QString number = QStringLiteral("88"), draw = QStringLiteral("8888");
  layout->addWidget(kit.grid("Fg1", {.name = QStringLiteral("Sfaldamenti configurazioni"),
                                     .samples = {number, draw,   {},     draw,   QStringLiteral("88/88/8888"),
                                                 number, {},     number, number, number,
                                                 number, number, number, number, number,
                                                 number, number, number, number, QStringLiteral("NZ")},
                                     .alike = {7, 8, 9, 10, 11, 12, 13, 14, 15, 16},
                                     .fitsFill = true}),
                    1);
}

}  // namespace trv5
