#include "core/file_writer.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <system_error>

#include "core/errors.h"
#include "core/replaced_file.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kReadWriteForAll = 0666;

mode_t currentMask() {
  const mode_t mask = umask(0);
  umask(mask);
  return mask;
}

// A link is followed: what it points to is replaced, the link stays. One that leads nowhere is given as it is.
fs::path behindLinks(const fs::path& target) {
  std::error_code error;
  const fs::path real = fs::is_symlink(target, error) ? fs::canonical(target, error) : fs::path();
  return real.empty() ? fs::absolute(target) : real;
}

// The name itself is on the disk only when its folder is.
void syncFolder(const fs::path& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

}  // namespace

std::string reasonOf(int error) {
  switch (error) {
    case ENOSPC:
    case EDQUOT:
      return "il disco è pieno";
    case EFBIG:
      return "il file supera la grandezza ammessa";
    case EACCES:
    case EPERM:
      return "il permesso è negato";
    case EROFS:
      return "il disco è in sola lettura";
    case ENOENT:
      return "il file o la cartella non esiste";
    case EISDIR:
      return "è una cartella";
    case ENOTDIR:
      return "una parte del percorso non è una cartella";
    case EEXIST:
      return "il file esiste già";
    case EIO:
      return "il disco dà un errore";
    case ENAMETOOLONG:
      return "il nome è troppo lungo";
    default:
      return std::strerror(error);
  }
}

PendingFile::PendingFile(fs::path target) : m_target(behindLinks(target)) {
  refuseSpecialFile(m_target);  // before any work is done for it
  std::string name = (m_target.parent_path() / fmt::format(".{}.XXXXXX", m_target.filename().string())).string();
  m_descriptor = mkostemp(name.data(), O_CLOEXEC);
  if (m_descriptor < 0) fail(errno);
  m_path = name;
  struct stat old {};
  const mode_t mode = stat(m_target.c_str(), &old) == 0 ? old.st_mode & 07777 : kReadWriteForAll & ~currentMask();
  if (fchmod(m_descriptor, mode) != 0) {
    const int error = errno;
    close(m_descriptor);
    unlink(m_path.c_str());
    fail(error);
  }
}

PendingFile::~PendingFile() {
  if (m_descriptor >= 0) close(m_descriptor);
  if (!m_path.empty()) unlink(m_path.c_str());
}

void PendingFile::write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(m_descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) fail(errno);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

void PendingFile::commit(Existing existing) {
  if (fsync(m_descriptor) != 0) fail(errno);
  const int descriptor = m_descriptor;
  m_descriptor = -1;
  if (close(descriptor) != 0) fail(errno);  // some disks tell of a failed write only here
  if (existing == Existing::Refuse && fs::exists(fs::symlink_status(m_target))) fail(EEXIST);
  const ReplacedFile old(m_target);
  if (existing == Existing::Replace) {
    if (rename(m_path.c_str(), m_target.c_str()) != 0) fail(errno);
  } else {
    // Unlike rename, link never takes the place of a file that appeared meanwhile. Disks that know no links (a USB
    // stick) get a rename after a last look.
    if (link(m_path.c_str(), m_target.c_str()) == 0) {
      unlink(m_path.c_str());
    } else if (errno == EEXIST || fs::exists(m_target)) {
      fail(EEXIST);
    } else if (rename(m_path.c_str(), m_target.c_str()) != 0) {
      fail(errno);
    }
  }
  m_path.clear();
  syncFolder(m_target.parent_path());
}

void PendingFile::fail(int error) const {
  throw UserError(fmt::format("Il file \"{}\" non può essere scritto: {}.", m_target.string(), reasonOf(error)));
}

void writeFile(const fs::path& target, std::string_view bytes, Existing existing) {
  PendingFile file(target);
  file.write(bytes);
  file.commit(existing);
}

std::string readFile(const fs::path& file) {
  const auto fail = [&](int error) {
    throw UserError(fmt::format("Il file \"{}\" non può essere letto: {}.", file.string(), reasonOf(error)));
  };
  const int descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) fail(errno);
  std::string bytes;
  std::array<char, 65536> block;
  for (;;) {
    const ssize_t got = read(descriptor, block.data(), block.size());
    if (got < 0 && errno == EINTR) continue;
    const int error = errno;
    if (got <= 0) close(descriptor);
    if (got < 0) fail(error);
    if (got == 0) return bytes;
    bytes.append(block.data(), static_cast<std::size_t>(got));
  }
}

}  // namespace trv5
