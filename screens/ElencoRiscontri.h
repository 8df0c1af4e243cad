#pragma once

#include "engine/result_forms.h"
#include "screens/kit/screen.h"

namespace trv5 {

/// The hits of the lunghetta with all their columns.
class ElencoRiscontriScreen : public Screen {
  Q_OBJECT
 public:
  explicit ElencoRiscontriScreen(ElencoRiscontri& form);
};

}  // namespace trv5
