#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace trv5 {

/// Another program that holds a database file.
class OtherProgram {
 public:
  OtherProgram(const std::filesystem::path& file, const std::string& sql) {
    sqlite3_open(file.c_str(), &m_handle);
    run(sql);
  }
  ~OtherProgram() { sqlite3_close(m_handle); }
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  void run(const std::string& sql) {
    char* error = nullptr;
    if (sqlite3_exec(m_handle, sql.c_str(), nullptr, nullptr, &error) == SQLITE_OK) return;
    const std::string text = error == nullptr ? "" : error;
    sqlite3_free(error);
    throw std::runtime_error(sql + ": " + text);
  }

 private:
  sqlite3* m_handle = nullptr;
};

/// Makes `file` a copy of the archive `from` as a program leaves it that was killed while it wrote: half changed, its
/// rollback journal beside it. With `WriteAhead` the changes stand whole in a write-ahead log instead.
enum class LeftBehind { Journal, WriteAhead };
inline void leaveJournal(const std::filesystem::path& from, const std::filesystem::path& file, LeftBehind left) {
  namespace fs = std::filesystem;
  const fs::path work = file.string() + ".lavoro";
  fs::copy_file(from, work);
  const auto beside = [](const fs::path& database, const char* end) { return fs::path(database.string() + end); };
  {
    OtherProgram writer(work, left == LeftBehind::Journal
                                  ? "PRAGMA journal_mode = DELETE; PRAGMA cache_size = 1; BEGIN"
                                  : "PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0; BEGIN");
    writer.run("UPDATE EstrazioniLotto SET Ba = '01-02-03-04-05'");
    if (left == LeftBehind::WriteAhead) writer.run("COMMIT");
    fs::copy_file(work, file, fs::copy_options::overwrite_existing);
    const char* const end = left == LeftBehind::Journal ? "-journal" : "-wal";
    fs::copy_file(beside(work, end), beside(file, end), fs::copy_options::overwrite_existing);
  }
  for (const char* end : {"", "-journal", "-wal", "-shm"}) fs::remove(beside(work, end));
}

}  // namespace trv5
