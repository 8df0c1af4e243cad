#pragma once

#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>

namespace trv5 {

/// A disk on which no file grows beyond `bytes`: writes behind that fail, as on a full disk. Ends with its scope.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &m_before);
    m_signal = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, m_before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &m_before);
    std::signal(SIGXFSZ, m_signal);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit m_before{};
  void (*m_signal)(int) = nullptr;
};

/// Takes the write permission from a folder and the files in it (or from the folder alone), also from the super-user,
/// who steps down to an ordinary one. Ends with its scope.
class ReadOnlyFolder {
 public:
  enum class Files { ReadOnly, Writable };
  explicit ReadOnlyFolder(const std::filesystem::path& folder, Files files = Files::ReadOnly) : m_folder(folder) {
    using std::filesystem::perms;
    const perms read = perms::owner_read | perms::group_read | perms::others_read;
    const perms write = perms::owner_write | perms::group_write | perms::others_write;
    for (const auto& entry : std::filesystem::directory_iterator(m_folder))
      std::filesystem::permissions(entry.path(), files == Files::ReadOnly ? read : read | write);
    std::filesystem::permissions(m_folder, read | perms::owner_exec | perms::group_exec | perms::others_exec);
    if (geteuid() == 0 && seteuid(kNobody) == 0) m_steppedDown = true;
  }
  ~ReadOnlyFolder() {
    using std::filesystem::perms;
    if (m_steppedDown && seteuid(0) != 0) std::abort();
    std::filesystem::permissions(m_folder, perms::owner_all);
    for (const auto& entry : std::filesystem::directory_iterator(m_folder))
      std::filesystem::permissions(entry.path(), perms::owner_read | perms::owner_write);
  }
  ReadOnlyFolder(const ReadOnlyFolder&) = delete;
  ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
  std::filesystem::path m_folder;
  bool m_steppedDown = false;
};

}  // namespace trv5
