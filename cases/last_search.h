#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "method/method.h"

namespace trv5 {

/// A search of ambate as it was run: what can be run again on other cases of its situation.
struct LastSearch {
  std::string name = {};  ///< for the user: "Numeri 7-17-77-90 a FI · 2N 1R · N1+N2 · 9 colpi"
  Situation situation = {};
  AmbataRequest request = {};
  /// With "Casi scoperti": the method, and the table of it, whose cases were left out.
  std::optional<Method> coveredBy = {};
  Table coveredTable = Table::Ambate;
  std::uint64_t archive = 0;  ///< the load of the archive that it was run on

  bool operator==(const LastSearch&) const = default;
};

}  // namespace trv5
