#pragma once

#include "engine/result_forms.h"
#include "screens/kit/screen.h"

namespace trv5 {

/// The saved configurations that have come out.
class SpecialeScreen : public Screen {
  Q_OBJECT
 public:
  explicit SpecialeScreen(Speciale& form);
};

}  // namespace trv5
