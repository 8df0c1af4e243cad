#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "configs/configuration.h"
#include "configs/query_rows.h"
#include "core/database.h"

namespace trv5 {

/// Adds a configuration, head and rows in one transaction; returns its key, higher than all before. Throws UserError
/// when the denomination is empty, too long or there already, in other letters' case too, and when the file can't be
/// written. Calls `headWritten` between the two.
std::int64_t saveConfiguration(
    Database& database, const Configuration& configuration, const std::function<void()>& headWritten = [] {});

/// All configurations in the order of their names: the key as "Cod", then "Denominazione", "Estraz" and the other
/// fields. Throws UserError, also where the database has no field `DDS`.
QueryRows listConfigurations(const Database& database);

/// The named fields of the head, an empty one (NULL) as an empty text; nothing when there is no such key. Throws
/// UserError when a field is lacking.
std::optional<std::vector<Field>> loadHead(const Database& database, std::int64_t key,
                                           const std::vector<std::string_view>& fields);

/// The stored rows of a configuration by table and place, with the key of the row and of its head in front.
QueryRows loadRows(const Database& database, std::int64_t key);

/// The values of such an answer. Throws UserError when a field is lacking.
std::vector<ConfigurationRow> rowsOf(const QueryRows& answer);

/// Removes a configuration, and its rows with it; false when there is no such key.
bool eraseConfiguration(Database& database, std::int64_t key);

/// True when one of that name is there, in whatever letters' case.
bool hasDenomination(const Database& database, std::string_view name);

}  // namespace trv5
