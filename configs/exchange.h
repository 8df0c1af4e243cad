#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "configs/configuration.h"
#include "configs/query_rows.h"
#include "core/database.h"

namespace trv5 {

/// Opens an export file, which holds one configuration in the two tables of the main database. It may come from a
/// stranger: the tables must be real ones with our fields, `DDS` excepted, and the file whole. Throws DatabaseError.
std::unique_ptr<Database> openExportFile(const std::filesystem::path& file);

/// What an export file holds, field by field, as texts.
struct ExportedRows {
  QueryRows head, rows;
};

/// Reads the file. Throws UserError where it holds more than an export ever does.
ExportedRows readExportFile(const Database& file);

/// The first configuration of the texts read, under another name. Every field is looked at. Throws UserError for a
/// field that is lacking or holds what no save writes.
Configuration importedConfiguration(const ExportedRows& texts, const std::string& name);

/// The steps of an export, each done by itself: what has been done stays.
enum class ExportStep { Emptied, HeadWritten, RowsWritten };

/// Replaces what the file holds by the configuration of that key, its keys as they stand. Calls `done` after each step.
/// Throws UserError. False when the main database has no such key: the file is then empty.
bool exportConfiguration(const Database& from, std::int64_t key, Database& file,
                         const std::function<void(ExportStep)>& done);

}  // namespace trv5
