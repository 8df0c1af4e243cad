#include "maintenance/backups.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <optional>
#include <tuple>
#include <unordered_map>

#include "core/dates.h"
#include "core/draw_sums.h"
#include "core/errors.h"
#include "core/file_writer.h"
#include "core/text.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kNewestKept = 10;

auto orderOf(const Backup& backup) {
  const DateTime& t = backup.taken;
  return std::tuple(t.year, t.month, t.day, t.hour, t.minute, t.second, backup.number, backup.reason);
}

// What the names of all copies of an archive begin with.
std::string startOfNames(const fs::path& archive) {
  return (archive.extension() == ".mdb" ? archive.stem() : archive.filename()).string() + " ";
}

// "Archivio 2026-08-21 20.52.10 aggiornamento.mdb"; the time without colons, which other systems don't allow.
std::string nameOfCopy(const fs::path& archive, const Backup& backup) {
  const DateTime& t = backup.taken;
  return fmt::format("{}{:04}-{:02}-{:02} {:02}.{:02}.{:02} {}{}.mdb", startOfNames(archive), t.year, t.month, t.day,
                     t.hour, t.minute, t.second, backup.reason,
                     backup.number > 1 ? fmt::format(" ({})", backup.number) : "");
}

std::optional<Backup> backupOfName(const fs::path& archive, const fs::path& file) {
  const std::string start = startOfNames(archive), name = file.stem().string();
  if (name.rfind(start, 0) != 0) return std::nullopt;
  Backup backup{.file = file, .taken = {}, .reason = {}};
  DateTime& t = backup.taken;
  int read = 0;
  if (std::sscanf(name.c_str() + start.size(), "%4d-%2d-%2d %2d.%2d.%2d %n", &t.year, &t.month, &t.day, &t.hour,
                  &t.minute, &t.second, &read) != 6 ||
      !dayOf(t.year, t.month, t.day))
    return std::nullopt;
  backup.reason = name.substr(std::min(name.size(), start.size() + static_cast<std::size_t>(read)));
  if (const std::size_t at = backup.reason.rfind(" ("); at != std::string::npos) {
    backup.number = numberOf(std::string_view(backup.reason).substr(at + 2));
    backup.reason.resize(at);
  }
  // What was read must be what such a name says.
  if (nameOfCopy(archive, backup) != file.filename().string()) return std::nullopt;
  return backup;
}

// The newest first, and behind them those of a wrong clock, which would never make room otherwise.
void sortByAge(std::vector<Backup>& backups, const DateTime& now) {
  const auto tomorrow = dayOf(now.year, now.month, now.day).value_or(Day{}) + std::chrono::days(1);
  const auto tooLate = [&](const Backup& b) {
    return dayOf(b.taken.year, b.taken.month, b.taken.day).value_or(Day{}) > tomorrow;
  };
  std::sort(backups.begin(), backups.end(), [&](const Backup& a, const Backup& b) {
    return std::pair(tooLate(b), orderOf(a)) > std::pair(tooLate(a), orderOf(b));
  });
}

// Of the copies beyond the newest ten the first one of each month stays.
void markMonthly(std::vector<Backup>& sorted) {
  std::map<std::pair<int, int>, Backup*> first;
  for (Backup& backup : sorted) {
    Backup*& oldest = first[{backup.taken.year, backup.taken.month}];
    if (oldest == nullptr || orderOf(backup) < orderOf(*oldest)) oldest = &backup;
  }
  for (std::size_t i = kNewestKept; i < sorted.size(); ++i)
    sorted[i].monthly = first[{sorted[i].taken.year, sorted[i].taken.month}] == &sorted[i];
}

void takeAwayOld(const fs::path& archive, const DateTime& now, std::initializer_list<fs::path> spared) {
  const std::vector<Backup> all = backupsOf(archive, now);
  std::error_code unknown;  // one that can't be taken away goes with a later one
  for (std::size_t i = kNewestKept; i < all.size(); ++i)
    if (!all[i].monthly && std::find(spared.begin(), spared.end(), all[i].file) == spared.end())
      fs::remove(all[i].file, unknown);
}

