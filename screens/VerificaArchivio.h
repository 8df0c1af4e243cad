#pragma once

#include "core/verifica_archivio.h"
#include "screens/kit/screen.h"

namespace trv5 {

/// The draws of the archive that aren't as they were written.
class VerificaArchivioScreen : public Screen {
  Q_OBJECT
 public:
  explicit VerificaArchivioScreen(VerificaArchivio& form);
};

}  // namespace trv5
