#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace trv5 {

/// The largest text that is read, in bytes: some thirty times the whole history of draws.
inline constexpr std::size_t kMaxTextBytes = std::size_t{64} << 20;

/// The whole contents of a text file that is plain, packed by gzip, or the only file of a zip archive; which one it is
/// is told by its first bytes, not by its name. Throws UserError when the file can't be read, is damaged or cut off,
/// holds no file or more than one, or unpacks to more than `maxBytes`.
std::string readCompressedText(const std::filesystem::path& path, std::size_t maxBytes = kMaxTextBytes);

}  // namespace trv5
