#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "core/archive.h"
#include "method/flags.h"

namespace trv5 {

/// The kinds of situation, in the order of their list.
enum class SituationKind { Mensile, Numeri, Distanza, Differenza, Somma, Ciclo, NumPari };

/// The kind of an item of the list; nothing for another text.
std::optional<SituationKind> situationKindOf(std::string_view text);
/// The text of that item.
std::string_view textOf(SituationKind kind);

/// A recurring situation: what a draw must show to be a case.
struct Situation {
  SituationKind kind = SituationKind::Mensile;
  int reference = 1;    ///< draw index of the first draw examined; the scan goes back from there
  int maxCases = 10;    ///< tested after each case, so 0 gives one
  int wheel = 0;        ///< one element: the wheel 0..10
  WheelSet wheels = 0;  ///< two elements: the wheels of detection
  PositionFlags positions{};
  NumberFlags numbers{};
  int quantity = 1;        ///< numbers or pairs that must match
  int period = 0;          ///< Mensile: progressive, 0 = last of the month; Ciclo: length; NumPari: even numbers
  bool forceLast = false;  ///< Mensile with period 0: the archive's last draw is a case too
  bool twoElements = false;
  int back = 0;  ///< draws before the first element for the second one; 0 = same draw, another wheel
  int quantity1 = 1, quantity2 = 1;  ///< two elements, Numeri: matches wanted in each element, exactly
  bool oneToOne = false;             ///< two elements: one position in each instead of a pair
  bool isotopes = false;             ///< two elements: the same positions in both

  bool operator==(const Situation&) const = default;
};

/// A draw and wheel that show the situation, with the positions 1..5 to be marked.
struct FoundElement {
  int draw = 0;
  int wheel = 0;
  PositionFlags marks{};
};

struct FoundCase {
  FoundElement first;
  std::optional<FoundElement> second;
};

/// The cases, the most recent first, found by walking back from the reference draw; a draw gives one case at most.
/// `struck` holds the positions that took part in the draw examined last: every one-element kind but Ciclo clears it
/// before each draw, Ciclo marks its cases with what it finds there, the two-element scan leaves it alone.
std::vector<FoundCase> detectCases(const Archive& archive, const Situation& situation, PositionFlags& struck);

}  // namespace trv5
