#pragma once

#include <filesystem>

#include "maintenance/backups.h"

namespace trv5 {

class Archivio;

/// Copies the archive before an act writes draws. True when the act may go on: the copy is there, or it could not be
/// made and the user wants to go on without one. A read-only archive gets none: the act won't be done, and says so
/// itself. Throws UserError when the archive is held by another program. `spared`: a copy that the act still needs.
[[nodiscard]] bool CopiaPrima(Archivio& a, BackupReason reason, const std::filesystem::path& spared = {});

}  // namespace trv5
