// What stands in the panel of the shell and in its status bar.
#include <QActionGroup>
#include <QGridLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QProgressBar>
#include <QShortcut>
#include <QStatusBar>
#include <QVBoxLayout>
#include <utility>

#include "screens/kit/bindings.h"
#include "screens/kit/theme.h"
#include "screens/shell/Container.h"
#include "screens/shell/rail_button.h"

namespace trv5 {
namespace {

struct RailRow {
  const char* control;
  const char* icon;
  const char* screen;
};
constexpr RailRow kRail[] = {{"Command4", "workbench", "Sommativi1"},
                             {"Command1", "archive", "archivio"},
                             {"Command5", "mini_list", "Estrazioni_minielenco"},
                             {"Command6", "grid", "SistemiOrtogonali"},
                             {"Command2", "exchange", "ImportExport"},
                             {"Command3", "extra", "FunzioniAggiuntive"},
                             {"Command7", "analysis", "DiDiSO"}};

// Lines of the panel don't reach its edges.
QWidget* inset(QWidget* line) {
  auto* const holder = holding(row({line}));
  holder->layout()->setContentsMargins(10, 0, 10, 0);
  return holder;
}
QLabel* quietLabel(const QString& text) {
  return Kit::text(text, Type::Small);
}
}  // namespace

void ContainerScreen::buildRail() {
  m_rail->setObjectName(QStringLiteral("rail"));
  m_rail->setAttribute(Qt::WA_StyledBackground);
  m_rail->setProperty("rail", true);
  auto* const escape = new QShortcut(QKeySequence(Qt::Key_Escape), m_rail);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, this, [this] {
    if (m_anyOpen) foldRail();
  });
  auto* const layout = new QVBoxLayout(m_rail);
  layout->setContentsMargins(0, 4, 0, 4);
  layout->setSpacing(0);

  m_menu = new RailButton(QStringLiteral("menu"));
  m_menu->setText(QStringLiteral("TRV 5"));
  m_menu->setLarge(true);
  m_menu->setToolTip(QStringLiteral("Apre o chiude il pannello (F4)"));
  m_menu->setAccessibleName(m_menu->toolTip());
  connect(m_menu, &QToolButton::clicked, this, &ContainerScreen::toggleRail);
  m_otherButtons.push_back(m_menu);
  layout->addWidget(m_menu);
  layout->addWidget(inset(separator(Qt::Horizontal)));
  addScreenButtons(*layout);
  layout->addWidget(inset(separator(Qt::Horizontal)));
  addDrawList(*layout);
  layout->addWidget(inset(separator(Qt::Horizontal)));
  layout->addWidget(schemeButton());
  addBottomButtons(*layout);
}

void ContainerScreen::addScreenButtons(QBoxLayout& layout) {
  for (const RailRow& row : kRail) {
    auto* const button = new RailButton(QLatin1String(row.icon));
    button->setCheckable(true);
    bind(*button, m_form.get<Button>(row.control));
    // Folded, the caption is the tooltip; a tooltip of the button's own says why it is disabled.
    if (button->toolTip().isEmpty()) button->setToolTip(button->text());
    // The click itself toggles the mark; what is open tells it.
    connect(button, &QToolButton::clicked, this, [this] {
      setOpenScreens(m_open);
      if (m_anyOpen && m_area->x() < m_rail->width()) foldRail();  // it lies over the screen that was asked for
    });
    m_buttons.push_back({button, row.screen});
    layout.addWidget(button);
  }
}

// What the panel shows while it is wide.
void ContainerScreen::addDrawList(QBoxLayout& layout) {
  m_wideOnly = new QWidget;
  auto* const wide = new QVBoxLayout(m_wideOnly);
  wide->setContentsMargins(6, 6, 6, 6);
  buildStatusBlock(*wide);
  fitChip();
  m_draws = m_kit.grid("FG5", {.name = QStringLiteral("Elenco estrazioni"),
                               .samples = {QString(), QStringLiteral("8888"), QStringLiteral("88/88/8888"),
                                           QStringLiteral("888"), QStringLiteral("88")},
                               .folded = {0},
                               .atEnd = true});
  wide->addWidget(m_draws, 1);
  layout.addWidget(m_wideOnly, 1);
  m_filler = new QWidget;
  layout.addWidget(m_filler, 1);
}

