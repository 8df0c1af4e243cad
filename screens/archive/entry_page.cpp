#include "screens/archive/entry_page.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QHeaderView>
#include <string>

#include "screens/kit/kit.h"
#include "screens/kit/scroll_column.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

// A box holds two figures with room around them.
QLineEdit* numberBox(Kit& kit, int wheel, int position) {
  const std::string name = "txtin_" + std::to_string(wheel * kPositions + position);
  QLineEdit* const box = kit.edit(name);
  box->setProperty("figures", true);
  box->setAlignment(Qt::AlignCenter);
  withTheme(*box, [box] {
    QFont font = Theme::current().base();
    font.setPointSizeF(Theme::current().figurePoints());
    box->setFixedWidth(QFontMetrics(font).horizontalAdvance(QStringLiteral("888")) + 22);
  });
  const std::string_view wheelName = NomiRuote[static_cast<std::size_t>(wheel)];
  box->setAccessibleName(QStringLiteral("%1, %2").arg(qs(std::string(wheelName))).arg(position));
  return box;
}

QLayout* numberBoxes(Kit& kit) {
  auto* const grid = new QGridLayout;
  for (int wheel = 0; wheel < kWheels; ++wheel) {
    // The last row has a name of its own; the first can be reached by its letter.
    const QString code =
        wheel == kNational ? QStringLiteral("NAZ") : qs(std::string(CodiciRuote[static_cast<std::size_t>(wheel)]));
    QLineEdit* const first = numberBox(kit, wheel, 1);
    grid->addWidget(Kit::text(wheel == 0 ? u'&' + code : code, Type::Title, wheel == 0 ? first : nullptr), wheel, 0);
    grid->addWidget(first, wheel, 1);
    for (int position = 2; position <= kPositions; ++position)
      grid->addWidget(numberBox(kit, wheel, position), wheel, position);
    grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding), wheel, kPositions + 1);
  }
  withTheme(*grid, [grid] {
    const int unit = Theme::current().unit();
    grid->setHorizontalSpacing(unit);
    grid->setVerticalSpacing(unit / 6);  // the rows share the height that is left
    grid->setColumnMinimumWidth(0, QFontMetrics(Theme::current().title()).horizontalAdvance(QStringLiteral("NAZ88")));
  });
  return grid;
}

QLayout* group(const char* title, const std::vector<QPushButton*>& buttons) {
  std::vector<Piece> pieces = {Kit::text(QString::fromUtf8(title), Type::Hint)};
  for (QPushButton* const button : buttons) pieces.emplace_back(button);
  QBoxLayout* const made = column(pieces);
  // Close together in a low window, so that the calendar of a year has its twelve rows there too.
  withTheme(*made, [made] {
    const Theme& theme = Theme::current();
    made->setSpacing(theme.density() == Theme::Density::Compact ? theme.unit() / 3 : theme.unit());
  });
  return made;
}

// In the order of the hand: find a draw, change it, or enter a new one.
QLayout* commands(Kit& kit) {
  QBoxLayout* const groups =
      column({group("Cerca", {kit.button("Command59", {.icon = "calendar", .mnemonic = 'd'}),
                              kit.button("Command42", {.icon = "hash", .mnemonic = 'i'}),
                              kit.button("Command4", {.icon = "to_end", .mnemonic = 'V'})}),
              Piece::gap(),
              group("Estrazione mostrata",
                    {kit.button("Command3", {.icon = "save", .mnemonic = 'M'}),
                     kit.button("Command2", {.kind = ButtonKind::Danger, .icon = "trash", .mnemonic = 'E'})}),
              Piece::gap(),
              group("Nuova estrazione",
                    {kit.button("Command1", {.icon = "file", .mnemonic = 'G'}),
                     kit.button("Command12", {.icon = "clipboard", .mnemonic = 'N'}),
                     kit.button("Command8", {.kind = ButtonKind::Primary, .icon = "save", .mnemonic = 'S'})})});
  withTheme(*groups, [groups] { groups->setSpacing(Theme::current().unit() / 2); });
  return groups;
}

QWidget* drawPanel(Kit& kit) {
  auto* const panel = new Panel;
  QToolButton* const index = kit.key("pAN_DC");
  withTheme(*index, [index] {
    index->setMinimumWidth(QFontMetrics(Theme::current().title()).horizontalAdvance(QStringLiteral("8888888")));
  });
  panel->body()->addLayout(row({index, kit.label("LBLESTRAZIONE", Type::Large), Piece::gap(),
                                Kit::text(QStringLiteral("Mensile"), Type::Hint), kit.label("LabelPM", Type::Title),
                                Kit::text(QStringLiteral("Annuale"), Type::Hint), kit.label("LabelPA", Type::Title)}));
  QScrollBar* const scroller = kit.scroll("HScrestrazione");
  scroller->setAccessibleName(QStringLiteral("Estrazione mostrata"));
  panel->body()->addWidget(scroller);
  // What it says is as long as it may be: the panel isn't.
  QLabel* const remark = kit.label("Lbl_Controllo", Type::Small);
  remark->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  QBoxLayout* const boxes = column({{numberBoxes(kit), 1}, remark});
  withTheme(*boxes, [boxes] { boxes->setSpacing(Theme::current().unit() / 3); });
  panel->body()->addLayout(row({boxes, Piece::space(), {commands(kit), 1}}), 1);
  return panel;
}

