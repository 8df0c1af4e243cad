#include "screens/kit/screen.h"

#include "screens/kit/theme.h"

namespace trv5 {

Screen::Screen(Form& form, QWidget* parent) : QWidget(parent), kit(form), m_form(form) {
  setObjectName(qs(form.name()));
  setWindowTitle(qs(form.title()));
  m_form.titleChanged = [this] { setWindowTitle(qs(m_form.title())); };
}

Screen::~Screen() {
  m_form.titleChanged = {};
}

void Screen::restore(const QSettings&) {}

void Screen::store(QSettings&) const {}

std::vector<std::string> Screen::printHeader(const GridControl& grid) const {
  const auto* const view = findChild<GridView*>(qs(grid.name()));
  return {view == nullptr ? form().title() : view->accessibleName().toStdString()};
}

}  // namespace trv5
