#pragma once

#include <random>
#include <string>
#include <vector>

#include "core/archive.h"
#include "maintenance/update_check.h"

namespace trv5 {

/// The line of an update file that holds this draw, without its end.
std::string updateLine(const DrawRow& row);

bool sameDraws(const std::vector<DrawRow>& a, const std::vector<DrawRow>& b);

/// The bytes of an update file about these draws of an archive: a mixture of lines that agree, are missing there,
/// differ, are blank, cut short, too long or nonsense, with either line end, now and then with a byte order mark or in
/// another encoding. Most files have dates only.
std::string randomUpdateBytes(std::mt19937& rng, const std::vector<DrawRow>& stored);

/// What an update file in UTF-8 holds, read character by character.
std::vector<DrawRow> plainUpdateRows(const std::string& text);

/// The check row by row, field by field, as it is told. Empty wheels of the archive are NULL there.
UpdateCheck plainUpdateCheck(const std::vector<DrawRow>& rows, const std::vector<DrawRow>& archive);

}  // namespace trv5
