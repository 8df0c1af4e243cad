#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace trv5 {

/// The value of a field: a number, or a text.
using FieldValue = std::variant<std::int64_t, std::string>;

struct Field {
  std::string_view name;
  FieldValue value;
};

/// The cells that a row of a formula table keeps: its columns 1 to 20, in order.
inline constexpr std::array<std::string_view, 20> kDetailFields = {
    "R1",  "Ru1",  "P1", "R2", "Ru2", "P2",      "R3",          "Ru3",   "P3",    "Operatore",
    "Fix", "Pres", "CC", "Nr", "Qn",  "Formula", "Alterazione", "Ruota", "Ruote", "Ritardo"};

/// A row of a formula table as it is stored.
struct ConfigurationRow {
  std::int64_t grid = 0;  ///< the table: 1 ambate, 2 ambi, 3 terni, 6 lunghetta; others are passed over
  std::int64_t row = 0;   ///< its place in the table, from 1
  std::array<std::string, kDetailFields.size()> cells;
};

/// A saved method: the fields of its row of `Elenco_Memo`, but for the key, and its rows of `Elenco_Dett`.
struct Configuration {
  std::vector<Field> head;
  std::vector<ConfigurationRow> rows;

  /// The value of that field; throws UserError when there is none.
  const FieldValue& value(std::string_view field) const;
};

/// The longest denomination, in characters.
inline constexpr int kLongestDenomination = 100;

}  // namespace trv5
