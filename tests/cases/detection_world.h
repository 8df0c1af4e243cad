#pragma once

#include <array>
#include <initializer_list>
#include <string>
#include <vector>

#include "support/workbench_world.h"

namespace trv5 {

// Numbers of Bari, one draw each; {} is a draw without it.
inline std::vector<WheelNumbers> onBari(std::initializer_list<std::array<int, 5>> draws) {
  std::vector<WheelNumbers> all;
  for (const std::array<int, 5>& numbers : draws) {
    all.emplace_back();
    if (numbers[0] != 0) all.back()["BA"] = numbers;
  }
  return all;
}

inline constexpr std::array<int, 5> kNotDrawn{};

// The workbench with all positions chosen.
struct Detection : WorkbenchWorld {
  explicit Detection(const std::vector<WheelNumbers>& draws) : WorkbenchWorld(archiveOf(draws)) {
    positions({1, 2, 3, 4, 5});
  }

  void look(const char* kind, const std::string& numbers = {}) {
    choose(w.ComboFiltro, kind);
    w.TxtNumeri.set(numbers);
    shell.shown.clear();
    w.SSTab1.set(1);
    press("Command44");
  }
  void onWheels(std::initializer_list<int> wheels) {
    w.Ch_analisi2ruote.set(true);
    w.Label19.click();
    for (const int wheel : wheels) w.FgRR.clickCell(0, wheel);
  }
  // The draws of the cases, from the first row on.
  std::vector<int> cases() const {
    std::vector<int> draws;
    for (int row = 1; row < w.FgEv.rows(); ++row) draws.push_back(caseDraw(w, row));
    return draws;
  }
  // Positions painted in a row, of the first or the second element.
  std::vector<int> green(int row, int from = case_column::kNumbers) const {
    std::vector<int> found;
    for (int p = 1; p <= kPositions; ++p)
      if (w.FgEv.back(row, from + p - 1) == VerdeMedio) found.push_back(p);
    return found;
  }
  std::vector<int> green2(int row) const { return green(row, case_column::kNumbers2); }
};

using Ints = std::vector<int>;

}  // namespace trv5
