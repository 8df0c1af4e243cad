#include "screens/workbench/reference_bar.h"

#include "screens/kit/theme.h"

namespace trv5 {

WorkbenchReferenceBar::WorkbenchReferenceBar(Workbench& w, QWidget* parent) : QWidget(parent) {
  Kit kit(w);
  const auto command = [&kit](const char* name, const char* icon) {
    return kit.button(name, {.kind = ButtonKind::Quiet, .icon = icon, .iconOnly = true});
  };
  QScrollBar* const draw = kit.scroll("hs1");
  draw->setAccessibleName(QStringLiteral("Estrazione di riferimento"));
  GridView* const wheels =
      kit.grid("FgRG", {.name = QStringLiteral("Ruote di gioco"), .pad = true, .even = true, .fixedHeight = true});
  wheels->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  m_swatches = {kit.swatch("Label17", Verde), kit.swatch("Label18", kWhite)};
  QComboBox* const colpi = kit.combo("ComboColpi", QStringLiteral("88"));
  QLabel* const colpiCaption = Kit::text(QStringLiteral("Col&pi"), Type::Hint, colpi);
  colpi->setAccessibleName(QStringLiteral("Colpi"));

  const auto part = [] {
    QFrame* const line = separator(Qt::Vertical);
    withTheme(*line, [line] { line->setFixedHeight(Theme::current().control() - 4); });
    return line;
  };
  QBoxLayout* const bar = row({command("Command42_0", "reload"),
                               kit.label("LabelRifE", Type::Title),
                               {draw, 1},
                               command("Command42_1", "calendar"),
                               command("Command42_2", "hash"),
                               command("Command42_3", "to_end"),
                               part(),
                               kit.clickLabel("Label1_0", Type::Hint),
                               wheels,
                               m_swatches[0],
                               m_swatches[1],
                               part(),
                               colpiCaption,
                               colpi,
                               part(),
                               kit.button("Command87", {.icon = "reload"}),
                               command("Cmd_Annulla", "undo"),
                               command("Cmd_Ripeti", "redo"),
                               command("Command70", "help")});
  setLayout(bar);
  // The date of the draw changes its width; the bar beside it must not.
  auto* const shown = findChild<QLabel*>(QStringLiteral("LabelRifE"));
  withTheme(*this, [this, bar, shown, draw] {
    bar->setContentsMargins(Theme::current().unit(), 0, Theme::current().unit(), 0);
    setFixedHeight(Theme::current().control() + 14);
    shown->setMinimumWidth(
        QFontMetrics(Theme::current().title()).horizontalAdvance(QStringLiteral("88888 88/88/8888  M-88")));
    draw->setMinimumWidth(4 * Theme::current().control());
  });
}

void WorkbenchReferenceBar::setWide(bool wide) {
  for (ClickLabel* const swatch : m_swatches) swatch->setCaptionShown(wide);
}

}  // namespace trv5
