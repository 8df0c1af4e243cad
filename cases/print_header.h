#pragma once

#include <string>
#include <vector>

#include "cases/workbench.h"

namespace trv5 {

/// What a printed table of the workbench tells of the method that made it, a line each: the situation of the last
/// detection with its cases, what is played (wheels and colpi in force, reference draw), the formulas of the tables
/// that have any, the day of the print.
std::vector<std::string> methodHeader(const Workbench& w, const DateTime& now);

/// What the method is called: its name where it has one, else the situation of its cases in a few words, empty without
/// cases.
std::string methodName(const Workbench& w);

}  // namespace trv5
