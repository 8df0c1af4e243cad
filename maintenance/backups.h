#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/archive.h"
#include "core/database.h"
#include "core/shell.h"

namespace trv5 {

// The copies of an archive: before each act that writes draws the archive is copied into the folder "copie" beside it.
// The newest ten stay, and of each month the first one.

/// Why a copy was made: the act that followed.
enum class BackupReason { Aggiornamento, Correzione, Cancellazione, Importazione, Ripristino };

/// "aggiornamento", "correzione", ..
std::string_view nameOf(BackupReason reason);

struct Backup {
  std::filesystem::path file;
  DateTime taken;
  std::string reason;    ///< as in its file name; any word, since the file may come from elsewhere
  int number = 1;        ///< from 1, among those of one second and one reason
  bool monthly = false;  ///< beyond the newest ten: it stays as the first of its month
};

/// The folder of an archive's copies.
std::filesystem::path backupFolder(const std::filesystem::path& archive);

/// The copies of this archive, the newest first; none where the folder is missing. Those dated after tomorrow come
/// last: the clock was wrong when they were made.
std::vector<Backup> backupsOf(const std::filesystem::path& archive, const DateTime& now);

/// Copies the archive, looks whether the copy read back is the archive and whole, and only then gives it its name and
/// takes away the copies that needn't stay, `spared` excepted. An archive that has not changed since its
/// newest copy gets no second one. Returns the copy, which is on the disk for good. Throws UserError; no copy is taken
/// away then.
Backup makeBackup(const Database& archive, BackupReason reason, const DateTime& now,
                  const std::filesystem::path& spared = {});

/// The sums of draws with their dates, in the order of the dates: what is to be kept of an archive to compare it.
using DatedSums = std::vector<std::pair<std::string, std::int64_t>>;
DatedSums datedSumsOf(const std::vector<DrawRow>& rows);

/// How a copy differs from the archive of today. Both in the order of the dates.
struct BackupComparison {
  int missing = 0;      ///< draws of today that the copy lacks
  int lastMissing = 0;  ///< index, from 1, of the last of these
  int different = 0;    ///< draws with other wheels
  int more = 0;         ///< draws that only the copy has

  /// "uguale", "manca la 7370", "mancano 2 estrazioni", "mancano 4, 1 diversa, 1 in più".
  std::string text() const;
};
BackupComparison compareBackup(const DatedSums& copy, const DatedSums& today);

}  // namespace trv5
