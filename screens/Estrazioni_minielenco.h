#pragma once

#include "maintenance/mini_list.h"
#include "screens/kit/screen.h"

namespace trv5 {

/// The mini draw list: two draws side by side.
class EstrazioniMinielencoScreen : public Screen {
  Q_OBJECT
 public:
  explicit EstrazioniMinielencoScreen(MiniList& form);
};

}  // namespace trv5
