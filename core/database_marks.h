#pragma once

#include <cstdint>

#include "core/database.h"

namespace trv5 {

/// The `application_id` of each kind of file: the letters "TRVm", "TRVa", "TRVe".
constexpr std::int32_t applicationId(FileKind kind) {
  constexpr std::int32_t kFamily = 'T' << 24 | 'R' << 16 | 'V' << 8;
  switch (kind) {
    case FileKind::Main:
      return kFamily | 'm';
    case FileKind::Archive:
      return kFamily | 'a';
    case FileKind::Export:
      return kFamily | 'e';
  }
  return 0;
}

/// The `user_version` of the files that this program makes. A file of a later version isn't opened.
inline constexpr int kSchemaVersion = 1;

}  // namespace trv5
