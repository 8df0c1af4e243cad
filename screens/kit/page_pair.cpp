#include "screens/kit/page_pair.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "screens/kit/bindings.h"
#include "screens/kit/click_label.h"
#include "screens/kit/layouts.h"
#include "screens/kit/theme.h"

namespace trv5 {

// Looks like the tab of its page: underlined while the page is in front.
class PageHeading : public ClickLabel {
 public:
  explicit PageHeading(const std::string& caption) {
    setText(qs(caption));
    setProperty("heading", true);
    setFocusPolicy(Qt::NoFocus);
  }
  void setCurrent(bool current) {
    m_current = current;
    update();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    ClickLabel::paintEvent(event);
    if (m_current) QPainter(this).fillRect(2, height() - 3, width() - 4, 3, palette().color(QPalette::Highlight));
  }

 private:
  bool m_current = false;
};

// Without the line that the style draws above what stands beside the tabs.
class BareTabs : public QTabWidget {
 protected:
  void paintEvent(QPaintEvent*) override {}
};

PagePair::PagePair(Tabs& control, const std::array<QWidget*, 2>& pages, bool framed,
                   const std::array<QWidget*, 2>& tools, QWidget* parent)
    : QWidget(parent), m_control(control), m_pages(pages), m_tools(tools) {
  build(framed);
  movePages();
  follow(*m_tabs, m_control, [this] { showFront(); });
  connect(m_tabs, &QTabWidget::currentChanged, this, [this](int i) {
    if (i >= 0 && m_tabs->tabBar()->tabData(i).isValid()) m_control.set(m_tabs->tabBar()->tabData(i).toInt());
  });
}

void PagePair::build(bool framed) {
  const auto frame = [framed] {
    auto* const made = framed ? new Panel : new QFrame;
    if (auto* const panel = qobject_cast<Panel*>(made)) panel->setBare();
    return made;
  };
  const bool tools = m_tools[0] != nullptr || m_tools[1] != nullptr;
  m_tabs = tools ? new BareTabs : new QTabWidget;
  m_tabs->setDocumentMode(true);
  m_tabs->tabBar()->setDrawBase(false);
  m_tabs->tabBar()->setExpanding(false);
  if (tools) {
    m_corner = row({});
    m_tabs->setCornerWidget(holding(m_corner));
  }
  m_narrow = frame();
  if (m_narrow->layout() == nullptr) new QVBoxLayout(m_narrow);
  m_narrow->layout()->addWidget(m_tabs);

  m_splitter = new QSplitter(Qt::Horizontal);
  m_splitter->setChildrenCollapsible(false);
  for (std::size_t i = 0; i < m_sides.size(); ++i) {
    if (framed) padAsPage(*m_pages[i]);
    Side& side = m_sides[i];
    side.frame = frame();
    if (side.frame->layout() == nullptr) new QVBoxLayout(side.frame);
    const auto& [given, caption] = m_control.captions()[i];
    auto* const heading = new PageHeading(caption);
    connect(heading, &ClickLabel::clicked, this, [this, given = given] { m_control.set(given); });
    side.heading = heading;
    side.head = row({heading, Piece::gap()});
    auto* const head = column({side.head, separator(Qt::Horizontal)});
    head->setSpacing(0);
    side.layout = new QVBoxLayout;
    auto* const all = static_cast<QVBoxLayout*>(side.frame->layout());
    all->addLayout(head);
    all->addLayout(side.layout, 1);
    m_splitter->addWidget(side.frame);
  }
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_narrow);
  layout->addWidget(m_splitter);
}

void PagePair::setSideBySide(bool sideBySide) {
  if (m_sideBySide == sideBySide) return;
  m_sideBySide = sideBySide;
  QWidget* const focused = focusWidget();
  const bool had = focused != nullptr && window()->focusWidget() == focused;
  movePages();
  showFront();
  if (had && focused->isVisibleTo(this)) focused->setFocus();
}

void PagePair::movePages() {
  const QSignalBlocker quiet(m_tabs);
  while (m_tabs->count() > 0) m_tabs->removeTab(0);
  for (std::size_t i = 0; i < m_pages.size(); ++i) {
    const auto& [given, caption] = m_control.captions()[i];
    if (m_sideBySide) {
      m_sides[i].layout->addWidget(m_pages[i]);
      m_pages[i]->show();
      if (m_tools[i] != nullptr) m_sides[i].head->addWidget(m_tools[i]);
    } else {
      if (m_tools[i] != nullptr) m_corner->addWidget(m_tools[i]);
      m_sides[i].layout->removeWidget(m_pages[i]);
      m_tabs->tabBar()->setTabData(m_tabs->addTab(m_pages[i], qs(caption)), given);
    }
  }
  m_narrow->setVisible(!m_sideBySide);
  m_splitter->setVisible(m_sideBySide);
}

void PagePair::showFront() {
  const int front = m_control.index();
  const bool other = m_front >= 0 && m_front != front;
  m_front = front;
  for (std::size_t i = 0; i < m_pages.size(); ++i) {
    const bool current = m_control.captions()[i].first == front;
    m_sides[i].heading->setCurrent(current);
    if (m_tools[i] != nullptr) m_tools[i]->setVisible(current || m_sideBySide);
    if (!current) continue;
    // Tabs that the user walks with the arrows keep the focus.
    const bool walking = m_tabs->tabBar()->hasFocus();
    if (!m_sideBySide) {
      const QSignalBlocker quiet(m_tabs);
      m_tabs->setCurrentIndex(static_cast<int>(i));
    }
    if (other && !walking && isVisible() && m_pages[i]->focusProxy() != nullptr) m_pages[i]->focusProxy()->setFocus();
  }
}

}  // namespace trv5
