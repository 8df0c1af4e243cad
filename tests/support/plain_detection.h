#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/archive.h"
#include "core/grid.h"

namespace trv5 {

/// What the user has chosen when the cases are asked for.
struct PlainSituation {
  std::string kind = "Mensile";
  std::string numbers = {};          ///< as they stand in their box
  int reference = 1;                 ///< first draw examined
  int wheel = 0;                     ///< 0..10
  int period = 0;                    ///< list index of "Mensile": 0 is "U"
  std::string cases = "10";          ///< how many, as picked or typed
  int quantity = 1;                  ///< 1..5
  std::array<bool, 6> positions{};   ///< 1..5
  std::array<bool, 11> detection{};  ///< wheels of detection
  bool forceLast = false;
  bool onWheels = false;  ///< two elements
  int back = 0;           ///< 0..10
  int quantity1 = 1, quantity2 = 1;
  bool oneToOne = false, isotopes = false;
};

/// What a run finds and leaves; handed from run to run, since some of it outlives them.
struct PlainDetection {
  std::vector<std::vector<Cell>> cases;  ///< rows below the heading, 23 cells each
  std::vector<std::string> boxes;        ///< of this run
  std::string numbers;                   ///< what the box of the numbers holds afterwards
  std::string span;                      ///< of the list, in draws
  int found = 0;                         ///< cases before the cut
  int frontTab = 1;                      ///< 1 selections, 0 cases
  std::array<bool, 6> struck{};          ///< positions that took part in the draw examined last
  std::array<bool, 91> chosen{};
};

/// The detection of the cases, step by step as it is told, each draw read from the archive number by number: the oracle
/// of the randomised tests.
void plainDetect(const Archive& archive, const PlainSituation& situation, PlainDetection& state);

}  // namespace trv5
