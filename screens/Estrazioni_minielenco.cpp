#include "screens/Estrazioni_minielenco.h"

#include <QVBoxLayout>

#include "screens/kit/theme.h"

namespace trv5 {
namespace {

// Which controls stand in a panel, from top to bottom.
struct PanelNames {
  const char *title, *index, *date, *progressives, *scroller, *numbers, *whiten;
};

Panel* drawPanel(Kit& kit, const PanelNames& names) {
  auto* const panel = new Panel;
  panel->body()->addLayout(row({kit.label(names.index, Type::Title), kit.label(names.date, Type::Large), Piece::gap(),
                                kit.label(names.progressives, Type::Hint)}));
  QScrollBar* const scroller = kit.scroll(names.scroller);
  scroller->setAccessibleName(QString::fromUtf8(names.title));
  panel->body()->addLayout(row({{scroller, 1}, kit.button(names.whiten, {.icon = "broom", .iconOnly = true})}));
  panel->body()->addWidget(kit.grid(names.numbers, {.name = QString::fromUtf8(names.title),
                                                    .samples = std::vector<QString>(6, QStringLiteral("88")),
                                                    .even = true,
                                                    .minRow = 20,
                                                    .maxRow = 48,
                                                    .points = 12}),
                           1);
  return panel;
}

}  // namespace

EstrazioniMinielencoScreen::EstrazioniMinielencoScreen(MiniList& form) : Screen(form) {
  auto* const layout = new QVBoxLayout(this);
  const int unit = Theme::current().unit();
  layout->setContentsMargins(unit, unit, unit, unit);
  layout->addLayout(flow({kit.button("Command56", {.icon = "to_end", .mnemonic = 'U'}),
                          kit.button("Command42_0", {.icon = "hash", .mnemonic = 'i'}),
                          kit.button("Command42_1", {.icon = "calendar", .mnemonic = 'd'})}));
  layout->addLayout(
      row({{drawPanel(kit, {"Prima estrazione", "Label2", "Label1", "Label3", "hs1", "fG2", "Command81"}), 1},
           {drawPanel(kit, {"Seconda estrazione", "Label5", "Label6", "Label4", "Hs2", "fG3", "Command1"}), 1}}),
      1);
}

}  // namespace trv5
