#pragma once

#include <string>

#include "cases/workbench.h"
#include "core/program.h"

namespace trv5 {

/// "Evoluzione": the map of the cases.
class EvoluzioneGrafica : public Form {
 public:
  explicit EvoluzioneGrafica(Shell& shell);
  explicit EvoluzioneGrafica(const Program& program) : EvoluzioneGrafica(program.shell) {}

  /// Row 0: draw indices from column 1 on; column 0: the case.
  GridControl Fg1;
};

/// Map of the cases: each case's colpi on a common axis of draws, on the screen `EvoluzioneGrafica`.
void MostraMappaCasi(Workbench& w);

/// What a cell of the map tells: its case, its draw and, where it is painted, which colpo of the case that is.
std::string mapCellText(const Grid& map, int row, int column);

}  // namespace trv5
