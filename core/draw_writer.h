#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/archive.h"
#include "core/database.h"

namespace trv5 {

/// When a draw was written into the archive: `datareg` as "GG/MM/AAAA" and `orareg` as "HH:MM:SS"; "" leaves them NULL.
struct Registration {
  std::string datareg, orareg;
};

/// How a wheel without a text is stored: as not drawn, or as the empty text that a file holds there.
enum class EmptyWheel { Null, Text };

/// Writes draws into an archive, each with its sum, in one transaction: rolled back unless committed. Everything that
/// changes `EstrazioniLotto` goes through here. An archive without sums gets those of all its draws. All functions
/// throw DatabaseError; a date that is none throws UserError.
class DrawWriter {
 public:
  /// Begins the transaction.
  explicit DrawWriter(Database& archive);

  /// Adds the draw, or takes the place of the one of that date.
  void put(const DrawRow& row, const Registration& registered = {});
  /// Adds a draw; throws DatabaseError (Constraint) when there is one of that date, UserError when the archive is full.
  void add(const DrawRow& row, const Registration& registered, EmptyWheel empty = EmptyWheel::Null);
  /// Overwrites the wheels of the draw of that date; false, and nothing is written, when there is none.
  [[nodiscard]] bool correct(const DrawRow& row, const Registration& registered, EmptyWheel empty = EmptyWheel::Null);
  /// True when the archive, as written so far, holds a draw of that date.
  bool has(std::string_view date);
  /// Takes the draw of that date, "GG/MM/AAAA", out of the archive; false when there is none.
  bool remove(std::string_view date);
  /// Takes all draws as they stand: their sums are written anew.
  void writeAllSums();
  void commit() { m_transaction.commit(); }

 private:
  // Prepared at its first use: an update writes thousands of draws by the same statement.
  using Kept = std::optional<Statement>;
  Statement& ready(Kept& statement, const char* sql);
  int writeRow(Statement& statement, const DrawRow& row, const Registration& registered, EmptyWheel empty);
  void writeSum(const DrawRow& row);

  Database& m_archive;
  Database::Transaction m_transaction;
  Kept m_seek, m_insert, m_update, m_putSum;
  std::optional<int> m_draws;  // in the archive, once counted
};

/// One draw in a transaction of its own.
void writeDraw(Database& archive, const DrawRow& row, const Registration& registered = {});
bool deleteDraw(Database& archive, std::string_view date);

}  // namespace trv5
