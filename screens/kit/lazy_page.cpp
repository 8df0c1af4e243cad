#include "screens/kit/lazy_page.h"

#include <QVBoxLayout>
#include <utility>

namespace trv5 {

LazyPage::LazyPage(std::function<QWidget*()> make) : m_make(std::move(make)) {
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
}

void LazyPage::make() {
  if (isMade()) return;
  layout()->addWidget(std::exchange(m_make, nullptr)());
  Q_EMIT made();
}

void LazyPage::showEvent(QShowEvent* event) {
  make();
  QWidget::showEvent(event);
}

bool makeOnePage(const QWidget& top) {
  for (auto* const page : top.findChildren<LazyPage*>())
    if (!page->isMade()) {
      page->make();
      return true;
    }
  return false;
}

void makePages(const QWidget& top) {
  while (makeOnePage(top)) {
  }
}

}  // namespace trv5
