#include "survival/watched_disk.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <stdexcept>
#include <utility>

#include "support/temp_folder.h"
#include "survival/system_calls.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;
using Kind = DiskEvent::Kind;

ino_t inodeOf(const fs::path& file) {
  struct stat status {};
  return stat(file.c_str(), &status) == 0 ? status.st_ino : 0;
}

}  // namespace

DiskImage imageOf(const fs::path& folder) {
  DiskImage image;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
    if (entry.is_regular_file()) image[fs::relative(entry.path(), folder).string()] = readBytes(entry.path());
  return image;
}

void layImage(const fs::path& folder, const DiskImage& image) {
  std::vector<fs::path> there;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) there.push_back(entry.path());
  for (const fs::path& path : there) fs::remove_all(path);
  for (const auto& [name, bytes] : image) {
    fs::create_directories((folder / name).parent_path());
    writeBytes(folder / name, bytes);
  }
}

std::string folderOf(const std::string& name) {
  return fs::path(name).parent_path().string();
}

WatchedDisk::WatchedDisk(fs::path folder) : m_folder(std::move(folder)) {
  m_log.before = imageOf(m_folder);
  for (const auto& [name, bytes] : m_log.before) {
    m_names[name] = m_files;
    m_inodes[inodeOf(m_folder / name)] = m_files++;
  }
  m_log.files = m_names;
  m_folders[inodeOf(m_folder)] = "";
  for (const fs::directory_entry& entry : fs::directory_iterator(m_folder))
    if (entry.is_directory()) m_folders[inodeOf(entry.path())] = entry.path().filename().string();
  if (std::exchange(watchedDisk(), this) != nullptr) throw std::logic_error("two watched disks");
}

WatchedDisk::~WatchedDisk() {
  watchedDisk() = nullptr;
}

void WatchedDisk::failCall(long n, Errors errors) {
  m_failAt = m_calls + n;
  m_errors = errors;
  m_failed.reset();
}

int WatchedDisk::errorFor(DiskCall call) {
  if (++m_calls != m_failAt) return 0;
  m_failed = call;
  const bool full = m_errors == Errors::Full;
  switch (call) {
    case DiskCall::Write:
    case DiskCall::Truncate:
      return full ? ENOSPC : EIO;
    case DiskCall::Open:
      return full ? EMFILE : EACCES;
    case DiskCall::Rename:
    case DiskCall::MakeFolder:
      return full ? ENOSPC : EACCES;
    default:
      return EIO;
  }
}

bool WatchedDisk::watches(int descriptor) const {
  struct stat status {};
  if (fstat(descriptor, &status) != 0) return false;
  return S_ISDIR(status.st_mode) ? m_folders.count(status.st_ino) > 0 : m_inodes.count(status.st_ino) > 0;
}

bool WatchedDisk::watches(const char* path) const {
  const fs::path file(path);
  return file == m_folder || file.parent_path() == m_folder || file.parent_path().parent_path() == m_folder;
}

std::string WatchedDisk::nameOf(const char* path) const {
  return fs::path(path).lexically_relative(m_folder).string();
}

int WatchedDisk::fileOf(int descriptor) const {
  struct stat status {};
  fstat(descriptor, &status);
  return m_inodes.at(status.st_ino);
}

void WatchedDisk::wrote(int descriptor, std::size_t at, const void* bytes, std::size_t count) {
  m_log.events.push_back({.kind = Kind::Write,
                          .file = fileOf(descriptor),
                          .at = at,
                          .bytes = std::string(static_cast<const char*>(bytes), count)});
}

void WatchedDisk::truncated(int descriptor, std::size_t length) {
  m_log.events.push_back({.kind = Kind::Truncate, .file = fileOf(descriptor), .at = length});
}

void WatchedDisk::synced(int descriptor) {
  struct stat status {};
  fstat(descriptor, &status);
  if (S_ISDIR(status.st_mode))
    m_log.events.push_back({.kind = Kind::SyncFolder, .name = m_folders.at(status.st_ino)});
  else
    m_log.events.push_back({.kind = Kind::Sync, .file = fileOf(descriptor)});
}

void WatchedDisk::created(int descriptor, const char* path) {
  struct stat status {};
  fstat(descriptor, &status);
  m_inodes[status.st_ino] = m_files;  // the number of a file that has gone may come again
  m_names[nameOf(path)] = m_files;
  m_log.events.push_back({.kind = Kind::Create, .file = m_files++, .name = nameOf(path)});
}

void WatchedDisk::deleted(const char* path) {
  m_log.events.push_back({.kind = Kind::Delete, .file = m_names.at(nameOf(path)), .name = nameOf(path)});
  m_names.erase(nameOf(path));
}

void WatchedDisk::renamed(const char* from, const char* to) {
  const int file = m_names.at(nameOf(from));
  m_names.erase(nameOf(from));
  m_names[nameOf(to)] = file;
  m_log.events.push_back({.kind = Kind::Rename, .file = file, .name = nameOf(to), .formerName = nameOf(from)});
}

void WatchedDisk::linked(const char* from, const char* to) {
  const int file = m_names.at(nameOf(from));
  m_names[nameOf(to)] = file;
  m_log.events.push_back({.kind = Kind::Create, .file = file, .name = nameOf(to)});
}

void WatchedDisk::madeFolder(const char* path) {
  m_folders[inodeOf(path)] = nameOf(path);
  m_log.events.push_back({.kind = Kind::MakeFolder, .name = nameOf(path)});
}

}  // namespace trv5
