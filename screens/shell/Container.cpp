#include "screens/shell/Container.h"

#include <QAction>
#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProgressBar>
#include <QSettings>
#include <QShortcut>
#include <QStatusBar>
#include <QVBoxLayout>
#include <algorithm>

#include "screens/kit/bindings.h"
#include "screens/kit/icons.h"
#include "screens/kit/theme.h"
#include "screens/shell/rail_button.h"

namespace trv5 {
namespace {

constexpr int kWideRail = 304, kNarrowRail = 52;
// The area keeps this much beside an open panel; where it can't, the panel lies over it.
constexpr int kLeastArea = 1228;
constexpr double kUsualPoints = 10.5;
constexpr int kEdgeGap = 8;  // of a small screen at the right edge of the area
// Properties of the frame of a small screen: the size told for the usual font; the one last given to the frame; whether
// it is to have its natural size again.
constexpr char kNaturalSize[] = "naturalSize", kFittedSize[] = "fittedSize", kToFit[] = "toFit";

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

bool hasShortcut(const QWidget* screen, const QKeySequence& key) {
  if (screen == nullptr) return false;
  const auto shortcuts = screen->findChildren<QShortcut*>();
  const auto actions = screen->findChildren<QAction*>();
  return std::any_of(shortcuts.begin(), shortcuts.end(), [&](const QShortcut* s) { return s->key() == key; }) ||
         std::any_of(actions.begin(), actions.end(), [&](const QAction* a) { return a->shortcut() == key; });
}

bool standsAtRight(const QMdiSubWindow& window, int areaWidth) {
  return window.x() > 0 && window.x() + window.width() >= areaWidth - kEdgeGap;
}

QLabel* quietLabel(const QString& text) {
  return Kit::text(text, Type::Small);
}

}  // namespace

ContainerScreen::ContainerScreen(Container& form)
    : m_form(form), m_kit(form), m_centre(new QWidget), m_rail(new QWidget(m_centre)), m_area(new QMdiArea(m_centre)) {
  setObjectName(qs(form.name()));
  setWindowTitle(qs(form.title()));
  setWindowIcon(programMark());
  setMinimumSize(1024, 600);
  m_form.titleChanged = [this] { setWindowTitle(qs(m_form.title())); };
  setCentralWidget(m_centre);
  m_centre->installEventFilter(this);
  buildArea();
  buildRail();
  buildStatusBar();
  buildKeys();
  connect(&Theme::current(), &Theme::aboutToChange, this, [this] {
    for (QMdiSubWindow* const window : m_area->subWindowList())
      if (window->size() == window->property(kFittedSize).toSize()) window->setProperty(kToFit, true);
  });
  connect(&Theme::current(), &Theme::changed, this, [this] {
    m_area->setBackground(toColor(Theme::current().colours().voidArea));
    fitChip();
    layoutParts();
    // Once the screens have laid out their parts anew: their least sizes are others then.
    QMetaObject::invokeMethod(this, &ContainerScreen::fitSmallWindows, Qt::QueuedConnection);
  });
  setWide(true);
}

ContainerScreen::~ContainerScreen() {
  m_form.titleChanged = {};
}

void ContainerScreen::buildArea() {
  m_area->setFrameShape(QFrame::NoFrame);
  m_area->setBackground(toColor(Theme::current().colours().voidArea));
  m_area->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
  m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(m_area, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) {
    if (window != nullptr && window->widget() != nullptr) Q_EMIT activatedByUser(window->widget()->objectName());
  });

  m_empty = new QWidget(m_area);
  auto* const picture = new IconLabel(icon(QStringLiteral("workbench"), IconInk::Quiet), 56);
  QLabel* const title = Kit::text(QStringLiteral("Nessuna finestra aperta"), Type::Lead);
  QLabel* const hint = Kit::text(
      QStringLiteral(
          "Premi <b>TRV5</b> per costruire un metodo, <b>Gestione archivio</b> per aggiornare le estrazioni."),
      Type::Hint);
  for (QLabel* const label : {title, hint}) label->setAlignment(Qt::AlignCenter);
  auto* const layout = new QVBoxLayout(m_empty);
  layout->addStretch();
  layout->addWidget(picture, 0, Qt::AlignHCenter);
  for (QLabel* const label : {title, hint}) layout->addWidget(label);
  layout->addStretch();
}

