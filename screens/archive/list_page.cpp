#include "screens/archive/list_page.h"

#include "screens/kit/kit.h"
#include "screens/kit/theme.h"

namespace trv5 {

QWidget* archiveListPage(Archivio& form) {
  Kit kit(form);
  std::vector<QString> samples = {QString(), QStringLiteral("88/88/8888")};
  samples.resize(2 + kWheels, QStringLiteral("88-88-88-88-88"));
  QWidget* const page = holding(column(
      {row({kit.button("Command14", {.mnemonic = 'r'}), kit.button("Command13", {.icon = "to_end", .mnemonic = 'u'}),
            Piece::space(), Kit::text(QStringLiteral("N° estr"), Type::Hint), kit.label("Label9", Type::Title),
            Piece::gap(), kit.button("Command11", {.icon = "forward", .mnemonic = 'z'})}),
       {kit.grid("FgDB", {.name = QStringLiteral("Elenco estrazioni"),
                          .samples = samples,
                          .folded = {0},
                          .evenFrom = 2,
                          .tight = true,  // all wheels in sight in a small window; in a larger one they share the room
                          .atEnd = true}),
        1}}));
  padAsPage(*page);
  return page;
}

}  // namespace trv5
