#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "maintenance/archive_check.h"
#include "maintenance/backups.h"

namespace trv5 {

/// A draw as a copy of the archive has it, where the archive's own is not as it should be.
struct Mend {
  DrawRow draw;
  std::filesystem::path copy;
};

/// For each finding the draw that mends it, out of the newest of `copies` that has one. It has to be whole, as the
/// copy's own sums tell it, and other than the archive's; where the archive keeps a sum that its draw doesn't have, the
/// mending draw has that one: an older version is no mend. Copies that can't be read mend nothing. `rows`: the draws of
/// the archive. Throws DatabaseError where the archive can't be read.
std::vector<std::optional<Mend>> mendsOf(const std::vector<ArchiveFinding>& findings, const Database& archive,
                                         const std::vector<DrawRow>& rows, const std::vector<Backup>& copies);

}  // namespace trv5
