#pragma once

#include "cases/case_map.h"
#include "screens/kit/screen.h"

namespace trv5 {

/// The map of the cases. It opens as large as its cells are told to be; where there is less room they draw together,
/// and where they can't it scrolls, with the newest case in sight.
class EvoluzioneGraficaScreen : public Screen {
  Q_OBJECT
 public:
  explicit EvoluzioneGraficaScreen(EvoluzioneGrafica& form);

  /// With the cells at their told size.
  QSize sizeHint() const override;

 private:
  void followMap();

  EvoluzioneGrafica& m_form;
  GridView* m_map;
  int m_rows = 0, m_columns = 0, m_cellSize = 0;  // of the map shown
  bool m_newest = true;                           // the right end, where the newest case is, stays in sight
};

}  // namespace trv5
