#pragma once

#include <functional>
#include <string>

#include "core/archive.h"

namespace trv5 {

// The archive as other programs read it, draw 1 first. `onDraw` gets the number of draws done. None of these files is
// ever read back.

using OnDraw = std::function<void(int draw)>;

/// "Dati.iii": records of 110 bytes without a header, that of draw i at byte (i - 1) * 110. Day, month, year (its last
/// two digits) as 16-bit integers, low byte first; the numbers of the ten regional wheels, two digits each; `ProgMese`
/// and `ProgAnno` as integers.
std::string datiIii(const Archive& archive, const OnDraw& onDraw = {});

/// The file of Ruotafast: a line a draw, in double quotes. The same numbers; year, month and day of two characters;
/// `ProgMese` and `ProgAnno` of two digits or, from 100 on, three.
std::string ruotafast(const Archive& archive, const OnDraw& onDraw = {});

/// The national wheel: a line for each draw whose first number there is 1 to 90: the draw's index of five digits, "-",
/// the five numbers.
std::string nazionale(const Archive& archive, const OnDraw& onDraw = {});

}  // namespace trv5
