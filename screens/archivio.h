#pragma once

#include "maintenance/archivio.h"
#include "screens/kit/screen.h"

namespace trv5 {

/// The screen that keeps the archive of draws: entry by hand, the list of all draws, the update, the files for other
/// programs, a tab each.
class ArchivioScreen : public Screen {
  Q_OBJECT
 public:
  explicit ArchivioScreen(Archivio& form);
};

}  // namespace trv5
