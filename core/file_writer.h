#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace trv5 {

/// What happens to a file that stands where a new one is to appear.
enum class Existing { Refuse, Replace };

/// A file on its way: a temporary file beside the target, in the same folder and so on the same disk. It becomes the
/// target as a whole at commit(), after everything has been written and synced; without it the temporary file vanishes
/// and the target stays as it was. What a killed program left of such files is cleared away by the next one in the same
/// folder. A link to a file stays, the file it leads to is replaced; a folder, a device, a pipe
/// and a link that leads nowhere are refused, and so is a file that another program holds. All failures throw UserError
/// and name the target.
class PendingFile {
 public:
  explicit PendingFile(std::filesystem::path target);
  ~PendingFile();
  PendingFile(const PendingFile&) = delete;
  PendingFile& operator=(const PendingFile&) = delete;

  /// Where the contents go until commit(), for writers that want a path of their own (a database).
  const std::filesystem::path& path() const { return m_path; }
  void write(std::string_view bytes);
  /// Syncs the contents and gives the file its name; see ReplacedFile for what happens to the old one. Throws UserError
  /// when the target exists and `existing` refuses.
  void commit(Existing existing);

 private:
  [[noreturn]] void fail(int error) const;

  std::filesystem::path m_target, m_path;
  int m_descriptor = -1;
};

/// Writes a whole file, whole or not at all. Every file that the program writes goes through here or through
/// PendingFile, databases in use excepted.
void writeFile(const std::filesystem::path& target, std::string_view bytes, Existing existing = Existing::Replace);

/// Gives a finished file the place of `target`, in the same folder, whether or not one stands there; what the file
/// holds has to be synced. On the disk once it returns. Throws UserError and names the target.
void takePlace(const std::filesystem::path& file, const std::filesystem::path& target);

/// Makes a folder unless it is there; it is on the disk once this returns. Throws UserError and names it.
void makeFolder(const std::filesystem::path& folder);

/// The most that is read of a file where nothing else is told, in bytes.
inline constexpr std::size_t kLargestRead = std::size_t{256} << 20;

/// The contents of a file, or of a pipe up to its end; throws UserError naming it when it can't be read or goes on
/// beyond `maxBytes`.
std::string readFile(const std::filesystem::path& file, std::size_t maxBytes = kLargestRead);

/// The reason behind an errno value, in Italian.
std::string reasonOf(int error);

}  // namespace trv5
