#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace trv5 {

/// The four tables of formulas of a method.
enum class Table : std::uint8_t { Ambate, Ambi, Terni, Lunghetta };

/// What holds for one table of formulas. Rules, grids and buttons take it from here, so that the tables differ in data
/// alone.
struct TableTraits {
  Table table;
  std::string_view caption;  ///< as the user reads it
  int code;                  ///< given code: `TipoVerifica`, the index of its `Cmd_LaSorte`, column 21 of its rows
  std::string_view section;  ///< its name in `Fg_Stat`
  int offset;                ///< its cases in `NumeriInGioco` begin behind this index
  int numbersColumn;         ///< its column of `Fg15`
  int markColumn;            ///< column of `FgEv` that tells the cases it covers
  int mostFormulas;          ///< rows that it takes
  /// A forecast joins one number of each of so many tables, from the ambate on; 0: all its own numbers are one
  /// forecast.
  int joinedTables;
  bool marksBeyondLimit;        ///< whether hits beyond the limit are painted in `FgEv`
  bool clearsMarksBeyondLimit;  ///< whether "oltre limite" first clears its column of `FgEv`
};

inline constexpr std::array<TableTraits, 4> kTables = {
    {{Table::Ambate, "Ambate", 1, "1N", 0, 1, 17, 5, 1, false, false},
     {Table::Ambi, "Ambi", 2, "2N", 50, 2, 18, 5, 2, true, true},
     {Table::Terni, "Terni", 3, "3N", 100, 3, 19, 5, 3, true, true},
     {Table::Lunghetta, "Lunghetta", 6, "LU", 250, 6, 22, 10, 0, false, true}}};

constexpr std::size_t indexOf(Table table) {
  return static_cast<std::size_t>(table);
}

constexpr const TableTraits& traitsOf(Table table) {
  return kTables[indexOf(table)];
}

/// The table of a given code 1, 2, 3 or 6; nothing for another.
constexpr std::optional<Table> tableOfCode(int code) {
  for (const TableTraits& traits : kTables)
    if (traits.code == code) return traits.table;
  return std::nullopt;
}

/// What is kept for each table.
template <class Value>
using ByTable = std::array<Value, kTables.size()>;

}  // namespace trv5
