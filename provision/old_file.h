#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "provision/bounded_process.h"

namespace trv5 {

/// True for a database in the Jet format of older installations, told by its first bytes. False for any other file,
/// also for one that can't be read.
bool isOldFile(const std::filesystem::path& file);

/// A table of such a file. Nothing in a cell is NULL; numbers and dates come as text, dates as "AAAA-MM-GG HH:MM:SS".
struct OldTable {
  using Row = std::vector<std::optional<std::string>>;

  std::vector<std::string> columns;
  std::vector<Row> rows;  ///< each as long as `columns`

  /// The position of a column, without regard to case; nothing when there is none.
  std::optional<std::size_t> column(std::string_view name) const;
};

/// Reads a table from comma-separated text: the names first, texts in quotes doubled inside, an empty cell without
/// quotes is NULL. Throws UserError when the text is cut or a row has another number of cells.
OldTable parseOldTable(std::string_view text);

/// The names of the tables; throws UserError when the file can't be read or the reader (package mdbtools) is missing.
/// The reader runs in a process of its own, within these bounds, and never writes.
std::vector<std::string> oldTableNames(const std::filesystem::path& file, const ProcessLimits& limits = {});
OldTable readOldTable(const std::filesystem::path& file, const std::string& table, const ProcessLimits& limits = {});

}  // namespace trv5
