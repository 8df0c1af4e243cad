#include "screens/DiDiSO.h"

#include "screens/kit/side_splitter.h"
#include "screens/kit/theme.h"

namespace trv5 {

DiDiSOScreen::DiDiSOScreen(DiDiSO& form) : Screen(form), m_form(form) {
  QWidget* const draw = drawPanel();
  QWidget* const pairs = pairsPanel();
  m_parts = new SideSplitter(QStringLiteral("DiDiSO"), draw, pairs, frequenciesPanel(), 480, 410);
  m_parts->fill(*this);
  setFocusPolicy(Qt::ClickFocus);
  setFocusProxy(findChild<QScrollBar*>(QStringLiteral("hs1")));
}

QWidget* DiDiSOScreen::drawPanel() {
  auto* const panel = new Panel;
  panel->body()->addLayout(row({kit.label("Label2", Type::Title), kit.label("Label1", Type::Large), Piece::gap(),
                                kit.label("Label3", Type::Hint)}));
  QScrollBar* const draw = kit.scroll("hs1");
  draw->setAccessibleName(QStringLiteral("Estrazione"));
  panel->body()->addWidget(draw);
  panel->body()->addLayout(flow({kit.button("Command42_0", {.icon = "hash", .mnemonic = 'i'}),
                                 kit.button("Command56", {.icon = "to_end", .mnemonic = 'U'}),
                                 kit.button("Command42_1", {.icon = "calendar", .mnemonic = 'd'})},
                                {kit.button("Command81", {.icon = "broom", .iconOnly = true})}));
  // Side by side, a wheel on one line; the codes stand in the first of them only.
  const auto numbers = [this](const char* name, const char* title) {
    return kit.grid(name, {.name = QString::fromUtf8(title),
                           .samples = std::vector<QString>(6, QStringLiteral("88")),
                           .even = true,
                           .minRow = 20,
                           .maxRow = 80,
                           .points = 12});
  };
  panel->body()->addLayout(row({{numbers("fG2", "Numeri"), 6}, {numbers("fG3", "Classi"), 5}}), 1);
  std::vector<Piece> modes;
  for (const char* const mode : {"Command3", "Command4", "Command5", "Command6", "Command7"})
    modes.emplace_back(kit.button(mode), 1);
  panel->body()->addLayout(row(modes));
  return panel;
}

QWidget* DiDiSOScreen::pairsPanel() {
  auto* const panel = new Panel;
  panel->body()->addLayout(
      row({kit.button("Command1", {.mnemonic = 'S'}), kit.button("Command2", {.mnemonic = 'g'}), Piece::gap()}));
  const std::vector<QString> samples = {
      QStringLiteral("Differenza"), QStringLiteral("Orizzontale"), {},
      QStringLiteral("BA"),         QStringLiteral("8"),           {},
      QStringLiteral("BA"),         QStringLiteral("8"),           QStringLiteral("88")};
  panel->body()->addWidget(
      kit.grid("Fg1", {.name = QStringLiteral("Coppie"), .samples = samples, .fitsFill = true, .tight = true}), 1);
  return panel;
}

QWidget* DiDiSOScreen::frequenciesPanel() {
  auto* const panel = new Panel;
  panel->body()->addWidget(
      kit.grid("Fg5", {.name = QStringLiteral("Frequenze"),
                       .samples = std::vector<QString>(10, QStringLiteral("888")),
                       .heavyAfter = {0, 3, 6},
                       .even = true,
                       .toolTip = [this](int row, int column) { return qs(frequencyText(m_form.Fg5, row, column)); }}),
      1);
  return panel;
}

void DiDiSOScreen::restore(const QSettings& settings) {
  m_parts->restore(settings);
}

void DiDiSOScreen::store(QSettings& settings) const {
  m_parts->store(settings);
}

std::vector<std::string> DiDiSOScreen::printHeader(const GridControl& grid) const {
  std::vector<std::string> lines = Screen::printHeader(grid);
  lines.push_back("Estrazione " + m_form.Label2.text() + " del " + m_form.Label1.text());
  return lines;
}

}  // namespace trv5
