#pragma once

#include <map>
#include <string>

#include "cases/workbench.h"

namespace trv5 {

/// All that an operation on the workbench can read or change, as values: every grid by its name, what every other
/// control shows, the state behind them. The labels that tell how the results stand are left out.
struct WorkbenchSnapshot {
  WorkbenchSnapshot() = default;
  explicit WorkbenchSnapshot(const Workbench& w);

  std::map<std::string, Grid> grids;  ///< all but the scratch grids `FgS1`..`FgS6`, `FgSort`, `FgDett`
  std::map<std::string, std::string> controls;
  WorkbenchState state;
};

/// Empty when the workbench stands as in the snapshot; else the first thing that doesn't, with both values.
std::string difference(const WorkbenchSnapshot& expected, const Workbench& actual);

/// Empty when both snapshots are equal.
std::string difference(const WorkbenchSnapshot& expected, const WorkbenchSnapshot& actual);

/// Empty when both grids are equal in every respect; else the first difference.
std::string difference(const Grid& expected, const Grid& actual);

}  // namespace trv5
