#pragma once

#include "configs/import_export.h"
#include "screens/kit/screen.h"

namespace trv5 {

/// One configuration to another installation, or from it.
class ImportExportScreen : public Screen {
  Q_OBJECT
 public:
  explicit ImportExportScreen(ImportExport& form);
};

}  // namespace trv5
