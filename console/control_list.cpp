#include "console/control_list.h"

#include <nlohmann/json.hpp>

#include "core/controls.h"

namespace trv5 {
namespace {

nlohmann::json outlineOfGrid(const GridControl& grid) {
  nlohmann::json choices = nlohmann::json::object();
  for (int column = 0; column < grid.columns(); ++column)
    if (const auto* const offered = grid.choices(column)) choices[std::to_string(column)] = *offered;
  return {{"kind", "grid"},
          {"rows", grid.rows()},
          {"columns", grid.columns()},
          {"headings", grid.headingRows()},
          {"acts", grid.hasCellClick()},
          {"choices", std::move(choices)}};
}

nlohmann::json outlineOfTabs(const Tabs& tabs) {
  nlohmann::json reached = nlohmann::json::array();
  for (const auto& [given, caption] : tabs.captions())
    if (tabs.tabEnabled(given)) reached.push_back(given);
  return {{"kind", "tabs"}, {"tabs", std::move(reached)}};
}

nlohmann::json outlineOfKind(const Control& control) {
  if (const auto* const grid = dynamic_cast<const GridControl*>(&control)) return outlineOfGrid(*grid);
  if (const auto* const tabs = dynamic_cast<const Tabs*>(&control)) return outlineOfTabs(*tabs);
  if (const auto* const combo = dynamic_cast<const Combo*>(&control))
    return {{"kind", "combo"}, {"items", combo->items().size()}, {"editable", combo->editable()}};
  if (const auto* const scroll = dynamic_cast<const Scroll*>(&control))
    return {{"kind", "scroll"}, {"minimum", scroll->minimum()}, {"maximum", scroll->maximum()}};
  if (const auto* const text = dynamic_cast<const Text*>(&control))
    return {{"kind", "text"}, {"length", text->maximumLength()}};
  if (dynamic_cast<const Button*>(&control) != nullptr) return {{"kind", "button"}};
  if (dynamic_cast<const Check*>(&control) != nullptr) return {{"kind", "check"}};
  if (dynamic_cast<const Label*>(&control) != nullptr) return {{"kind", "label"}};
  if (dynamic_cast<const Calendar*>(&control) != nullptr) return {{"kind", "calendar"}};
  if (dynamic_cast<const LineList*>(&control) != nullptr) return {{"kind", "lines"}};
  return {{"kind", "progress"}};
}

}  // namespace

nlohmann::json outlineOf(const Control& control) {
  nlohmann::json out = {{"name", control.name()},
                        {"enabled", control.enabled()},
                        {"acts", control.hasEvent()},
                        {"double", control.hasDoubleClick()}};
  out.update(outlineOfKind(control));
  return out;
}

}  // namespace trv5
