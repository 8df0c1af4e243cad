#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace trv5 {

class Database;
class Grid;

/// The rows of `ParametriProgramma`, found by name without regard to case.
class Parameters {
 public:
  explicit Parameters(Database& database) : m_database(database) {}

  /// `Valore1` of the row; nothing when there is no such row.
  std::optional<std::string> Valore1(std::string_view parameter) const;
  /// Sets `Valore1` of an existing row and keeps the row's own spelling of the name. A missing row isn't made: false.
  bool setValore1(std::string_view parameter, std::string_view value);
  /// Sets `Valore1`, making the row where there is none. Inside a transaction of the caller.
  void put(std::string_view parameter, std::string_view value);

 private:
  Database& m_database;
};

/// Fills `FgP` with all the parameters in the order of their names: columns 1 to 3, the fixed column 0 empty.
void fillParameters(const Database& database, Grid& FgP);

/// `Valore1` of the row of `FgP` with exactly this name, letter by letter, in column 1.
std::optional<std::string> exactParameter(const Grid& FgP, std::string_view parameter);

}  // namespace trv5
