#include "screens/workbench/search.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QResizeEvent>
#include <QStackedWidget>

#include "engine/search_luck_line.h"
#include "screens/kit/bindings.h"
#include "screens/kit/icons.h"
#include "screens/kit/ink.h"
#include "screens/kit/kit.h"
#include "screens/kit/theme.h"
#include "screens/workbench/formula_samples.h"
#include "screens/workbench/luck_foot.h"

namespace trv5 {
namespace {

// The pages of searches, by the tab of the forecasts that they belong to.
constexpr std::pair<int, const char*> kSections[] = {{0, "Ambate"}, {1, "Ambi"}, {2, "Terni"}, {4, "Lunghetta"}};

// A button of the sorti keeps its colour when it is disabled, with the border and the faint text of what is.
class SorteButton : public QPushButton {
 public:
  explicit SorteButton(const Button& control) : m_control(control) {
    setAutoDefault(false);
    dress(*this, {.strong = true});
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (isEnabled()) return QPushButton::paintEvent(event);
    const ChromeColours& c = Theme::current().colours();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(toColor(c.line));
    const QColor back = toColor(m_control.back().value_or(c.panel));
    painter.setBrush(back);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    // On its colour, which both themes share, and with a third of an ink's strength.
    QColor ink = toColor(kInk);
    ink.setAlphaF(0.34F);
    painter.setPen(ink);
    QFont font = Theme::current().title();
    painter.setFont(font);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
  }

