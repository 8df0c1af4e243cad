#include "core/file_writer.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <system_error>
#include <utility>

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

// A temporary file is named ".<target>.trv5-XXXXXX" and locked by the process that writes it. The lock goes with the
// process, however it ends: a file that can be locked is nobody's any more.
constexpr std::string_view kMark = ".trv5-";
constexpr std::size_t kRandom = 6;

bool hasTemporaryName(std::string_view name) {
  return name.size() > 1 + kMark.size() + kRandom && name.front() == '.' &&
         name.substr(name.size() - kRandom - kMark.size(), kMark.size()) == kMark;
}

void clearLeftFiles(const fs::path& folder) {
  std::error_code error;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
    if (!hasTemporaryName(entry.path().filename().native()) ||
        entry.symlink_status(error).type() != fs::file_type::regular)
      continue;
    const int descriptor = open(entry.path().c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) continue;
    struct stat status {};
    if (fstat(descriptor, &status) == 0 && status.st_uid == geteuid() && flock(descriptor, LOCK_EX | LOCK_NB) == 0)
      unlink(entry.path().c_str());
    close(descriptor);
  }
}

// Makes and locks the temporary file; `name` becomes its path. Negative on failure, as open.
int makeTemporary(const fs::path& target, std::string& name) {
  constexpr std::size_t kLongestName = 255 - 1 - kMark.size() - kRandom;
  const std::string shown = target.filename().string().substr(0, kLongestName);
  for (;;) {
    name = (target.parent_path() / fmt::format(".{}{}XXXXXX", shown, kMark)).string();
    const int descriptor = mkostemp(name.data(), O_CLOEXEC);
    if (descriptor < 0) return descriptor;
    flock(descriptor, LOCK_EX);
    // Another program may have taken it for one left behind before it was locked.
    struct stat status {};
    if (fstat(descriptor, &status) != 0 || status.st_nlink > 0) return descriptor;
    close(descriptor);
  }
}

// The name itself is on the disk only when its folder is.
void syncFolder(const fs::path& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

UserError notWritten(const fs::path& target, int error) {
  return UserError(fmt::format("Il file \"{}\" non può essere scritto: {}.", target.string(), reasonOf(error)),
                   "Avviso", std::strerror(error));
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
    case ELOOP:
      return "i collegamenti girano in tondo";
    case EBUSY:
    case ETXTBSY:
    case EAGAIN:
      return "il file è occupato da un altro programma";
    case EMFILE:
    case ENFILE:
      return "sono aperti troppi file";
    case ENOMEM:
      return "la memoria non basta";
    case ENXIO:
    case ENODEV:
      return "il dispositivo non c'è";
    case EINVAL:
    case ENOTSUP:
      return "il disco non ammette questa operazione";
    case ESTALE:
    case ETIMEDOUT:
    case ENOTCONN:
    case EHOSTDOWN:
      return "il disco di rete non risponde";
    default:
      return fmt::format("il sistema dà l'errore {}", error);
  }
}

PendingFile::PendingFile(fs::path target) : m_target(behindLinks(target)) {
  refuseSpecialFile(m_target);  // before any work is done for it
  clearLeftFiles(m_target.parent_path());
  std::string name;
  m_descriptor = makeTemporary(m_target, name);
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
  // Some disks tell of a failed write only at the close; the lock stays with the other descriptor.
  const int written = std::exchange(m_descriptor, fcntl(m_descriptor, F_DUPFD_CLOEXEC, 0));
  if (close(written) != 0) fail(errno);
  std::error_code unknown;
  if (existing == Existing::Refuse && fs::exists(fs::symlink_status(m_target, unknown))) fail(EEXIST);
  const ReplacedFile old(m_target);
  if (existing == Existing::Replace) {
    if (rename(m_path.c_str(), m_target.c_str()) != 0) fail(errno);
  } else {
    // Unlike rename, link never takes the place of a file that appeared meanwhile. Disks that know no links (a USB
    // stick) get a rename after a last look.
    if (link(m_path.c_str(), m_target.c_str()) == 0) {
      unlink(m_path.c_str());
    } else if (errno == EEXIST || fs::exists(m_target, unknown)) {
      fail(EEXIST);
    } else if (rename(m_path.c_str(), m_target.c_str()) != 0) {
      fail(errno);
    }
  }
  m_path.clear();
  syncFolder(m_target.parent_path());
}

void PendingFile::fail(int error) const {
  throw notWritten(m_target, error);
}

void writeFile(const fs::path& target, std::string_view bytes, Existing existing) {
  PendingFile file(target);
  file.write(bytes);
  file.commit(existing);
}

void takePlace(const fs::path& file, const fs::path& target) {
  if (rename(file.c_str(), target.c_str()) != 0) throw notWritten(target, errno);
  syncFolder(target.parent_path());
}

void makeFolder(const fs::path& folder) {
  if (mkdir(folder.c_str(), 0777) == 0) return syncFolder(folder.parent_path());
  const int error = errno;
  std::error_code unknown;
  if (error == EEXIST && fs::is_directory(folder, unknown)) return;
  throw UserError(fmt::format("La cartella \"{}\" non può essere creata: {}.", folder.string(), reasonOf(error)),
                  "Avviso", std::strerror(error));
}

std::string readFile(const fs::path& file, std::size_t maxBytes) {
  const auto refuse = [&](const std::string& reason) {
    throw UserError(fmt::format("Il file \"{}\" non può essere letto: {}.", file.string(), reason));
  };
  const auto fail = [&](int error) { refuse(reasonOf(error)); };
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
    if (bytes.size() > maxBytes) {
      close(descriptor);
      refuse(fmt::format("supera i {} byte che si possono leggere", maxBytes));
    }
  }
}

}  // namespace trv5
