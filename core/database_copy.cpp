// A database as a whole: copied away, and taken back.
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "core/database.h"
#include "core/file_writer.h"

namespace trv5 {
namespace {

// All pages in one step: what another program writes meanwhile belongs to the copy as a whole or not at all.
void copyPages(SQLite::Database& from, SQLite::Database& to) {
  sqlite3_backup* const backup = sqlite3_backup_init(to.getHandle(), "main", from.getHandle(), "main");
  if (backup == nullptr) throw SQLite::Exception(to.getHandle());
  const int stepped = sqlite3_backup_step(backup, -1);
  const int finished = sqlite3_backup_finish(backup);
  if (stepped == SQLITE_DONE && finished == SQLITE_OK) return;
  throw SQLite::Exception(to.getHandle(), stepped == SQLITE_DONE ? finished : stepped);
}

// What is read stays as it is as long as this lives: other programs wait with their writing.
class Reading {
 public:
  explicit Reading(SQLite::Database& database) : m_database(database) {
    m_database.exec("BEGIN");
    try {
      m_database.exec("SELECT count(*) FROM sqlite_schema");
    } catch (...) {
      end();
      throw;
    }
  }
  ~Reading() { end(); }
  Reading(const Reading&) = delete;
  Reading& operator=(const Reading&) = delete;

 private:
  void end() { sqlite3_exec(m_database.getHandle(), "ROLLBACK", nullptr, nullptr, nullptr); }
  SQLite::Database& m_database;
};

// Byte by byte, but for what a copy has of its own in the header: the counters of changes of contents and schema.
bool areSamePages(std::string one, std::string other) {
  constexpr std::size_t kHeader = 100;
  if (one.size() != other.size() || one.size() < kHeader) return false;
  for (const auto& [from, length] : {std::pair(24U, 4U), std::pair(40U, 4U), std::pair(92U, 8U)}) {
    one.replace(from, length, length, '\0');
    other.replace(from, length, length, '\0');
  }
  return one == other;
}

bool isCopy(SQLite::Database& database, const std::filesystem::path& copy) {
  sqlite3_int64 size = 0;
  const std::unique_ptr<unsigned char, decltype(&sqlite3_free)> pages(
      sqlite3_serialize(database.getHandle(), "main", &size, 0), sqlite3_free);
  if (pages == nullptr) throw SQLite::Exception(database.getHandle(), SQLITE_NOMEM);
  return areSamePages(std::string(reinterpret_cast<const char*>(pages.get()), static_cast<std::size_t>(size)),
                      readFile(copy));
}

}  // namespace

void Database::copyInto(const std::filesystem::path& empty) const {
  restartClock();
  std::optional<SQLite::Database> copy;
  try {
    const Reading reading(*m_database);
    copy.emplace(empty.string(), SQLite::OPEN_READWRITE);
    copy->exec("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF");
    copyPages(*m_database, *copy);
    if (!isCopy(*m_database, empty)) throw SQLite::Exception("read back, the copy is another", SQLITE_IOERR);
  } catch (const SQLite::Exception&) {
    fail("copiato", copy ? &*copy : nullptr);
  }
}

void Database::takeFrom(const Database& other) {
  // Tells a file that can't be written, has been replaced or is held by another program before anything is done.
  { const Transaction tried(*this); }
  try {
    copyPages(*other.m_database, *m_database);
  } catch (const SQLite::Exception&) {
    fail("scritto");
  }
}

}  // namespace trv5
