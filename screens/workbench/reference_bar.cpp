#include "screens/workbench/reference_bar.h"

#include <QEvent>
#include <utility>

#include "screens/kit/icons.h"
#include "screens/kit/theme.h"
#include "screens/workbench/last_draw_label.h"

namespace trv5 {
namespace {

// Width of the scroll bar in controls: what it keeps while the words beside it can be shorter, and in the end.
constexpr int kUsualControls = 4, kLeastControls = 2;
// Width of the wheels' cells while the chip takes their room.
constexpr int kNarrowCell = 27;

GridLook wheelsLook(int cell) {
  return {.name = QStringLiteral("Ruote di gioco"), .pad = true, .even = true, .minColumn = cell, .fixedHeight = true};
}

// Pixels that are meant at the base font.
int scaled(int pixels) {
  const bool compact = Theme::current().density() == Theme::Density::Compact;
  return pixels * QFontMetrics(Theme::current().base()).height() / (compact ? 18 : 19);
}

}  // namespace

WorkbenchReferenceBar::WorkbenchReferenceBar(Workbench& w, QWidget* parent)
    : QWidget(parent), m_lastDraw(new LastDrawLabel(w)), m_wheels(nullptr), m_rework(nullptr) {
  Kit kit(w);
  const auto command = [&kit](const char* name, const char* icon) {
    return kit.button(name, {.kind = ButtonKind::Quiet, .icon = icon, .iconOnly = true});
  };
  QScrollBar* const draw = kit.scroll("hs1");
  draw->setAccessibleName(QStringLiteral("Estrazione di riferimento"));
  m_wheels = kit.grid("FgRG", wheelsLook(0));
  m_rework = kit.button("Command87", {.icon = "reload"});
  m_wheels->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  m_swatches = {kit.swatch("Label17", Verde), kit.swatch("Label18", kWhite)};
  QComboBox* const colpi = kit.combo("ComboColpi", QStringLiteral("88"));
  QLabel* const colpiCaption = Kit::text(QStringLiteral("Col&pi"), Type::Hint, colpi);
  colpi->setAccessibleName(QStringLiteral("Colpi"));

  m_history = {command("Cmd_Annulla", "undo"), command("Cmd_Ripeti", "redo")};

  const auto part = [] {
    QFrame* const line = separator(Qt::Vertical);
    withTheme(*line, [line] { line->setFixedHeight(Theme::current().control() - 4); });
    return line;
  };
  QBoxLayout* const bar = row({command("Command42_0", "reload"),
                               kit.label("LabelRifE", Type::Title),
                               m_lastDraw,
                               {draw, 1},
                               command("Command42_1", "calendar"),
                               command("Command42_2", "hash"),
                               command("Command42_3", "to_end"),
                               part(),
                               kit.clickLabel("Label1_0", Type::Hint),
                               m_wheels,
                               m_swatches[0],
                               m_swatches[1],
                               part(),
                               colpiCaption,
                               colpi,
                               part(),
                               m_rework,
                               m_history[0],
                               m_history[1],
                               command("Command70", "help")});
  setLayout(bar);
  // The date of the draw changes its width; the bar beside it must not.
  auto* const shown = findChild<QLabel*>(QStringLiteral("LabelRifE"));
  withTheme(*this, [this, bar, shown, draw] {
    bar->setContentsMargins(Theme::current().unit(), 0, Theme::current().unit(), 0);
    setFixedHeight(Theme::current().control() + 14);
    shown->setMinimumWidth(
        QFontMetrics(Theme::current().title()).horizontalAdvance(QStringLiteral("8888 88/88/8888  M-88")));
    draw->setMinimumWidth(kLeastControls * Theme::current().control());
    m_gives.reset();
    makeRoom();
  });
}

bool WorkbenchReferenceBar::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize) makeRoom();
  return QWidget::event(event);
}

// In compact the chip takes some room of the parts that can spare it, so that the scroll bar keeps its own; where that
// isn't enough it goes without the index.
void WorkbenchReferenceBar::makeRoom() {
  if (m_wheels == nullptr) return;
  const bool gives = m_lastDraw->isChip() && Theme::current().density() == Theme::Density::Compact;
  if (std::exchange(m_gives, gives) != gives) {
    m_rework->setIcon(gives ? QIcon() : icon(QStringLiteral("reload")));
    m_wheels->setLook(wheelsLook(gives ? scaled(kNarrowCell) : 0));
    m_wheels->updateGeometry();
  }
  const int others = layout()->minimumSize().width() - m_lastDraw->sizeHint().width() +
                     (kUsualControls - kLeastControls) * Theme::current().control();
  m_lastDraw->setShort(others + m_lastDraw->wholeWidth() > width());
}

void WorkbenchReferenceBar::setWide(bool wide) {
  for (ClickLabel* const swatch : m_swatches) swatch->setCaptionShown(wide);
  // In a narrow bar the keys and the offer of the status bar are enough.
  for (QPushButton* const button : m_history) button->setVisible(wide);
}

}  // namespace trv5
