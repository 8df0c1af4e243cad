#include "screens/shell/help_viewer.h"

#include <QBoxLayout>
#include <QDesktopServices>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QResizeEvent>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTimer>
#include <algorithm>

#include "help/help_pages.h"
#include "screens/kit/kit.h"
#include "screens/kit/theme.h"
#include "screens/shell/help_search.h"

namespace trv5 {

namespace {

// A page whose pictures are no wider than the window.
class HelpPage : public QTextBrowser {
 public:
  HelpPage() {
    // A bar that came and went with the height of the pictures would change their width in turn.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_again.setSingleShot(true);
    m_again.callOnTimeout(this, [this] {
      const int at = verticalScrollBar()->value(), most = std::max(1, verticalScrollBar()->maximum());
      const double part = double(at) / most;
      if (!source().isEmpty()) reload();
      verticalScrollBar()->setValue(static_cast<int>(part * verticalScrollBar()->maximum()));
    });
  }

  QVariant loadResource(int type, const QUrl& name) override {
    const QVariant found = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource || found.typeId() != QMetaType::QByteArray) return found;
    QImage picture = QImage::fromData(found.toByteArray());
    const double ratio = devicePixelRatioF();
    const int room = static_cast<int>((viewport()->width() - 2 * document()->documentMargin()) * ratio);
    if (picture.isNull() || picture.width() <= room) return picture;
    picture = picture.scaledToWidth(std::max(room, 1), Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    return picture;
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QTextBrowser::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) m_again.start(0);
  }

 private:
  QTimer m_again;
};

}  // namespace

QRect besideOf(const QRect& explained, const QPoint& work, const QSize& size, const QRect& desktop) {
  const QSize fitting = size.boundedTo(desktop.size());
  const int top = std::clamp(explained.top(), desktop.top(), desktop.bottom() + 1 - fitting.height());
  if (explained.right() + fitting.width() <= desktop.right()) return {{explained.right() + 1, top}, fitting};
  if (explained.left() - fitting.width() >= desktop.left()) return {{explained.left() - fitting.width(), top}, fitting};
  const int left = work.x() < desktop.center().x() ? desktop.right() + 1 - fitting.width() : desktop.left();
  return {{left, top}, fitting};
}

HelpViewer::HelpViewer(QWidget* parent)
    : QWidget(parent, Qt::Window), m_browser(new HelpPage), m_words(new QLineEdit), m_hits(new QListWidget) {
  setObjectName(QStringLiteral("Help"));
  setWindowTitle(QStringLiteral("TRV 5: Help in linea"));
  Theme::edit().dressWindow(*this);
  m_browser->setObjectName(QStringLiteral("pagina"));
  m_browser->setProperty("lines", true);
  m_browser->setOpenLinks(false);
  connect(m_browser, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
    // Addresses of the network open outside; pages of the help, relative ones too, stay here.
    if (link.scheme().startsWith(QStringLiteral("http")))
      QDesktopServices::openUrl(link);
    else
      m_browser->setSource(m_browser->source().resolved(link));
  });

  const auto button = [](const QString& caption, const char* iconName) {
    auto* const made = new QPushButton(caption);
    made->setAutoDefault(false);
    dress(*made, {.kind = ButtonKind::Quiet, .icon = iconName});
    return made;
  };
  QPushButton* const back = button(QStringLiteral("&Indietro"), "back");
  QPushButton* const forward = button(QStringLiteral("&Avanti"), "forward");
  QPushButton* const index = button(QStringLiteral("I&ndice"), "workbench");
  connect(back, &QPushButton::clicked, m_browser, &QTextBrowser::backward);
  connect(forward, &QPushButton::clicked, m_browser, &QTextBrowser::forward);
  connect(index, &QPushButton::clicked, this, [this] { m_browser->setSource(helpIndex()); });
  connect(m_browser, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
  connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QPushButton::setEnabled);
  back->setEnabled(false);
  forward->setEnabled(false);

  buildSearch();
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(row({back, forward, index, Piece::space(), {m_words, 1}}));
  layout->addWidget(m_hits, 1);
  layout->addWidget(m_browser, 2);
  connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);
  connect(&Theme::current(), &Theme::changed, this, &HelpViewer::dressPage);
  dressPage();
  resize(760, 640);
}

void HelpViewer::buildSearch() {
  m_words->setObjectName(QStringLiteral("cerca"));
  m_words->setPlaceholderText(QStringLiteral("Cerca in tutte le pagine"));
  m_words->setAccessibleName(m_words->placeholderText());
  m_words->setClearButtonEnabled(true);
  connect(m_words, &QLineEdit::textChanged, this, &HelpViewer::search);
  connect(m_words, &QLineEdit::returnPressed, this, [this] {
    if (m_hits->count() > 0) m_hits->setFocus();
  });
  m_hits->setObjectName(QStringLiteral("trovate"));
  m_hits->setAccessibleName(QStringLiteral("Pagine trovate"));
  m_hits->setProperty("lines", true);
  m_hits->setWordWrap(true);
  m_hits->hide();
  const auto follow = [this](const QListWidgetItem* hit) { m_browser->setSource(hit->data(Qt::UserRole).toUrl()); };
  connect(m_hits, &QListWidget::itemClicked, this, follow);
  connect(m_hits, &QListWidget::itemActivated, this, follow);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_words, [this] { m_words->setFocus(); });
}

void HelpViewer::dressPage() {
  const ChromeColours& c = Theme::current().colours();
  m_browser->document()->setDefaultStyleSheet(
      QStringLiteral("a { color: %1; } h1 { font-size: %2pt; } h2 { font-size: %3pt; } "
                     "p, li { margin-bottom: 6px; } td, th { padding: 2px 8px; }")
          .arg(toColor(c.accent).name())
          .arg(Theme::current().basePoints() * 1.6)
          .arg(Theme::current().largePoints()));
  m_browser->document()->setDocumentMargin(16);
  if (!m_browser->source().isEmpty()) m_browser->reload();
}

// Each hit with the title of its page; while there are words the hits stand above the page.
void HelpViewer::search() {
  m_hits->clear();
  for (const HelpHit& hit : searchHelp(m_words->text())) {
    auto* const item = new QListWidgetItem(hit.title + QStringLiteral("\n") + hit.line, m_hits);
    item->setData(Qt::UserRole, hit.page);
  }
  const bool asked = !m_words->text().trimmed().isEmpty();
  if (asked && m_hits->count() == 0)
    (new QListWidgetItem(QStringLiteral("Nessuna pagina con queste parole"), m_hits))->setFlags(Qt::NoItemFlags);
  m_hits->setVisible(asked);
}

void HelpViewer::open(const QUrl& page, const QWidget* explained) {
  if (explained != nullptr && !isVisible()) {
    const QRect place(explained->mapToGlobal(QPoint(0, 0)), explained->size());
    const QWidget* const focus = explained->window()->focusWidget();
    const QPoint work = focus == nullptr ? place.center() : focus->mapToGlobal(focus->rect().center());
    const QRect beside = besideOf(place, work, size(), explained->screen()->availableGeometry());
    move(beside.topLeft());
    resize(beside.size());
  }
  m_browser->setSource(page);
  show();
  raise();
  activateWindow();
}

QUrl HelpViewer::page() const {
  return m_browser->source();
}

}  // namespace trv5
