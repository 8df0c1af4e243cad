#pragma once

#include "configs/dds_field.h"
#include "screens/kit/screen.h"

namespace trv5 {

/// The field DDS of an older main database.
class FunzioniAggiuntiveScreen : public Screen {
  Q_OBJECT
 public:
  explicit FunzioniAggiuntiveScreen(FunzioniAggiuntive& form);
};

}  // namespace trv5
