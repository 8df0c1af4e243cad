#pragma once

#include "cases/case_map.h"
#include "screens/kit/screen.h"

namespace trv5 {

/// The map of the cases: the picture alone, as wide as the window or wider.
class EvoluzioneGraficaScreen : public Screen {
  Q_OBJECT
 public:
  explicit EvoluzioneGraficaScreen(EvoluzioneGrafica& form);
};

}  // namespace trv5
