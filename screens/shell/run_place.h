#pragma once

#include <filesystem>

namespace trv5 {

/// The folder of the executable.
std::filesystem::path programFolder();
/// The main database that the program was shipped with, from which a user's own is made.
std::filesystem::path shippedModel();

}  // namespace trv5
