#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/archive.h"

namespace trv5 {

/// The most that is taken of an update file, in bytes: some seven times a file of the whole history.
inline constexpr std::size_t kMaxUpdateBytes = std::size_t{16} << 20;

/// The text of a file in UTF-8: a byte order mark is left out, UTF-16 with its mark is turned around, and what is no
/// UTF-8 is taken as one character a byte.
std::string decodedText(std::string_view bytes);

/// True when the first line of the text is one of an update file: 178 characters, the last two "pr". The lines behind
/// it aren't looked at.
bool hasUpdateForm(std::string_view text);

/// The draws of an update file, one a line: the date in columns 1-10, wheel k, from 0, in the 14 columns from 12 + 15k
/// on. The columns between them and behind the last wheel aren't looked at, and neither is what stands in the cells: a
/// short line fills them with what it has. Lines end in LF or CR LF, the last one in either or neither; lines of blanks
/// are left out wherever they stand.
std::vector<DrawRow> readUpdateText(std::string_view text);

}  // namespace trv5