// That its pages are the archive's is known; a damaged archive has damaged copies.
void checkCopy(const fs::path& file, const Database& archive) {
  try {
    Database(file, FileKind::Archive).checkIntegrity();
  } catch (const UserError& error) {
    archive.checkIntegrity();
    throw UserError(fmt::format("La copia del file \"{}\" non si lascia leggere per intero.", archive.path().string()),
                    "Avviso", error.details());
  }
}

// True when nothing at all was written to the archive since that copy was made: page by page the same file.
bool isSameFile(const fs::path& copy, const fs::path& fresh) {
  std::error_code unknown;
  if (fs::file_size(copy, unknown) != fs::file_size(fresh, unknown)) return false;
  try {
    return readFile(copy) == readFile(fresh);
  } catch (const UserError&) {
    return false;  // a copy that can't be read any more is none
  }
}

}  // namespace

std::string_view nameOf(BackupReason reason) {
  switch (reason) {
    case BackupReason::Aggiornamento:
      return "aggiornamento";
    case BackupReason::Correzione:
      return "correzione";
    case BackupReason::Cancellazione:
      return "cancellazione";
    case BackupReason::Importazione:
      return "importazione";
    case BackupReason::Ripristino:
      return "ripristino";
  }
  return "";
}

fs::path backupFolder(const fs::path& archive) {
  return archive.parent_path() / "copie";
}

std::vector<Backup> backupsOf(const fs::path& archive, const DateTime& now) {
  std::vector<Backup> backups;
  std::error_code unknown;
  for (fs::directory_iterator entry(backupFolder(archive), unknown), end; !unknown && entry != end;
       entry.increment(unknown)) {
    std::error_code gone;
    if (!entry->is_regular_file(gone)) continue;
    if (auto backup = backupOfName(archive, entry->path())) backups.push_back(std::move(*backup));
  }
  sortByAge(backups, now);
  markMonthly(backups);
  return backups;
}

Backup makeBackup(const Database& archive, BackupReason reason, const DateTime& now, const fs::path& spared) {
  const fs::path folder = backupFolder(archive.path());
  makeFolder(folder);
  Backup made{.file = {}, .taken = now, .reason = std::string(nameOf(reason))};
  for (std::error_code unknown;; ++made.number) {
    made.file = folder / nameOfCopy(archive.path(), made);
    if (!fs::exists(fs::symlink_status(made.file, unknown))) break;
  }
  PendingFile pending(made.file);
  archive.copyInto(pending.path());
  checkCopy(pending.path(), archive);
  const std::vector<Backup> before = backupsOf(archive.path(), now);
  if (!before.empty() && isSameFile(before.front().file, pending.path())) return before.front();
  pending.commit(Existing::Refuse);
  takeAwayOld(archive.path(), now, {made.file, spared});
  return made;
}

DatedSums datedSumsOf(const std::vector<DrawRow>& rows) {
  DatedSums sums;
  sums.reserve(rows.size());
  for (const DrawRow& row : rows) sums.emplace_back(row.date, sumOfDraw(row));
  return sums;
}

std::string BackupComparison::text() const {
  std::vector<std::string> parts;
  if (missing == 1 && different == 0 && more == 0) return fmt::format("manca la {}", lastMissing);
  if (missing > 1 && different == 0 && more == 0) return fmt::format("mancano {} estrazioni", missing);
  if (missing > 0) parts.push_back(missing == 1 ? "manca 1" : fmt::format("mancano {}", missing));
  if (different > 0) parts.push_back(counted(different, "diversa", "diverse"));
  if (more > 0) parts.push_back(fmt::format("{} in più", more));
  return parts.empty() ? "uguale" : fmt::format("{}", fmt::join(parts, ", "));
}

BackupComparison compareBackup(const DatedSums& copy, const DatedSums& today) {
  std::unordered_map<std::string_view, std::int64_t> inCopy;
  inCopy.reserve(copy.size());
  for (const auto& [date, sum] : copy) inCopy.emplace(date, sum);
  BackupComparison found;
  int common = 0;
  for (std::size_t i = 0; i < today.size(); ++i) {
    const auto same = inCopy.find(today[i].first);
    if (same == inCopy.end()) {
      ++found.missing;
      found.lastMissing = static_cast<int>(i) + 1;
    } else {
      ++common;
      if (same->second != today[i].second) ++found.different;
    }
  }
  found.more = static_cast<int>(copy.size()) - common;
  return found;
}

}  // namespace trv5
