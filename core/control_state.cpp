#include "core/control_state.h"

#include <algorithm>

namespace trv5 {
namespace {

std::size_t heapOf(const std::string& text) {
  const bool inside = text.capacity() <= std::string().capacity();
  return inside ? 0 : text.capacity() + 1;
}

std::size_t heapOf(const std::vector<std::string>& texts) {
  std::size_t bytes = texts.capacity() * sizeof(std::string);
  for (const std::string& text : texts) bytes += heapOf(text);
  return bytes;
}

// What the value of a control takes outside the state itself, beside what it shares with another one.
struct HeapBytes {
  const ControlValue* neighbour;

  template <class Value>
  const Value* same() const {
    return neighbour == nullptr ? nullptr : std::get_if<Value>(neighbour);
  }
  std::size_t operator()(const std::string& value) const { return heapOf(value); }
  std::size_t operator()(const std::vector<std::string>& value) const { return heapOf(value); }
  std::size_t operator()(const CheckValue& value) const { return heapOf(value.caption); }
  std::size_t operator()(const TabsValue& value) const { return value.disabled.size() * 5 * sizeof(void*); }
  std::size_t operator()(const ScrollValue&) const { return 0; }
  std::size_t operator()(const ProgressValue&) const { return 0; }
  std::size_t operator()(const ComboValue& value) const {
    const auto* const other = same<ComboValue>();
    const bool shared = other != nullptr && other->items == value.items;
    return heapOf(value.text) + (shared ? 0 : heapOf(*value.items));
  }
  std::size_t operator()(const GridValue& value) const {
    const auto* const other = same<GridValue>();
    const bool shared = other != nullptr && other->grid.cells == value.grid.cells;
    return heapOf(value.emptyText) + value.grid.bytes() + (shared ? 0 : value.grid.cells->bytes());
  }
};

}  // namespace

bool ComboValue::operator==(const ComboValue& other) const {
  return index == other.index && text == other.text && (items == other.items || *items == *other.items);
}

std::size_t ControlState::bytesBeside(const ControlState* neighbour) const {
  if (neighbour == this) return 0;
  return sizeof *this + heapOf(toolTip) +
         std::visit(HeapBytes{neighbour == nullptr ? nullptr : &neighbour->value}, value);
}

bool FormState::operator==(const FormState& other) const {
  return std::equal(controls.begin(), controls.end(), other.controls.begin(), other.controls.end(),
                    [](const auto& a, const auto& b) { return a == b || (a != nullptr && b != nullptr && *a == *b); });
}

std::size_t FormState::bytesBeside(const FormState* neighbour) const {
  std::size_t bytes = sizeof *this + controls.capacity() * sizeof controls.front();
  for (std::size_t i = 0; i < controls.size(); ++i)
    if (controls[i] != nullptr)
      bytes += controls[i]->bytesBeside(neighbour == nullptr ? nullptr : neighbour->controls[i].get());
  return bytes;
}

}  // namespace trv5