void ContainerScreen::buildRail() {
  m_rail->setObjectName(QStringLiteral("rail"));
  m_rail->setAttribute(Qt::WA_StyledBackground);
  m_rail->setProperty("rail", true);
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
  for (const RailRow& row : kRail) {
    auto* const button = new RailButton(QLatin1String(row.icon));
    button->setCheckable(true);
    bind(*button, m_form.get<Button>(row.control));
    // Folded, the caption is the tooltip; a tooltip of the button's own says why it is disabled.
    if (button->toolTip().isEmpty()) button->setToolTip(button->text());
    // The click itself toggles the mark; what is open tells it.
    connect(button, &QToolButton::clicked, this, [this] { setOpenScreens(m_open); });
    m_buttons.push_back({button, row.screen});
    layout->addWidget(button);
  }
  layout->addWidget(inset(separator(Qt::Horizontal)));

  m_wideOnly = new QWidget;
  auto* const wide = new QVBoxLayout(m_wideOnly);
  wide->setContentsMargins(6, 6, 6, 6);
  buildStatusBlock(*wide);
  fitChip();
  m_draws = m_kit.grid("FG5", {.samples = {QString(), QStringLiteral("8888"), QStringLiteral("88/88/8888"),
                                           QStringLiteral("888"), QStringLiteral("88")},
                               .folded = {0},
                               .atEnd = true});
  wide->addWidget(m_draws, 1);
  layout->addWidget(m_wideOnly, 1);
  m_filler = new QWidget;
  layout->addWidget(m_filler, 1);

  layout->addWidget(inset(separator(Qt::Horizontal)));
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
  layout->addLayout(m_bottom);
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
  // There only while the archive has something to be looked at.
  QPushButton* const verify = m_kit.button("Cmd_Verifica", {.kind = ButtonKind::Quiet, .icon = "archive"});
  auto& verifyControl = m_form.get<Button>("Cmd_Verifica");
  follow(*verify, verifyControl, [verify, &verifyControl] {
    verify->setText(qs(verifyControl.caption()));
    verify->setVisible(!verifyControl.caption().empty());
  });
  into.addWidget(verify);

  // The last draw also stands in the status bar.
  m_lastDate = quietLabel({});
  m_lastIndex = quietLabel({});
  auto& dateControl = m_form.get<Label>("LblFine");
  follow(*lastDate, dateControl, [this, lastDate, &dateControl] {
    lastDate->setText(qs(dateControl.text()));
    m_lastDate->setText(QStringLiteral("Data fine ") + lastDate->text());
  });
  auto& indexControl = m_form.get<Label>("Lbl_fineNE");
  follow(*lastIndex, indexControl, [this, lastIndex, &indexControl] {
    lastIndex->setText(qs(indexControl.text()));
    m_lastIndex->setText(QStringLiteral("Indice fine ") + lastIndex->text());
  });
}

void ContainerScreen::buildStatusBar() {
  statusBar()->setSizeGripEnabled(false);
  m_status = quietLabel(QStringLiteral("Pronto"));
  m_status->setContentsMargins(8, 0, 0, 0);
  statusBar()->addWidget(m_status, 1);
  QProgressBar* const bar = m_kit.progress("Pb1");
  bar->setFixedWidth(180);
  QLabel* const verify = m_kit.label("Lbl_Verifica", Type::Small);
  QWidget* const right =
      holding(row({verify, Piece::space(), m_lastDate, Piece::space(), m_lastIndex, Piece::space(), bar}));
  right->layout()->setContentsMargins(0, 0, 10, 0);
  statusBar()->addPermanentWidget(right);
}