QWidget* calendarPanel(Kit& kit) {
  auto* const panel = new Panel;
  QCalendarWidget* const calendar = kit.calendar("MonthView1");
  calendar->setAccessibleName(QStringLiteral("Data della nuova estrazione"));
  // Less than it asks for by itself, so that a small window holds the panels beside it.
  withTheme(*calendar, [calendar] {
    calendar->setMinimumWidth(7 * QFontMetrics(Theme::current().base()).horizontalAdvance(QStringLiteral("88888")));
  });
  panel->body()->addWidget(calendar, 1);
  return panel;
}

QWidget* datePanel(Kit& kit) {
  auto* const panel = new Panel;
  auto* const state = new QGridLayout;
  state->addWidget(Kit::text(QStringLiteral("Num estraz"), Type::Hint), 0, 0);
  state->addWidget(kit.label("Label2", Type::Title), 0, 1);
  state->addWidget(Kit::text(QStringLiteral("Dati aggiornati al"), Type::Hint), 1, 0);
  state->addWidget(kit.label("LBLAGGIORNATO", Type::Title), 1, 1);
  state->addWidget(kit.button("CmDHelp", {.kind = ButtonKind::Quiet, .icon = "help", .iconOnly = true}), 0, 2);
  state->addWidget(kit.button("Command22", {.kind = ButtonKind::Quiet, .icon = "help", .iconOnly = true}), 1, 2);
  state->setColumnStretch(1, 1);
  panel->body()->addLayout(state);
  panel->body()->addLayout(row({Piece::space()}));
  panel->body()->addWidget(Kit::text(QStringLiteral("Data della nuova estrazione"), Type::Hint));
  panel->body()->addWidget(Kit::captioned(QStringLiteral("Data selezionata"), kit.edit("Text1")));
  panel->body()->addWidget(kit.button("Command6", {.icon = "calendar"}));
  panel->body()->addWidget(kit.button("Command9", {.icon = "calendar", .mnemonic = 'o'}));
  QLabel* const note = Kit::text(QStringLiteral("Attenzione: la data considerata è quella del calendario e riportata "
                                                "anche nella casella Data selezionata"),
                                 Type::Small);
  note->setWordWrap(true);
  panel->body()->addWidget(note);
  panel->body()->addStretch(1);
  panel->body()->addWidget(Kit::text(QStringLiteral("Sito delle estrazioni"), Type::Hint));
  QLabel* const address = kit.label("Label5");
  address->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  panel->body()->addWidget(address);
  panel->body()->addWidget(kit.button("Command5", {.icon = "globe"}));
  withTheme(*panel,
            [panel] { panel->setFixedWidth(34 * QFontMetrics(Theme::current().base()).horizontalAdvance(u'8')); });
  return panel;
}

QWidget* yearPanel(Kit& kit) {
  auto* const panel = new Panel;
  QComboBox* const year = kit.combo("Combo1", QStringLiteral("8888"));
  QLabel* const caption = Kit::text(QStringLiteral("&Anno"), Type::Hint, year);
  year->setAccessibleName(QStringLiteral("Anno"));
  const QString days = QStringLiteral(
      "1=(D) Domenica  2=(L) Lunedì   3=(M) Martedì  4=(m) Mercoledì  5=(G) Giovedì  6=(V) Venerdì  7=(S) Sabato");
  panel->body()->addLayout(row({caption, year, kit.button("Command24", {.icon = "calendar", .mnemonic = 'C'}),
                                kit.check("Check2"), Piece::gap(), Kit::text(days, Type::Small)}));
  GridView* const draws = kit.grid("Fg1", {.name = QStringLiteral("Estrazioni dell'anno"),
                                           .samples = {QString(), QStringLiteral("888888"), QStringLiteral("8888")},
                                           .folded = {0},
                                           .even = true,
                                           .evenFrom = 3,
                                           .tight = true});
  panel->body()->addWidget(draws, 1);
  // Twelve months; where there is less room they scroll.
  withTheme(*draws, [draws, panel] {
    const Theme& theme = Theme::current();
    const int row = draws->verticalHeader()->defaultSectionSize();
    const int around = theme.heading() + 2 * draws->frameWidth();
    draws->setMinimumHeight(around + 5 * row);
    const int whole = around + 12 * row + theme.control() + theme.unit() + 2 * theme.panelPadding();
    panel->setMaximumHeight(whole + theme.unit() / 2);  // and the borders
  });
  return panel;
}

}  // namespace

QWidget* archiveEntryPage(Archivio& form) {
  Kit kit(form);
  QWidget* const page =
      holding(column({row({drawPanel(kit), {calendarPanel(kit), 1}, datePanel(kit)}), {yearPanel(kit), 1}}));
  padAsPage(*page);
  return new ScrollColumn(page);  // with a large font in a small window
}

}  // namespace trv5
