#pragma once

#include <filesystem>
#include <memory>
#include <vector>

struct sqlite3;

namespace trv5 {

/// The files that stand beside a database while it is written, or after its writer was killed: "-journal", "-wal",
/// "-shm". Only those that are there, of whatever type.
std::vector<std::filesystem::path> companionsOf(const std::filesystem::path& database);

/// An old file while a new one takes its place. What a killed program left beside a database is taken into the old file
/// first, or the database library would take it into the new one; then the file is locked, so that no other program
/// begins to write it. Throws UserError when another program uses the file, when it may not be written, and when what
/// stands beside it belongs to no database.
class ReplacedFile {
 public:
  /// `file` may be missing: then nothing may stand beside its name.
  explicit ReplacedFile(const std::filesystem::path& file);

 private:
  struct Close {
    void operator()(sqlite3* handle) const;
  };
  std::unique_ptr<sqlite3, Close> m_handle;
};

/// Throws UserError when something other than an ordinary file stands where `file` is to appear. Links have to be
/// resolved before.
void refuseSpecialFile(const std::filesystem::path& file);

}  // namespace trv5
