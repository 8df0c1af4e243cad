#include "survival/system_calls.h"

#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstring>

#include "survival/watched_disk.h"

namespace trv5 {

WatchedDisk*& watchedDisk() {
  static WatchedDisk* disk = nullptr;
  return disk;
}

namespace {

bool syncsAreFree = false;

template <class Place>
WatchedDisk* watcherOf(Place place) {
  const int error = errno;  // what looks at a place must not be seen
  WatchedDisk* const disk = watchedDisk();
  WatchedDisk* const watcher = disk != nullptr && disk->watches(place) ? disk : nullptr;
  errno = error;
  return watcher;
}

// True when the call fails, its error set.
bool fails(WatchedDisk* disk, DiskCall call) {
  const int error = disk == nullptr ? 0 : disk->errorFor(call);
  if (error != 0) errno = error;
  return error != 0;
}

int openFile(const char* path, int flags, mode_t mode) {
  WatchedDisk* const disk = watcherOf(path);
  if (fails(disk, DiskCall::Open)) return -1;
  const bool fresh = disk != nullptr && (flags & O_CREAT) != 0 && syscall(SYS_access, path, F_OK) != 0;
  const auto descriptor = static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
  if (disk == nullptr || descriptor < 0) return descriptor;
  if (fresh)
    disk->created(descriptor, path);
  else if ((flags & O_TRUNC) != 0)
    disk->truncated(descriptor, 0);
  return descriptor;
}

ssize_t writeAt(int descriptor, const void* bytes, std::size_t count, off64_t at) {
  WatchedDisk* const disk = watcherOf(descriptor);
  const bool failing = fails(disk, DiskCall::Write);
  const int error = errno;
  const auto written = static_cast<ssize_t>(syscall(SYS_pwrite64, descriptor, bytes, failing ? count / 2 : count, at));
  if (disk != nullptr && written > 0)
    disk->wrote(descriptor, static_cast<std::size_t>(at), bytes, static_cast<std::size_t>(written));
  if (!failing) return written;
  errno = error;
  return -1;
}

int cutFile(int descriptor, off64_t length) {
  WatchedDisk* const disk = watcherOf(descriptor);
  if (fails(disk, DiskCall::Truncate)) return -1;
  const auto done = static_cast<int>(syscall(SYS_ftruncate, descriptor, length));
  if (disk != nullptr && done == 0) disk->truncated(descriptor, static_cast<std::size_t>(length));
  return done;
}

int syncFile(int descriptor, long call) {
  WatchedDisk* const disk = watcherOf(descriptor);
  if (disk == nullptr) return syncsAreFree ? 0 : static_cast<int>(syscall(call, descriptor));
  if (fails(disk, DiskCall::Sync)) return -1;
  disk->synced(descriptor);
  return 0;
}

// The mode of a new file is the argument behind the flags.
mode_t modeIn(va_list rest, int flags) {
  return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
}

}  // namespace

FreeSyncs::FreeSyncs() {
  syncsAreFree = true;
}

FreeSyncs::~FreeSyncs() {
  syncsAreFree = false;
}

}  // namespace trv5

using trv5::DiskCall;

extern "C" {

int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = trv5::modeIn(rest, flags);
  va_end(rest);
  return trv5::openFile(path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = trv5::modeIn(rest, flags);
  va_end(rest);
  return trv5::openFile(path, flags, mode);
}

int mkostemp(char* name, int flags) {
  char* const end = name + std::strlen(name) - 6;
  for (unsigned attempt = 0;; ++attempt) {
    std::snprintf(end, 7, "%06x", (static_cast<unsigned>(getpid()) * 61 + attempt) & 0xFFFFFFU);
    const int descriptor = trv5::openFile(name, flags | O_RDWR | O_CREAT | O_EXCL, 0600);
    if (descriptor >= 0 || errno != EEXIST) return descriptor;
  }
}

ssize_t read(int descriptor, void* bytes, std::size_t count) {
  if (trv5::fails(trv5::watcherOf(descriptor), DiskCall::Read)) return -1;
  return static_cast<ssize_t>(syscall(SYS_read, descriptor, bytes, count));
}

ssize_t pread64(int descriptor, void* bytes, std::size_t count, off64_t at) {
  if (trv5::fails(trv5::watcherOf(descriptor), DiskCall::Read)) return -1;
  return static_cast<ssize_t>(syscall(SYS_pread64, descriptor, bytes, count, at));
}

ssize_t write(int descriptor, const void* bytes, std::size_t count) {
  if (trv5::watcherOf(descriptor) == nullptr) return static_cast<ssize_t>(syscall(SYS_write, descriptor, bytes, count));
  const off64_t at = lseek(descriptor, 0, SEEK_CUR);
  const ssize_t written = trv5::writeAt(descriptor, bytes, count, at);
  if (written > 0) lseek(descriptor, at + written, SEEK_SET);
  return written;
}

ssize_t pwrite64(int descriptor, const void* bytes, std::size_t count, off64_t at) {
  return trv5::writeAt(descriptor, bytes, count, at);
}

int ftruncate(int descriptor, off_t length) noexcept {
  return trv5::cutFile(descriptor, length);
}

int ftruncate64(int descriptor, off64_t length) noexcept {
  return trv5::cutFile(descriptor, length);
}

int fsync(int descriptor) {
  return trv5::syncFile(descriptor, SYS_fsync);
}

int fdatasync(int descriptor) {
  return trv5::syncFile(descriptor, SYS_fdatasync);
}

int unlink(const char* path) noexcept {
  trv5::WatchedDisk* const disk = trv5::watcherOf(path);
  if (trv5::fails(disk, DiskCall::Delete)) return -1;
  const auto done = static_cast<int>(syscall(SYS_unlink, path));
  if (disk != nullptr && done == 0) disk->deleted(path);
  return done;
}

// The library itself unlinks by a way of its own.
int remove(const char* path) noexcept {
  if (trv5::watcherOf(path) != nullptr) return unlink(path);
  if (syscall(SYS_unlink, path) == 0) return 0;
  return errno == EISDIR ? static_cast<int>(syscall(SYS_rmdir, path)) : -1;
}

int mkdir(const char* path, mode_t mode) noexcept {
  trv5::WatchedDisk* const disk = trv5::watcherOf(path);
  if (trv5::fails(disk, DiskCall::MakeFolder)) return -1;
  const auto done = static_cast<int>(syscall(SYS_mkdir, path, mode));
  if (disk != nullptr && done == 0) disk->madeFolder(path);
  return done;
}

int rename(const char* from, const char* to) noexcept {
  trv5::WatchedDisk* const disk = trv5::watcherOf(to);
  if (trv5::fails(disk, DiskCall::Rename)) return -1;
  const auto done = static_cast<int>(syscall(SYS_rename, from, to));
  if (disk != nullptr && done == 0) disk->renamed(from, to);
  return done;
}

int link(const char* from, const char* to) noexcept {
  trv5::WatchedDisk* const disk = trv5::watcherOf(to);
  if (trv5::fails(disk, DiskCall::Rename)) return -1;
  const auto done = static_cast<int>(syscall(SYS_link, from, to));
  if (disk != nullptr && done == 0) disk->linked(from, to);
  return done;
}

}  // extern "C"
