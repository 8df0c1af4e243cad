#pragma once

#include <string>

#include "core/archive.h"

namespace trv5 {

// The files for other programs, field by field as they are told.
std::string plainDatiIii(const Archive& archive);
std::string plainRuotafast(const Archive& archive);
std::string plainNazionale(const Archive& archive);

}  // namespace trv5
