#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include "core/grid_state.h"
#include "core/palette.h"

namespace trv5 {

class Control;

struct CheckValue {
  std::string caption;
  bool checked = false;
  bool operator==(const CheckValue&) const = default;
};

/// The items are shared by all states between which they don't change.
struct ComboValue {
  std::shared_ptr<const std::vector<std::string>> items;
  int index = -1;
  std::string text;
  bool operator==(const ComboValue& other) const;
};

struct ScrollValue {
  int value = 0, maximum = 0;
  bool operator==(const ScrollValue&) const = default;
};

struct TabsValue {
  int index = 0;
  std::set<int> disabled;
  bool operator==(const TabsValue&) const = default;
};

struct ProgressValue {
  int value = 0, maximum = 0;
  bool operator==(const ProgressValue&) const = default;
};

struct GridValue {
  GridState grid;
  std::string emptyText;
  bool operator==(const GridValue&) const = default;
};

/// What a control holds, by its kind: a caption, a text or a date is a string, a list of lines a vector.
using ControlValue = std::variant<std::string, CheckValue, ComboValue, ScrollValue, TabsValue, std::vector<std::string>,
                                  ProgressValue, GridValue>;

/// The looks of a control and what it holds, at one moment. Where the cursor stands in a text is no part of it.
struct ControlState {
  bool enabled = true, aside = false;
  std::optional<Rgb> back, fore;
  std::string toolTip;
  ControlValue value;
  bool operator==(const ControlState&) const = default;

  /// What it takes in memory beside what it shares with `neighbour`, a state of the same control; null: in all.
  std::size_t bytesBeside(const ControlState* neighbour) const;
};

/// All controls of a form at one moment. Controls that stay the same share their states from one moment to the next.
struct FormState {
  std::vector<std::shared_ptr<const ControlState>> controls;  ///< as the form has them; null: no part of its state
  Control* focused = nullptr;                                 ///< no part of the comparison
  bool operator==(const FormState& other) const;

  /// What it takes in memory beside what it shares with the moment before or after; null: in all.
  std::size_t bytesBeside(const FormState* neighbour) const;
};

}  // namespace trv5
