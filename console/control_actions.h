#pragma once

#include <nlohmann/json_fwd.hpp>

#include "core/controls.h"

class QWidget;

namespace trv5 {

// What the user does with a control, by the widget that shows it, or on the control itself where it has none (null
// widget). A control without a widget takes it as its widget would. All throw LineError for what can't be done.

/// The fields of an answer as text, without its braces: a line begins with others. Bytes that are no UTF-8 are
/// replaced.
std::string answerFields(const nlohmann::json& object);

void clickControl(Control* control, QWidget* widget);
void setControl(Control& control, QWidget* widget, const nlohmann::json& value);
/// What a control shows: text, index, value and so on, as far as it has them.
nlohmann::json describeControl(const Control& control);

}  // namespace trv5
