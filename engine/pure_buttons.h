#pragma once

#include <array>

#include "cases/workbench.h"

namespace trv5 {

/// A search of pure numbers among the draws after the cases.
struct PureButton {
  const char* name;
  int wheelsOfSet;  ///< 0: counts on `RuoteGioco`; 1, 2, 3: on every set of so many wheels
};

inline constexpr std::array<PureButton, 4> kPureButtons = {
    {{"Command77", 0}, {"Command101", 1}, {"Command100", 2}, {"Command99", 3}}};

/// The "NUM" buttons of the tab Ambate: the numbers by the cases after which they were drawn. Each wheel set overwrites
/// the rows 1 to 90 one after the other, and each row moves to its place at once: rows of earlier sets that climbed
/// above the running row survive, and that is how these lists are meant to be.
void CercaNumeri(Workbench& w, const PureButton& button);

/// A search of the pure number that completes earlier hits.
struct PureCompanionButton {
  const char* name;
  Table table;  ///< that it works for
};

inline constexpr std::array<PureCompanionButton, 3> kPureCompanionButtons = {
    {{"Command105", Table::Ambi}, {"Command107", Table::Terni}, {"Command108", Table::Lunghetta}}};

/// The "NUM" buttons of the tabs Ambi, Terni and Lunghetta. That of the lunghetta counts nothing: it lists the 90
/// numbers for the verification that follows.
void CercaNumeriCompagni(Workbench& w, const PureCompanionButton& button);

}  // namespace trv5
