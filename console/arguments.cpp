#include "console/arguments.h"

#include <limits>
#include <nlohmann/json.hpp>

namespace trv5 {

std::string textArgument(const nlohmann::json& line, std::size_t i) {
  if (i >= line.size() || !line[i].is_string()) throw LineError("argomento " + std::to_string(i) + ": manca un testo");
  return line[i].get<std::string>();
}

int numberArgument(const nlohmann::json& line, std::size_t i) {
  if (i >= line.size() || !line[i].is_number_integer())
    throw LineError("argomento " + std::to_string(i) + ": manca un numero intero");
  return wholeNumber(line[i]);
}

int wholeNumber(const nlohmann::json& value) {
  if (!value.is_number_integer()) throw LineError("il valore dev'essere un numero intero");
  using Limits = std::numeric_limits<int>;
  // What lies beyond the signed range is kept without a sign, and would come back as another number.
  const bool fits = value.is_number_unsigned()
                        ? value.get<nlohmann::json::number_unsigned_t>() <= static_cast<unsigned>(Limits::max())
                        : value.get<nlohmann::json::number_integer_t>() >= Limits::min() &&
                              value.get<nlohmann::json::number_integer_t>() <= Limits::max();
  if (!fits) throw LineError("numero fuori limite: " + value.dump());
  return value.get<int>();
}

}  // namespace trv5
