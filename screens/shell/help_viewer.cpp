#include "screens/shell/help_viewer.h"

#include <QBoxLayout>
#include <QDesktopServices>
#include <QPushButton>
#include <QShortcut>
#include <QTextBrowser>
#include <QTextDocument>

#include "help/help_pages.h"
#include "screens/kit/icons.h"
#include "screens/kit/kit.h"
#include "screens/kit/theme.h"

namespace trv5 {

HelpViewer::HelpViewer(QWidget* parent) : QWidget(parent, Qt::Window), m_browser(new QTextBrowser) {
  setObjectName(QStringLiteral("Help"));
  setWindowTitle(QStringLiteral("TRV 5: Help in linea"));
  setWindowIcon(programMark());
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

  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(row({back, forward, index, Piece::gap()}));
  layout->addWidget(m_browser, 1);
  connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);
  connect(&Theme::current(), &Theme::changed, this, &HelpViewer::dressPage);
  dressPage();
  resize(760, 640);
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

void HelpViewer::open(const QUrl& page) {
  m_browser->setSource(page);
  show();
  raise();
  activateWindow();
}

QUrl HelpViewer::page() const {
  return m_browser->source();
}

}  // namespace trv5
