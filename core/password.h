#pragma once

#include <string>
#include <string_view>

namespace trv5 {

/// A salted hash of a file's password, as it is kept in the file.
std::string passwordHash(std::string_view password);
/// True when the hash was made of this password by passwordHash().
bool passwordMatches(const std::string& hash, std::string_view password);

}  // namespace trv5
