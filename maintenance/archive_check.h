#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/archive.h"
#include "core/dates.h"
#include "core/draw_sums.h"

namespace trv5 {

/// What an archive is looked at for, in the order of the list.
enum class ArchiveCheck { Integrity, Sums, WheelTexts, Dates, RepeatedNumbers, Calendar };

inline constexpr ArchiveCheck kArchiveChecks[] = {ArchiveCheck::Integrity,       ArchiveCheck::Sums,
                                                  ArchiveCheck::WheelTexts,      ArchiveCheck::Dates,
                                                  ArchiveCheck::RepeatedNumbers, ArchiveCheck::Calendar};

/// "Integrità", "Somme di controllo", ..
std::string_view nameOf(ArchiveCheck check);

/// Something to look at.
struct ArchiveFinding {
  ArchiveCheck check = ArchiveCheck::Integrity;
  int draw = 0;      ///< index, from 1; 0 where it belongs to no draw
  std::string date;  ///< "GG/MM/AAAA", "" where it belongs to no day
  std::string text;
};

/// True when each wheel of the draw holds five different numbers of 1..90 in the form "05-71-13-90-02", or none: no
/// text, or "00-00-00-00-00", as an entry by hand leaves a wheel that wasn't drawn.
bool isWhole(const DrawRow& row);

/// The findings on these draws, check by check, the latest draw first. `differences`: from the sums. `today`: no draw
/// is later. The days of the draws are those of the Lotto, as far as they are known; days without a draw that
/// follow each other are one finding. Everything but the integrity of the file.
std::vector<ArchiveFinding> findingsOf(const std::vector<DrawRow>& rows, const std::vector<DrawDifference>& differences,
                                       Day today);

}  // namespace trv5
