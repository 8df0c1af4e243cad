#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/archive.h"

namespace trv5 {

/// The line of an update file that holds this draw, without its end.
std::string updateLine(const DrawRow& row);

bool sameDraws(const std::vector<DrawRow>& a, const std::vector<DrawRow>& b);

/// What an update file in UTF-8 holds, read character by character.
std::vector<DrawRow> plainUpdateRows(const std::string& text);

}  // namespace trv5
