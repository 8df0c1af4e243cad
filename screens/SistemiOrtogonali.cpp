#include "screens/SistemiOrtogonali.h"

#include "screens/kit/side_splitter.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

std::vector<QString> numberSamples(int columns) {
  return std::vector<QString>(static_cast<std::size_t>(columns), QStringLiteral("88"));
}

// Rows of a system: the number of the row, then its numbers, in columns of one width.
GridLook rowsLook(const char* name) {
  return {.name = QString::fromUtf8(name),
          .samples = numberSamples(91),
          .heavyAfter = {0},
          .even = true,
          .heading = false,
          .sideways = true,
          .strong = {0}};
}

}  // namespace

SistemiOrtogonaliScreen::SistemiOrtogonaliScreen(SistemiOrtogonali& form) : Screen(form), m_form(form) {
  QWidget* const list = listPanel();
  QWidget* const system = systemPanel();
  m_parts = new SideSplitter(QStringLiteral("SistemiOrtogonali"), list, system, resultPanel(), 292, 340);
  m_parts->fill(*this);
  setFocusPolicy(Qt::ClickFocus);
  setFocusProxy(findChild<GridView*>(QStringLiteral("FgSistemi")));
}

QWidget* SistemiOrtogonaliScreen::listPanel() {
  auto* const panel = new Panel;
  panel->body()->addLayout(row({kit.button("Command12", {.icon = "reload", .mnemonic = 'R'}), Piece::gap()}));
  panel->body()->addWidget(Kit::text(QStringLiteral("Elenco sistemi"), Type::Title));
  panel->body()->addWidget(kit.grid("FgSistemi", {.name = QStringLiteral("Elenco sistemi"),
                                                  .samples = {{}, {}, QStringLiteral("88 numeri in 88 quartine")},
                                                  .folded = {0}}),
                           1);
  QLabel* const promise = kit.label("LblPromessa", Type::Small);
  promise->setWordWrap(true);
  promise->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  // Its place is there before the first promise: the list doesn't shrink under the pointer.
  constexpr int kLines = 4;
  withTheme(*promise,
            [promise] { promise->setMinimumHeight(kLines * QFontMetrics(Theme::current().small()).lineSpacing()); });
  panel->body()->addWidget(promise);
  return panel;
}

// The numbers that the system uses, beside the pad of those to pick.
QLayout* SistemiOrtogonaliScreen::picks() {
  GridView* const numbers = kit.grid("Fg99", {.name = QStringLiteral("Numeri del sistema"),
                                              .samples = numberSamples(2),
                                              .heavyAfter = {0},
                                              .even = true,
                                              .heading = false,
                                              .strong = {1},
                                              .minRow = 20,
                                              .maxRow = 28});
  withTheme(*numbers, [numbers] {
    numbers->setFixedWidth(QFontMetrics(Theme::current().base()).horizontalAdvance(QStringLiteral("8888 8888 8888")));
  });
  GridView* const pad = kit.grid("Fg99x", {.name = QStringLiteral("Numeri da scegliere"),
                                           .samples = numberSamples(15),
                                           .pad = true,
                                           .even = true,
                                           .tight = true,
                                           .minRow = 24,
                                           .maxRow = 80});
  for (GridView* const view : {numbers, pad})
    view->setMaximumHeight(pad->grid().rows() * pad->look().maxRow + 2 * pad->frameWidth());
  return row({numbers, {pad, 1}});
}

QWidget* SistemiOrtogonaliScreen::systemPanel() {
  auto* const panel = new Panel;
  panel->body()->addWidget(kit.label("LblSistema", Type::Title));
  panel->body()->addWidget(kit.grid("FgSy", rowsLook("Righe del sistema")), 3);
  QLabel* const count = kit.label("Label20", Type::Title);
  count->setAlignment(Qt::AlignCenter);
  count->setFrameShape(QFrame::Box);
  count->setAccessibleName(QStringLiteral("Numeri scelti"));
  // The caption is there, what it once headed is not.
  QLabel* const nothing = Kit::text({});
  withTheme(*count, [count, nothing] {
    const QFontMetrics metrics(Theme::current().title());
    count->setFixedSize(metrics.horizontalAdvance(QStringLiteral("88888")), Theme::current().control());
    nothing->setFixedWidth(metrics.horizontalAdvance(QStringLiteral("8888")));
  });
  panel->body()->addLayout(
      row({kit.button("Command34", {.mnemonic = 'P'}), Piece::gap(), Kit::text(QStringLiteral("QN"), Type::Hint),
           nothing, count, kit.button("Command36", {.kind = ButtonKind::Primary, .mnemonic = 'S'})}));
  panel->body()->addLayout(picks(), 2);
  return panel;
}

QWidget* SistemiOrtogonaliScreen::resultPanel() {
  auto* const panel = new Panel(QStringLiteral("Sviluppo sistema selezionato"));
  panel->body()->addWidget(kit.grid("fG88", rowsLook("Sviluppo sistema selezionato")), 1);
  panel->body()->addLayout(
      flow({kit.button("Command9", {.kind = ButtonKind::Quiet, .icon = "print", .mnemonic = 't'}),
            kit.button("Command44", {.kind = ButtonKind::Quiet, .icon = "copy", .mnemonic = 'C'})}));
  return panel;
}

void SistemiOrtogonaliScreen::restore(const QSettings& settings) {
  m_parts->restore(settings);
}

void SistemiOrtogonaliScreen::store(QSettings& settings) const {
  m_parts->store(settings);
}

std::vector<std::string> SistemiOrtogonaliScreen::printHeader(const GridControl& grid) const {
  std::vector<std::string> lines = Screen::printHeader(grid);
  if (m_form.FgSy.hasData()) lines.push_back(m_form.LblSistema.text());
  return lines;
}

}  // namespace trv5