void ContainerScreen::buildKeys() {
  const auto key = [this](const QKeySequence& sequence, auto run) -> QAction* {
    auto* const action = new QAction(this);
    action->setShortcut(sequence);
    connect(action, &QAction::triggered, this, run);
    addAction(action);
    return action;
  };
  key(Qt::Key_F1, [this] { Q_EMIT helpWanted(); });
  key(Qt::Key_F4, [this] { toggleRail(); });
  key(Qt::Key_F11, [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
  key(Qt::CTRL | Qt::Key_Tab, [this] { Q_EMIT nextScreenWanted(); });
  key(Qt::CTRL | Qt::Key_Plus, [] { Theme::edit().stepBase(0.5); });
  key(Qt::CTRL | Qt::Key_Equal, [] { Theme::edit().stepBase(0.5); });
  key(Qt::CTRL | Qt::Key_Minus, [] { Theme::edit().stepBase(-0.5); });
  m_resetBase = key(Qt::CTRL | Qt::Key_0, [] { Theme::edit().setBasePoints(0); });
}

void ContainerScreen::toggleRail() {
  (m_anyOpen ? m_wideOpen : m_wideEmpty) = !m_wide;
  setWide(!m_wide);
}

void ContainerScreen::setWide(bool wide) {
  m_wide = wide;
  for (RailButton* const button : m_otherButtons) button->setWide(wide);
  for (const ScreenButton& entry : m_buttons) entry.button->setWide(wide);
  m_wideOnly->setVisible(wide);
  m_filler->setVisible(!wide);
  m_bottom->setDirection(wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  layoutParts();
}

// Paper around the figures of the count, where the theme shows it.
void ContainerScreen::fitChip() {
  const int edge = Theme::current().dark() ? 5 : 0;
  m_count->setContentsMargins(edge, 0, edge, 0);
}

int ContainerScreen::railWidth() const {
  return m_wide ? std::max(kWideRail, m_rail->minimumSizeHint().width()) : kNarrowRail;
}

void ContainerScreen::layoutParts() {
  const QSize size = m_centre->size();
  const int rail = railWidth();
  const bool over = m_anyOpen && size.width() - rail < kLeastArea;
  const int left = over ? kNarrowRail : rail;
  m_rail->setGeometry(0, 0, rail, size.height());
  const int widthBefore = m_area->width();
  m_area->setGeometry(left, 0, size.width() - left, size.height());
  m_empty->setGeometry(m_area->rect());
  keepInSight(widthBefore);
  m_rail->raise();
}

void ContainerScreen::setOpenScreens(std::vector<std::string> names) {
  m_open = names;
  const std::string own = m_form.name();
  const auto isOpen = [&](const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
  };
  for (const ScreenButton& entry : m_buttons) {
    const bool front = !names.empty() && names.back() == entry.screen;
    entry.button->setChecked(front);
    entry.button->setMark(front                  ? RailButton::Mark::Current
                          : isOpen(entry.screen) ? RailButton::Mark::Open
                                                 : RailButton::Mark::None);
  }
  // A screen may have a better use for Ctrl+0 (its tenth tab): while it is in front it has the key.
  const QWidget* const front = names.empty() ? nullptr : m_area->findChild<QWidget*>(qs(names.back()));
  m_resetBase->setEnabled(!hasShortcut(front, m_resetBase->shortcut()));
  const bool any = std::any_of(names.begin(), names.end(), [&](const std::string& name) { return name != own; });
  m_empty->setVisible(!any);
  if (any == m_anyOpen) return;
  m_anyOpen = any;
  setWide(any ? m_wideOpen : m_wideEmpty);
}

void ContainerScreen::showStatus(const QString& text) {
  m_status->setText(text);
}

// A small screen at the right edge stays there, none is left outside an area that became smaller.
void ContainerScreen::keepInSight(int widthBefore) {
  for (QMdiSubWindow* const window : m_area->subWindowList()) {
    if (!window->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) continue;
    const int right = std::max(0, m_area->width() - window->width());
    const int bottom = std::max(0, m_area->height() - window->height());
    const bool atRight = standsAtRight(*window, widthBefore);
    const QPoint place(atRight ? std::max(0, right - kEdgeGap) : std::min(window->x(), right),
                       std::min(window->y(), bottom));
    if (place != window->pos()) window->move(place);
  }
}

// Natural sizes are told for the usual font.
QSize ContainerScreen::naturalSize(const QMdiSubWindow& window) const {
  const QSize told = window.property(kNaturalSize).toSize();
  const QSize natural =
      told.isValid() ? told * std::max(1.0, Theme::current().basePoints() / kUsualPoints) : window.widget()->sizeHint();
  return natural.boundedTo(m_area->size());
}

// Small screens grow and shrink with the font, unless the user gave them a size.
void ContainerScreen::fitSmallWindows() {
  for (QMdiSubWindow* const window : m_area->subWindowList()) {
    if (!window->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) continue;
    if (!window->property(kToFit).toBool()) continue;
    const bool atRight = standsAtRight(*window, m_area->width());
    window->resize(naturalSize(*window));
    window->setProperty(kFittedSize, window->size());
    window->setProperty(kToFit, false);
    if (atRight) window->move(std::max(0, m_area->width() - kEdgeGap - window->width()), window->y());
  }
  keepInSight(m_area->width());
}

QMdiSubWindow* ContainerScreen::windowOf(const QWidget& screen) const {
  return qobject_cast<QMdiSubWindow*>(screen.parentWidget());
}

void ContainerScreen::place(QWidget& screen, const ScreenEntry& entry) {
  auto* const window = new QMdiSubWindow;
  window->setWidget(&screen);
  window->setAttribute(Qt::WA_DeleteOnClose, false);
  window->installEventFilter(this);
  m_area->addSubWindow(window);
  if (entry.place == Place::Fills) {
    window->setWindowFlags(Qt::SubWindow | Qt::FramelessWindowHint);
    window->showMaximized();
    return;
  }
  window->setWindowFlags(Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                         Qt::WindowStaysOnTopHint);
  window->setWindowIcon(programMark());
  window->setProperty(kNaturalSize, entry.size);
  const QSize size = naturalSize(*window);
  const int left = entry.atRight ? m_area->width() - size.width() - kEdgeGap : (m_area->width() - size.width()) / 2;
  window->resize(size);
  window->move(std::max(0, left), std::max(0, (m_area->height() - size.height()) / 3));
  auto* const escape = new QShortcut(QKeySequence(Qt::Key_Escape), window);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, window, &QMdiSubWindow::close);
  window->show();
  window->setProperty(kFittedSize, window->size());
}

void ContainerScreen::bringToFront(QWidget& screen) {
  QMdiSubWindow* const window = windowOf(screen);
  if (window == nullptr) return;
  window->show();
  m_area->setActiveSubWindow(window);
}

void ContainerScreen::takeAway(QWidget& screen) {
  if (QMdiSubWindow* const window = windowOf(screen)) {
    window->removeEventFilter(this);
    window->hide();
  }
}

bool ContainerScreen::restore(const QSettings& settings) {
  m_wideEmpty = settings.value(QStringLiteral("Container/pannello"), true).toBool();
  m_wideOpen = settings.value(QStringLiteral("Container/pannelloConFinestre"), false).toBool();
  setWide(m_anyOpen ? m_wideOpen : m_wideEmpty);
  return restoreGeometry(settings.value(QStringLiteral("Container/geometria")).toByteArray());
}

void ContainerScreen::store(QSettings& settings) const {
  settings.setValue(QStringLiteral("Container/geometria"), saveGeometry());
  settings.setValue(QStringLiteral("Container/pannello"), m_wideEmpty);
  settings.setValue(QStringLiteral("Container/pannelloConFinestre"), m_wideOpen);
}

void ContainerScreen::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  Theme::edit().setWindowHeight(height());
}

void ContainerScreen::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (m_shownOnce) return;
  m_shownOnce = true;
  layoutParts();
  m_draws->sync();
  setFocus();  // no ring before the first key; Tab then starts at the top of the panel
}

// The cross of the window is FINE; the program then ends by itself.
void ContainerScreen::closeEvent(QCloseEvent* event) {
  event->ignore();
  m_form.get<Button>("Command45").press();
}

bool ContainerScreen::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_centre && event->type() == QEvent::Resize) layoutParts();
  // A window without a frame has nothing to draw in another style; Qt would take it out of its full size and back, and
  // move the focus on.
  if (event->type() == QEvent::StyleChange)
    if (const auto* const window = qobject_cast<const QMdiSubWindow*>(watched);
        window != nullptr && (window->windowFlags() & Qt::FramelessWindowHint) != 0)
      return true;
  if (event->type() == QEvent::Close) {
    if (auto* const window = qobject_cast<QMdiSubWindow*>(watched); window != nullptr && window->widget() != nullptr) {
      event->ignore();
      Q_EMIT closedByUser(window->widget()->objectName());
      return true;
    }
  }
  return QMainWindow::eventFilter(watched, event);
}

}  // namespace trv5
