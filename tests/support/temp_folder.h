#pragma once

#include <filesystem>
#include <string>

namespace trv5 {

/// A fresh folder that goes away with its contents at the end of the test.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return m_path; }
  std::filesystem::path operator/(const std::string& name) const { return m_path / name; }

 private:
  std::filesystem::path m_path;
};

/// The bytes of a file; throws std::runtime_error when it can't be read.
std::string readBytes(const std::filesystem::path& file);
/// Writes a file for a test.
void writeBytes(const std::filesystem::path& file, const std::string& bytes);

}  // namespace trv5
