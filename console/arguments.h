#pragma once

#include <nlohmann/json_fwd.hpp>
#include <stdexcept>
#include <string>

namespace trv5 {

/// A line that can't be done; its text, in Italian, is the error of the answer.
class LineError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Argument `i` of a line, from 1; throws LineError when it is missing or of another type.
std::string textArgument(const nlohmann::json& line, std::size_t i);
int numberArgument(const nlohmann::json& line, std::size_t i);

/// A whole number; throws LineError for another type and for one that an int can't hold.
int wholeNumber(const nlohmann::json& value);

}  // namespace trv5
