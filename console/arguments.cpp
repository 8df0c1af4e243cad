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
  return line[i].get<int>();
}

}  // namespace trv5
