#include "engine/evaluation.h"

#include "cases/case_rows.h"
#include "cases/method_codec.h"

namespace trv5 {

void SettaggioFix(Workbench& w) {
  const int chosen = w.ComboFix.index();
  for (int fix = 1; fix <= kMostNumber; ++fix)
    w.FixAmmessi[static_cast<std::size_t>(fix)] = chosen <= 0 || fix == chosen;
}

void EstraeTerzine(Workbench& w) {
  ammetteTerzine(w);
  w.shell().status("Terzine di posizioni preparate: 35");
}

void ammetteTerzine(Workbench& w) {
  w.TerzineAmmesse = {};
  for (std::size_t p1 = 1; p1 <= kPositions; ++p1)
    for (std::size_t p2 = p1; p2 <= kPositions; ++p2)
      for (std::size_t p3 = p2; p3 <= kPositions; ++p3) w.TerzineAmmesse[p1][p2][p3] = true;
}

void RicavaElementiReali(Workbench& w) {
  writeNumbersInPlay(w, numbersInPlay(w.archive, methodOf(w).formulas, caseDraws(w), w.Formula));
}

}  // namespace trv5
