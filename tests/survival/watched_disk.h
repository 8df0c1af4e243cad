#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace trv5 {

/// The files of a folder and of the folders in it: name ("Archivio.mdb", "copie/Archivio 1.mdb") and bytes.
using DiskImage = std::map<std::string, std::string>;

/// The ordinary files of a folder as they stand.
DiskImage imageOf(const std::filesystem::path& folder);
/// Makes the folder hold these files and no other, and no folder beside those of these files.
void layImage(const std::filesystem::path& folder, const DiskImage& image);

/// One thing that a program did to a disk. A file keeps its number whatever its name becomes.
struct DiskEvent {
  enum class Kind { Write, Truncate, Sync, Create, Delete, Rename, MakeFolder, SyncFolder };
  Kind kind;
  int file = -1;
  std::size_t at = 0;      ///< of Write: the first byte; of Truncate: the new length
  std::string bytes = {};  ///< of Write
  std::string name = {};   ///< of Create, Delete, Rename, MakeFolder: the name that appears or goes; of SyncFolder:
                           ///< the folder, "" for the watched one
  std::string formerName = {};  ///< of Rename
};

struct DiskLog {
  DiskImage before;
  std::map<std::string, int> files;  ///< the numbers of the files of `before`
  std::vector<DiskEvent> events;
};

/// The calls of the system that can fail.
enum class DiskCall { Open, Read, Write, Sync, Truncate, Delete, Rename, MakeFolder };

/// The folder in which the file of that name stands: "copie", "" for the watched one.
std::string folderOf(const std::string& name);

/// Stands between this process and the files of one folder, and of the folders in it, as long as it lives: every call
/// of the system that reads or changes them, whoever makes it (the database library, the file writer, the standard
/// library), goes through here. It is written down, and can be made to fail. Syncs are only written down, since no test
/// takes the machine's own power away. One at a time.
class WatchedDisk {
 public:
  explicit WatchedDisk(std::filesystem::path folder);
  ~WatchedDisk();
  WatchedDisk(const WatchedDisk&) = delete;
  WatchedDisk& operator=(const WatchedDisk&) = delete;

  /// The errors that calls give: a full disk and a table of open files without room, or a disk that breaks and a
  /// permission that has gone.
  enum class Errors { Full, Broken };
  /// The `n`-th call from now on, from 1, fails once; of a write half of the bytes arrive all the same.
  void failCall(long n, Errors errors);
  /// The call that failed, if one has.
  std::optional<DiskCall> failed() const { return m_failed; }
  /// All calls so far.
  long calls() const { return m_calls; }

  const DiskLog& log() const { return m_log; }

  // What the calls of the system tell.

  /// True when the file or folder behind the descriptor or path is watched.
  bool watches(int descriptor) const;
  bool watches(const char* path) const;
  /// The error with which this call has to fail, 0 for none.
  int errorFor(DiskCall call);
  void wrote(int descriptor, std::size_t at, const void* bytes, std::size_t count);
  void truncated(int descriptor, std::size_t length);
  void synced(int descriptor);
  void created(int descriptor, const char* path);
  void deleted(const char* path);
  void renamed(const char* from, const char* to);
  void linked(const char* from, const char* to);
  void madeFolder(const char* path);

 private:
  int fileOf(int descriptor) const;
  std::string nameOf(const char* path) const;

  std::filesystem::path m_folder;
  DiskLog m_log;
  std::map<std::string, int> m_names;
  std::map<ino_t, int> m_inodes;
  std::map<ino_t, std::string> m_folders;
  int m_files = 0;
  long m_calls = 0, m_failAt = 0;
  Errors m_errors = Errors::Full;
  std::optional<DiskCall> m_failed;
};

}  // namespace trv5
