#pragma once

#include <array>
#include <string>

#include "support/plain_verification.h"

namespace trv5 {

/// The follow-up as its rules tell it, step by step and on text cells, on a copy of the workbench.
class PlainFollowup : public PlainWorkbench {
 public:
  explicit PlainFollowup(const Workbench& w);

  void clickFg15(int row);
  void Command35();
  void Command102();
  void filter(const std::string& kind);  ///< "1", "2", "3", "L"
  void Command62();
  void Command63();
  void Command114(int sorte);
  void Command9();
  void Command88();
  void Command76();
  void Command104();
  void search(int wheels);
  /// Adds the rows of `FgIC` to `FgRagg`, for the configuration of that row of `FgPir1`, and colours `FgRagg`.
  void gather(int row);
  void Command117();

  std::string sorteText;
  int delta, span;
  bool coverage;
  bool ticked[4];
  Grid &FgIC, &FgGioco, &FgRagg, &FgConv, &FgRit, &FgPir1;
  Grid speciale;            ///< `Fg1` of `Speciale`
  std::array<Grid, 6> FgS;  ///< the scratch grids `FgS1` to `FgS6`

 private:
  void startFgRit();
  void closeFgRit();
  void writeFgRit();
  void setRuoteGioco();

  int table[11][91];
};

}  // namespace trv5
