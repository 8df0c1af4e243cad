#include "screens/workbench/selections.h"

#include "screens/kit/kit.h"
#include "screens/kit/scroll_column.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

QWidget* captioned(const char* caption, QWidget* widget) {
  return Kit::captioned(QString::fromUtf8(caption), widget);
}

QLayout* numbersColumn(Kit& kit) {
  std::vector<Piece> positions = {Kit::text(QStringLiteral("Posizioni"), Type::Hint), Piece::gap()};
  for (int p = 1; p <= kPositions; ++p) positions.emplace_back(kit.key("LblPN_" + std::to_string(p)));
  GridView* const pad = kit.grid("FgNu", {.name = QStringLiteral("Numeri"),
                                          .samples = std::vector<QString>(10, QStringLiteral("88")),
                                          .pad = true,
                                          .even = true,
                                          .tight = true,
                                          .minRow = 22,
                                          .maxRow = 34});
  withTheme(*pad, [pad] { pad->setMaximumHeight(pad->grid().rows() * pad->look().maxRow + 2 * pad->frameWidth()); });
  return column({row(positions), {pad, 1000}, Piece::gap()});
}

QLayout* wheelsColumn(Kit& kit) {
  GridView* const wheels = kit.grid(
      "FgRR",
      {.name = QStringLiteral("Ruote rilevazione"), .pad = true, .even = true, .tight = true, .fixedHeight = true});
  QLabel* const note = Kit::text(
      QStringLiteral("Per utilizzare rilevazioni su 2 ruote si deve spuntare la check box Analisi su ruote qui sotto"),
      Type::Small);
  note->setWordWrap(true);
  QLineEdit* const numbers = kit.edit("TxtNumeri", {}, true);
  numbers->setPlaceholderText(QStringLiteral("es. 01-30-60-90"));
  numbers->setAccessibleName(QStringLiteral("Numeri della situazione"));
  QComboBox* const value = kit.combo("ComboValF", QStringLiteral("8"));
  value->setAccessibleName(QStringLiteral("Valore di decina, cadenza o figura"));
  QBoxLayout* const rows = column({row({kit.joined({"Command24", "Command25", "Command26"}, false), value, Piece::gap(),
                                        kit.button("Command8", {.kind = ButtonKind::Quiet})}),
                                   Piece::gap(), row({{numbers, 1}, kit.button("Command6", {.mnemonic = 'O'})}),
                                   Piece::gap(), note, Piece::gap(),
                                   row({kit.check("Ch_analisi2ruote"), Piece::gap(),
                                        captioned("Retro", kit.combo("ComboRetro", QStringLiteral("88")))}),
                                   Piece::gap(),
                                   row({Kit::text(QStringLiteral("Ruote rilevazione"), Type::Hint), Piece::gap(),
                                        kit.swatch("Label4", Verde, false), kit.swatch("Label19", kWhite, false)}),
                                   wheels, Piece::gap(),
                                   row({captioned("QN R1", kit.combo("ComboQNR1", QStringLiteral("8"))), Piece::gap(),
                                        captioned("QN R2", kit.combo("ComboQNR2", QStringLiteral("8")))}),
                                   Piece::gap(), row({kit.check("ChDDS"), Piece::gap(), kit.check("Ch_ISO")})});
  // Nine rows of numbers beside eight of these: they move together before anything has to scroll.
  withTheme(*wheels, [rows] {
    rows->setSpacing(Theme::current().density() == Theme::Density::Compact ? 0 : Theme::current().unit() / 3);
  });
  return rows;
}

}  // namespace

WorkbenchSelections::WorkbenchSelections(Workbench& w, QWidget* parent) : QWidget(parent) {
  Kit kit(w);
  QComboBox* const kind = kit.combo("ComboFiltro", QStringLiteral("Differenza"));
  QLayout* const rows = column(
      {row({captioned("&Tipo rilevazione", kind), captioned("&Mensile", kit.combo("ComboPar", QStringLiteral("88"))),
            Piece::gap(), kit.button("Command14")}),
       row({captioned("&Ruota", kit.combo("ComboR1", QStringLiteral("MI"))),
            captioned("&N° casi", kit.combo("ComboNC", QStringLiteral("88"))),
            captioned("&QN", kit.combo("ComboQNu", QStringLiteral("8"))), Piece::gap(), kit.check("Ch_ultima", 'F')}),
       {row({{numbersColumn(kit), 1}, Piece::space(), {wheelsColumn(kit), 1}}), 1}});
  m_rows = holding(rows);
  setLayout(column({{new ScrollColumn(m_rows), 1},
                    row({kit.button("Command41", {.kind = ButtonKind::Quiet, .icon = "file"}), Piece::gap(),
                         kit.button("Command44", {.kind = ButtonKind::Primary, .icon = "play"})})}));
  setFocusProxy(kind);
}

int WorkbenchSelections::wholeHeight() const {
  const int rows =
      std::max(m_rows->minimumSizeHint().height(), m_rows->layout()->minimumHeightForWidth(m_rows->width()));
  const QMargins margins = layout()->contentsMargins();
  return rows + Theme::current().unit() + layout()->itemAt(1)->minimumSize().height() + margins.top() +
         margins.bottom();
}

}  // namespace trv5