 private:
  const Button& m_control;
};

}  // namespace

WorkbenchSearch::WorkbenchSearch(Workbench& w, QWidget* parent)
    : Panel({}, parent),
      m_w(w),
      m_title(Kit::text(QStringLiteral("Ricerca: Ambate"), Type::Title)),
      m_pages(new QStackedWidget),
      m_candidates(nullptr) {
  Kit kit(w);
  const auto captioned = [](const char* caption, QWidget* widget) {
    return Kit::captioned(QString::fromUtf8(caption), widget);
  };
  QListWidget* const times = kit.lines("List1", 2, QStringLiteral("88:88:88"));
  times->setAccessibleName(QStringLiteral("Inizio e fine della ricerca"));
  QBoxLayout* const head = column({m_title, kit.note("LblOrigine", Qt::ElideRight)});
  head->setSpacing(0);
  body()->addLayout(row({{holding(head), 1},
                         holding(flow({}, {times, kit.button("Command3", {.kind = ButtonKind::Quiet}),
                                           kit.button("Cmd_Colora_fgf", {.kind = ButtonKind::Quiet}),
                                           captioned("&Elenco", kit.combo("ComboEle", QStringLiteral("888")))}))}));
  body()->addLayout(flow({captioned("&Alteraz", kit.combo("Combo1R_1N", QStringLiteral("D x U"))),
                          captioned("Opera&zione", kit.combo("Combo1R_2N", QStringLiteral("N1 X N2"))),
                          captioned("Fi&x", kit.combo("ComboFix", QStringLiteral("88"))), kit.check("ChFix1R")},
                         {kit.check("Ch_Scoperti", 'C')}));

  page({kit.joined({"Command20", "Command11", "Command13", "Command15"}),
        kit.joined({"Command23", "Command17", "Command16", "Command7"}), kit.joined({"Command18"}),
        kit.joined({"Command10", "Command1", "Command2"}),
        kit.joined({"Command77", "Command101", "Command100", "Command99"})},
       kit.joinedList("Cmd_Totale", "ComboOrdine", QStringLiteral("Casi coperti"), QStringLiteral("Ordine di TUTTE")));
  for (const auto& names : {std::array{"Command28", "Command39", "Command37", "Command31", "Command105", "Command64"},
                            std::array{"Command46", "Command43", "Command45", "Command40", "Command107", "Command73"},
                            std::array{"Command56", "Command58", "Command57", "Command59", "Command108", "Command84"}})
    page({kit.joined({names[0]}), kit.joined({names[1]}), kit.joined({names[2]}), kit.joined({names[3]}),
          kit.joined({names[4]})},
         kit.joined({names[5]}));
  body()->addWidget(m_pages);

  m_candidates = kit.grid("FgF", {.name = QStringLiteral("Formule trovate"),
                                  .samples = formulaSamples(),
                                  .tight = true,
                                  .toolTip = [&w](int at, int column) { return qs(rankingCellText(w, at, column)); }});
  body()->addWidget(m_candidates, 1);
  // A search ends with its first candidate current: where the list stood before is of no use any more.
  for (auto* const button : m_pages->findChildren<QAbstractButton*>())
    connect(button, &QAbstractButton::clicked, this, [this] {
      m_candidates->sync();
      if (m_w.FgF.current() == m_w.FgF.headingRows()) m_candidates->scrollToTop();
    });

  std::vector<Piece> adding = {new IconLabel(icon(QStringLiteral("arrow_down"), IconInk::Quiet), 18),
                               Kit::text(QStringLiteral("Aggiunge previsione"), Type::Hint)};
  for (const char* const name : {"Cmd_LaSorte_1", "Cmd_LaSorte_2", "Cmd_LaSorte_3", "Cmd_LaSorte_6"}) {
    auto& control = w.button(name);
    auto* const button = new SorteButton(control);
    bind(*button, control);
    adding.emplace_back(button);
  }
  body()->addLayout(flow({holding(row(adding)), kit.check("ChVerifica", 'V')}, {kit.button("Command22")}));
  body()->addWidget(separator(Qt::Horizontal));
  m_foot = new LuckFoot(w);
  body()->addWidget(m_foot);
}

QWidget* WorkbenchSearch::page(const std::vector<QWidget*>& groups, QWidget* atRight) {
  QWidget* const made = holding(flow(groups, {atRight}));
  for (auto* const button : made->findChildren<QAbstractButton*>()) button->installEventFilter(this);
  m_pages->addWidget(made);
  return made;
}

void WorkbenchSearch::followTab(int tab) {
  int page = 0;
  for (const auto& [given, caption] : kSections) {
    if (given == tab) {
      m_pages->setCurrentIndex(page);
      m_title->setText(QStringLiteral("Ricerca: ") + QString::fromUtf8(caption));
    }
    ++page;
  }
}

std::vector<QAbstractButton*> WorkbenchSearch::buttons() const {
  std::vector<QAbstractButton*> enabled;
  for (auto* const button : m_pages->currentWidget()->findChildren<QAbstractButton*>())
    if (button->isEnabled()) enabled.push_back(button);
  return enabled;
}

void WorkbenchSearch::focusSearches() {
  if (const auto all = buttons(); !all.empty()) all.front()->setFocus(Qt::ShortcutFocusReason);
}

void WorkbenchSearch::walk(const QWidget* from, int step) {
  const auto all = buttons();
  const auto at = std::find(all.begin(), all.end(), from);
  if (at == all.end()) return;
  const auto next = (at - all.begin()) + step;
  if (next >= 0 && next < static_cast<std::ptrdiff_t>(all.size()))
    all[static_cast<std::size_t>(next)]->setFocus(Qt::OtherFocusReason);
}

void WorkbenchSearch::goToCandidates() {
  if (m_w.FgF.hasData()) m_candidates->setFocus(Qt::OtherFocusReason);
}

void WorkbenchSearch::setNarrow(bool narrow) {
  m_foot->setNarrow(narrow);
}

int WorkbenchSearch::heightFor(int candidates, int width) const {
  const int row = m_candidates->verticalHeader()->defaultSectionSize();
  const int grid = m_candidates->horizontalHeader()->height() + candidates * row + 2 * m_candidates->frameWidth();
  return layout()->minimumHeightForWidth(width) - m_candidates->minimumSizeHint().height() + grid;
}

QSize WorkbenchSearch::minimumSizeHint() const {
  const QSize least = Panel::minimumSizeHint();
  return {least.width(), std::max(least.height(), layout()->minimumHeightForWidth(std::max(width(), least.width())))};
}

void WorkbenchSearch::resizeEvent(QResizeEvent* event) {
  Panel::resizeEvent(event);
  if (event->size().width() != event->oldSize().width()) updateGeometry();
}

bool WorkbenchSearch::eventFilter(QObject* watched, QEvent* event) {
  auto* const button = qobject_cast<QAbstractButton*>(watched);
  if (event->type() != QEvent::KeyPress || button == nullptr) return Panel::eventFilter(watched, event);
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
      walk(button, -1);
      return true;
    case Qt::Key_Right:
    case Qt::Key_Down:
      walk(button, 1);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      button->click();
      goToCandidates();
      return true;
    default:
      return Panel::eventFilter(watched, event);
  }
}

}  // namespace trv5