void ContainerScreen::addBottomButtons(QBoxLayout& layout) {
  m_bottom = new QBoxLayout(QBoxLayout::LeftToRight);
  m_bottom->setSpacing(0);
  for (const RailRow& row : {RailRow{"Command33", "help", ""}, RailRow{"Command45", "power", ""}}) {
    auto* const button = new RailButton(QLatin1String(row.icon));
    bind(*button, m_form.get<Button>(row.control));
    button->setToolTip(button->text());
    m_otherButtons.push_back(button);
    m_bottom->addWidget(button);
  }
  m_bottom->addStretch();
  layout.addLayout(m_bottom);
}

// Light, dark, or as the desktop.
QWidget* ContainerScreen::schemeButton() {
  auto* const button = new RailButton(QStringLiteral("contrast"));
  button->setObjectName(QStringLiteral("aspetto"));
  button->setPopupMode(QToolButton::InstantPopup);
  auto* const menu = new QMenu(button);
  auto* const choices = new QActionGroup(menu);
  const std::pair<Theme::Scheme, const char*> schemes[] = {
      {Theme::Scheme::System, "come il sistema"}, {Theme::Scheme::Light, "chiaro"}, {Theme::Scheme::Dark, "scuro"}};
  for (const auto& [scheme, caption] : schemes) {
    QAction* const action = menu->addAction(QString::fromUtf8(caption));
    action->setCheckable(true);
    choices->addAction(action);
    connect(action, &QAction::triggered, button, [scheme = scheme] { Theme::edit().setScheme(scheme); });
    withTheme(*button, [action, button, scheme = scheme] {
      if (Theme::current().scheme() != scheme) return;
      action->setChecked(true);
      button->setText(QStringLiteral("Aspetto: ") + action->text());
      button->setToolTip(button->text());
      button->setAccessibleName(button->text());
    });
  }
  button->setMenu(menu);
  m_otherButtons.push_back(button);
  return button;
}

void ContainerScreen::buildStatusBlock(QBoxLayout& into) {
  auto* const panel = new Panel;
  auto* const block = new QGridLayout;
  block->setHorizontalSpacing(Theme::current().unit());
  block->setVerticalSpacing(0);
  block->addWidget(m_kit.label("LblTitoloInizio", Type::Title), 0, 0);
  block->addWidget(m_kit.label("LblTitoloFine", Type::Title), 0, 1);
  block->addWidget(m_kit.label("LblTitoloNE", Type::Title), 0, 2);
  block->addWidget(m_kit.label("LblDataInizio", Type::Small), 1, 0);
  block->addWidget(m_kit.label("LblDataFine", Type::Small), 1, 1);
  block->addWidget(m_kit.label("LblInizio", Type::Title), 2, 0);
  QLabel* const lastDate = new QLabel;
  lastDate->setProperty("type", QStringLiteral("title"));
  block->addWidget(lastDate, 2, 1);
  block->addWidget(m_kit.label("LblIndiceInizio", Type::Small), 3, 0);
  block->addWidget(m_kit.label("LblIndiceFine", Type::Small), 3, 1);
  block->addWidget(m_kit.label("Lbl_inizioNE", Type::Title), 4, 0);
  QLabel* const lastIndex = new QLabel;
  lastIndex->setProperty("type", QStringLiteral("title"));
  block->addWidget(lastIndex, 4, 1);

  // One word a line: a grid of labels doesn't ask one that wraps for its height.
  QLabel* const caption = m_kit.label("LblModello", Type::Small);
  caption->setText(caption->text().replace(u' ', u'\n'));
  m_count = m_kit.label("Lbl_Ev", Type::Large);
  m_count->setProperty("chip", true);  // its green is a data colour: on white paper in the dark theme too
  QBoxLayout* const third = column({caption, holding(row({m_count, Piece::gap()})), Piece::gap()});
  third->setSpacing(2);
  block->addWidget(holding(third), 1, 2, 4, 1);
  for (int c = 0; c < 3; ++c) block->setColumnStretch(c, 1);
  panel->body()->addLayout(block);
  into.addWidget(panel);
  into.addWidget(verifyButton());
  followLastDraw(*lastDate, *lastIndex);
}

