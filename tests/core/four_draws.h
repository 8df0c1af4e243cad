#pragma once

#include <vector>

#include "support/archive_builder.h"

namespace trv5 {

/// Draws of two years and two months of one, each of one wheel.
inline std::vector<DrawRow> fourDraws() {
  return {drawOf("07/01/1939", {{"BA", {58, 22, 47, 49, 69}}}), drawOf("14/01/1939", {{"RO", {1, 2, 3, 4, 5}}}),
          drawOf("04/02/1939", {{"NZ", {90, 89, 88, 87, 86}}}), drawOf("06/01/1940", {{"VE", {11, 12, 13, 14, 15}}})};
}

}  // namespace trv5
