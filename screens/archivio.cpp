#include "screens/archivio.h"

#include <QVBoxLayout>

#include "screens/archive/copies_page.h"
#include "screens/archive/entry_page.h"
#include "screens/archive/formats_page.h"
#include "screens/archive/list_page.h"
#include "screens/archive/update_page.h"
#include "screens/kit/lazy_page.h"
#include "screens/kit/theme.h"

namespace trv5 {

ArchivioScreen::ArchivioScreen(Archivio& form) : Screen(form) {
  auto* const layout = new QVBoxLayout(this);
  auto* const frame = new Panel;
  frame->setBare();
  // Few who open the screen want more than its first tab.
  const auto later = [&form](QWidget* (*make)(Archivio&)) {
    return new LazyPage([&form, make] { return make(form); });
  };
  frame->body()->addWidget(kit.tabs("SSTab1", {archiveEntryPage(form), later(archiveListPage), later(archiveUpdatePage),
                                               later(archiveFormatsPage), later(archiveCopiesPage)}));
  layout->addWidget(frame);
  withTheme(*this, [layout] {
    const int unit = Theme::current().unit();
    layout->setContentsMargins(unit, unit, unit, unit);
  });
}

}  // namespace trv5