// There only while the archive has something to be looked at.
QPushButton* ContainerScreen::verifyButton() {
  auto* const verify = new QPushButton;
  dress(*verify, {.kind = ButtonKind::Quiet, .icon = "archive"});
  auto& verifyControl = m_form.get<Button>("Cmd_Verifica");
  connect(verify, &QPushButton::clicked, this, [&verifyControl] { verifyControl.press(); });
  follow(*verify, verifyControl, [verify, &verifyControl] {
    verify->setText(qs(verifyControl.caption()));
    verify->setVisible(!verifyControl.caption().empty());
  });
  return verify;
}

// The last draw also stands in the status bar.
void ContainerScreen::followLastDraw(QLabel& lastDate, QLabel& lastIndex) {
  m_lastDate = quietLabel({});
  m_lastIndex = quietLabel({});
  auto& dateControl = m_form.get<Label>("LblFine");
  follow(lastDate, dateControl, [this, &lastDate, &dateControl] {
    lastDate.setText(qs(dateControl.text()));
    m_lastDate->setText(QStringLiteral("Data fine ") + lastDate.text());
  });
  auto& indexControl = m_form.get<Label>("Lbl_fineNE");
  follow(lastIndex, indexControl, [this, &lastIndex, &indexControl] {
    lastIndex.setText(qs(indexControl.text()));
    m_lastIndex->setText(QStringLiteral("Indice fine ") + lastIndex.text());
  });
}

void ContainerScreen::buildStatusBar() {
  statusBar()->setSizeGripEnabled(false);
  m_status = quietLabel(QStringLiteral("Pronto"));
  m_status->setContentsMargins(8, 0, 0, 0);
  m_offer = new QPushButton;
  m_offer->setObjectName(QStringLiteral("Cmd_Annulla"));
  dress(*m_offer, {.kind = ButtonKind::Quiet});
  m_offer->setProperty("link", true);
  m_offer->setFocusPolicy(Qt::NoFocus);  // it comes and goes: the focus stays where the user works
  m_offer->setCursor(Qt::PointingHandCursor);
  m_offer->hide();
  connect(m_offer, &QPushButton::clicked, this, [this] {
    const std::function<void()> taken = std::exchange(m_offerTaken, {});
    showOffer({}, {}, {});
    if (taken) taken();
  });
  QWidget* const left = holding(row({m_status, m_offer, Piece::gap()}));
  statusBar()->addWidget(left, 1);
  QProgressBar* const bar = m_kit.progress("Pb1");
  bar->setFixedWidth(180);
  bar->setAccessibleName(QStringLiteral("Avanzamento"));
  QLabel* const verify = m_kit.label("Lbl_Verifica", Type::Small);
  QWidget* const right =
      holding(row({verify, Piece::space(), m_lastDate, Piece::space(), m_lastIndex, Piece::space(), bar}));
  right->layout()->setContentsMargins(0, 0, 10, 0);
  statusBar()->addPermanentWidget(right);
}

// Paper around the figures of the count, where the theme shows it.
void ContainerScreen::fitChip() {
  const int edge = Theme::current().dark() ? 5 : 0;
  m_count->setContentsMargins(edge, 0, edge, 0);
}

}  // namespace trv5
