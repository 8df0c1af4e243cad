#pragma once

#include <random>

#include "survival/watched_disk.h"

namespace trv5 {

/// The files that stand on the disk when the power goes while event `at` of the log is on its way (the number of all
/// events: after the last one). What was synced before is there. Of the rest any part is: each write torn at 512 bytes,
/// names that appeared or went by themselves, a renaming as a whole; where a file grew and its bytes didn't arrive it
/// holds zeroes or rubbish.
DiskImage imageAfterCut(const DiskLog& log, std::size_t at, std::mt19937& rng);

/// The same log on a disk that syncs nothing.
DiskLog withoutSyncs(DiskLog log);

}  // namespace trv5
