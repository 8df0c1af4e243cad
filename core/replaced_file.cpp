#include "core/replaced_file.h"

#include <fmt/format.h>
#include <sqlite3.h>

#include <array>
#include <fstream>
#include <string_view>

#include "core/errors.h"
#include "core/file_writer.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

constexpr int kBusyTimeoutMs = 2000;

[[noreturn]] void fail(const fs::path& file, std::string_view reason, std::string details = {}) {
  throw UserError(fmt::format("Il file \"{}\" non può essere sostituito: {}.", file.string(), reason), "Avviso",
                  std::move(details));
}

void refuseCompanions(const fs::path& file) {
  const std::vector<fs::path> left = companionsOf(file);
  if (left.empty()) return;
  throw UserError(fmt::format(
      "Il file \"{}\" non può essere creato: accanto è rimasto \"{}\", che appartiene a un altro database e "
      "ne cambierebbe il contenuto. Spostarlo o eliminarlo.",
      file.string(), left.front().filename().string()));
}

bool isDatabase(const fs::path& file) {
  constexpr std::string_view kMagic = "SQLite format 3";
  std::array<char, kMagic.size()> begin{};
  std::ifstream stream(file, std::ios::binary);
  return stream.read(begin.data(), begin.size()) && std::string_view(begin.data(), begin.size()) == kMagic;
}

}  // namespace

std::vector<fs::path> companionsOf(const fs::path& database) {
  std::vector<fs::path> there;
  for (const char* end : {"-journal", "-wal", "-shm"}) {
    fs::path companion = database;
    companion += end;
    std::error_code error;
    if (fs::exists(fs::symlink_status(companion, error))) there.push_back(std::move(companion));
  }
  return there;
}

void refuseSpecialFile(const fs::path& file) {
  std::error_code error;
  const fs::file_type type = fs::symlink_status(file, error).type();
  if (type == fs::file_type::symlink) fail(file, "è un collegamento che non porta a nessun file");
  if (type != fs::file_type::regular && type != fs::file_type::not_found && type != fs::file_type::none &&
      type != fs::file_type::unknown)
    fail(file, "non è un file normale (è una cartella, un dispositivo o un canale)");
}

void ReplacedFile::Close::operator()(sqlite3* handle) const {
  sqlite3_close(handle);
}

ReplacedFile::ReplacedFile(const fs::path& file) {
  refuseSpecialFile(file);
  std::error_code error;
  // The file is looked into only for the sake of a companion: to close it would free the locks that this program holds.
  if (!fs::exists(file, error) || (!companionsOf(file).empty() && !isDatabase(file))) {
    refuseCompanions(file);
    return;
  }

  sqlite3* handle = nullptr;
  const int opened = sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr);
  m_handle.reset(handle);
  if (opened != SQLITE_OK)
    fail(file, opened == SQLITE_CANTOPEN ? reasonOf(sqlite3_system_errno(handle)) : "non si lascia aprire",
         sqlite3_errmsg(handle));
  sqlite3_busy_timeout(handle, kBusyTimeoutMs);
  const auto run = [&](const char* sql) { return sqlite3_exec(handle, sql, nullptr, nullptr, nullptr); };
  // Any access takes a journal or a log into the file; leaving the modes that keep one deletes it. A database too
  // damaged for that can still be locked.
  run("PRAGMA journal_mode = DELETE");
  if (!companionsOf(file).empty()) run("PRAGMA journal_mode = PERSIST; PRAGMA journal_mode = DELETE");
  switch (const int locked = run("BEGIN EXCLUSIVE"); locked & 0xFF) {
    case SQLITE_OK:
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
      refuseCompanions(file);
      return;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      fail(file, "è occupato da un altro programma");
    case SQLITE_READONLY:
      fail(file, "è in sola lettura");
    default:
      fail(file, "quello che c'è non si lascia leggere", sqlite3_errmsg(handle));
  }
}

}  // namespace trv5
