#include "screens/workbench/luck_foot.h"

#include <QGridLayout>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include "screens/kit/bindings.h"
#include "screens/kit/icons.h"
#include "screens/kit/kit.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

// The commands of the foot, and what stands for each where there is little room.
struct Command {
  const char* name;
  const char* icon;
};
constexpr Command kCommands[] = {{"Cmd_Caso", "die"}, {"Cmd_Avanti", "forward"}};

constexpr int kLeastTarget = 24;  // pixels of what is clicked

void restyle(QWidget& widget) {
  widget.style()->unpolish(&widget);
  widget.style()->polish(&widget);
}

// The binding names the button by its caption, which an icon alone has no room for.
void showAs(QPushButton& button, const Button& control, const char* name, bool iconAlone) {
  button.setProperty("iconOnly", iconAlone);
  button.setText(iconAlone ? QString() : qs(control.caption()));
  button.setIcon(iconAlone ? icon(QLatin1String(name)) : QIcon());
  button.setIconSize(QSize(18, 18));
  button.setMinimumWidth(iconAlone ? Theme::current().control() : 0);
  button.setMaximumWidth(iconAlone ? Theme::current().control() : QWIDGETSIZE_MAX);
  restyle(button);
}

}  // namespace

LuckText::LuckText(Workbench& w, QWidget* parent) : QLabel(parent), m_w(w) {
  bind(*this, w.LblCaso);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  withTheme(*this, [this] { updateGeometry(); });
}

QSize LuckText::sizeHint() const {
  const QFontMetrics metrics(Theme::current().small());
  return {0, m_low ? metrics.height() : 2 * metrics.lineSpacing()};
}

void LuckText::paintEvent(QPaintEvent*) {
  if (text().isEmpty()) return;
  QPainter painter(this);
  const ChromeColours& c = Theme::current().colours();
  const QFont& font = Theme::current().small();
  const QFontMetrics metrics(font);
  painter.setFont(font);
  painter.setPen(toColor(c.text));
  if (m_low) {
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(qs(m_w.LblCasoBreve.text()), Qt::ElideRight, width()));
    return;
  }
  // The number of searches never breaks.
  const auto searches = static_cast<int>(qs(m_w.LblRicerche.text()).size());
  QString whole = text();
  for (auto i = whole.size() - searches; i < whole.size(); ++i)
    if (whole[i] == u' ') whole[i] = QChar::Nbsp;
  QTextLayout layout(whole, font);
  QTextLayout::FormatRange quiet;
  quiet.start = static_cast<int>(whole.size()) - searches;
  quiet.length = searches;
  quiet.format.setForeground(toColor(c.text2));
  layout.setFormats({quiet});
  layout.beginLayout();
  int y = 0;
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width());
    line.setPosition({0, static_cast<qreal>(y)});
    y += metrics.lineSpacing();
  }
  layout.endLayout();
  layout.draw(&painter, {0, std::max(0, (height() - y) / 2) * 1.0});
}

LuckFoot::LuckFoot(Workbench& w, QWidget* parent)
    : QWidget(parent), m_w(w), m_always(nullptr), m_text(new LuckText(w)), m_grid(new QGridLayout(this)) {
  Kit kit(w);
  for (const Command& command : kCommands) m_commands.push_back(kit.button(command.name));
  m_always = kit.check("Ch_Caso");
  m_grid->setContentsMargins(0, 0, 0, 0);
  withTheme(*this, [this] { follow(); });
}

void LuckFoot::setNarrow(bool narrow) {
  if (m_narrow == narrow) return;
  m_narrow = narrow;
  follow();
}

void LuckFoot::follow() {
  m_text->m_low = m_narrow || Theme::current().density() == Theme::Density::Compact;
  for (std::size_t i = 0; i < m_commands.size(); ++i)
    showAs(*m_commands[i], m_w.button(kCommands[i].name), kCommands[i].icon, m_text->m_low);
  const QString caption = qs(m_w.Ch_Caso.caption());
  m_always->setText(m_text->m_low ? QString() : caption);
  m_always->setProperty("iconOnly", m_text->m_low);
  m_always->setAccessibleName(caption);
  m_always->setMinimumWidth(m_text->m_low ? kLeastTarget : 0);
  m_text->updateGeometry();
  m_text->update();
  arrange();
}

void LuckFoot::arrange() {
  const bool low = m_text->m_low;
  const int unit = Theme::current().unit(), commands = static_cast<int>(m_commands.size());
  for (QPushButton* const command : m_commands) m_grid->removeWidget(command);
  m_grid->removeWidget(m_always);
  m_grid->removeWidget(m_text);
  m_grid->setHorizontalSpacing(unit);
  m_grid->setVerticalSpacing(low ? 0 : unit / 2);
  for (int i = 0; i < commands; ++i) m_grid->addWidget(m_commands[static_cast<std::size_t>(i)], 0, i);
  if (low) {
    m_grid->addWidget(m_always, 0, commands);
    m_grid->addWidget(m_text, 0, commands + 1);
  } else {
    m_grid->addWidget(m_always, 1, 0, 1, commands);
    m_grid->addWidget(m_text, 0, commands + 1, 2, 1);
  }
  m_grid->setColumnStretch(commands + 1, 1);
}

}  // namespace trv5
