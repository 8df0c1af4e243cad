#include "core/database_files.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <fmt/format.h>
#include <sqlite3.h>

#include <cerrno>
#include <functional>
#include <memory>

#include "core/database_marks.h"
#include "core/dates.h"
#include "core/draw_sums.h"
#include "core/password.h"
#include "schema.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

// `system`: the error behind it as the library keeps it, 0 for none.
[[noreturn]] void failCreation(const fs::path& file, const SQLite::Exception& error, int system) {
  std::string reason = "un dato non è ammesso o la libreria dei dati dà un errore";
  const int code = error.getErrorCode() & 0xFF;
  // Behind a write that came short the library keeps no error of the system's.
  if (code == SQLITE_FULL || code == SQLITE_IOERR) reason = reasonOf(system != 0 ? system : ENOSPC);
  if (code == SQLITE_CANTOPEN) reason = reasonOf(system != 0 ? system : EIO);
  throw UserError(fmt::format("Il file \"{}\" non può essere scritto: {}.", file.string(), reason), "Avviso",
                  error.what());
}

void fillFile(SQLite::Database& database, FileKind kind, std::string_view password,
              const std::function<void(SQLite::Database&)>& fill) {
  database.exec("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA foreign_keys = ON; BEGIN");
  database.exec(
      fmt::format("PRAGMA application_id = {}; PRAGMA user_version = {}", applicationId(kind), kSchemaVersion));
  if (!password.empty()) {
    database.exec(kPasswordSchema);
    SQLite::Statement insert(database, "INSERT INTO Protezione VALUES (?)");
    insert.bind(1, passwordHash(password));
    insert.exec();
  }
  fill(database);
  database.exec("COMMIT");
}

// A file in the making is nobody's yet: no journal, no sync until it is whole. PendingFile syncs it and gives it its
// name; half a file is never seen.
void createFile(const fs::path& file, FileKind kind, Existing existing, std::string_view password,
                const std::function<void(SQLite::Database&)>& fill) {
  PendingFile pending(file);
  std::unique_ptr<SQLite::Database> database;
  try {
    database = std::make_unique<SQLite::Database>(pending.path().string(), SQLite::OPEN_READWRITE);
    fillFile(*database, kind, password, fill);
  } catch (const SQLite::Exception& error) {
    failCreation(file, error, database == nullptr ? 0 : sqlite3_system_errno(database->getHandle()));
  }
  database.reset();
  pending.commit(existing);
}

void insertParameters(SQLite::Database& database, const std::vector<ParameterRow>& parameters) {
  SQLite::Statement insert(database, "INSERT INTO ParametriProgramma VALUES (?, ?, ?)");
  for (const ParameterRow& row : parameters) {
    insert.bind(1, row.Parametro);
    insert.bind(2, row.Valore1);
    insert.bind(3, row.Valore2);
    insert.exec();
    insert.reset();
  }
}

// Character k of the text is "X" when the number k belongs to the row.
std::string rowText(const std::vector<int>& numbers) {
  std::string text(90, ' ');
  for (int n : numbers) text.at(static_cast<std::size_t>(n - 1)) = 'X';
  return text;
}

void insertSystems(SQLite::Database& database, const std::vector<OrthogonalSystem>& systems) {
  SQLite::Statement head(database, "INSERT INTO Sist_Ortogonali (Denominazione, sviluppo, Numeri) VALUES (?, ?, ?)");
  SQLite::Statement line(database, "INSERT INTO Sist_OrtoSv (RifOrto, NuRiga, Qn, Num) VALUES (?, ?, ?, ?)");
  for (const OrthogonalSystem& system : systems) {
    head.bind(1, system.Denominazione);
    head.bind(2, system.sviluppo);
    head.bind(3, system.Numeri);
    head.exec();
    head.reset();
    const std::int64_t key = database.getLastInsertRowid();
    int number = 0;
    for (const std::vector<int>& row : system.rows) {
      line.bind(1, key);
      line.bind(2, ++number);
      line.bind(3, static_cast<int>(row.size()));
      line.bind(4, rowText(row));
      line.exec();
      line.reset();
    }
  }
}

void bindOrNull(SQLite::Statement& statement, int parameter, const std::string& text) {
  if (text.empty())
    statement.bind(parameter);
  else
    statement.bind(parameter, text);
}

std::string isoOfDate(const std::string& date) {
  const std::optional<Day> day = dayOfText(date);
  if (!day) throw UserError(fmt::format("\"{}\" non è una data nella forma GG/MM/AAAA.", date));
  return isoText(*day);
}

void insertDraws(SQLite::Database& database, const std::vector<RegisteredDraw>& draws) {
  SQLite::Statement insert(database,
                           "INSERT INTO EstrazioniLotto (DataEstrazione, Ba, Ca, Fi, Ge, Mi, Na, Pa, Ro, \"To\", Ve, "
                           "Nz, datareg, orareg) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
  SQLite::Statement sum(database, "INSERT INTO VerificaEstrazioni VALUES (?, ?)");
  for (const auto& [row, registered] : draws) {
    const std::string day = isoOfDate(row.date);
    insert.bind(1, day);
    for (int wheel = 0; wheel < kWheels; ++wheel)
      bindOrNull(insert, wheel + 2, row.wheels[static_cast<std::size_t>(wheel)]);
    bindOrNull(insert, 13, registered.datareg.empty() ? std::string() : isoOfDate(registered.datareg));
    bindOrNull(insert, 14, registered.orareg);
    insert.exec();
    insert.reset();
    sum.bind(1, day);
    sum.bind(2, sumOfDraw(row));
    sum.exec();
    sum.reset();
  }
}

void insertFields(SQLite::Database& database, std::string_view table, const ConfigurationRows::Fields& fields) {
  std::string names, places;
  for (const auto& [name, value] : fields) {
    names += fmt::format("{}{}", names.empty() ? "" : ", ", name);
    places += places.empty() ? "?" : ", ?";
  }
  SQLite::Statement insert(database, fmt::format("INSERT INTO {} ({}) VALUES ({})", table, names, places));
  int parameter = 0;
  for (const auto& [name, value] : fields) {
    ++parameter;
    if (value)
      insert.bind(parameter, *value);
    else
      insert.bind(parameter);
  }
  insert.exec();
}

// One that the tables don't admit is left out whole.
std::vector<std::string> insertConfigurations(SQLite::Database& database,
                                              const std::vector<ConfigurationRows>& configurations) {
  std::vector<std::string> refused;
  for (const ConfigurationRows& configuration : configurations) {
    database.exec("SAVEPOINT configuration");
    try {
      insertFields(database, "Elenco_Memo", configuration.head);
      for (const ConfigurationRows::Fields& detail : configuration.details)
        insertFields(database, "Elenco_Dett", detail);
    } catch (const SQLite::Exception& error) {
      const int code = error.getErrorCode();
      if (code != SQLITE_CONSTRAINT && code != SQLITE_MISMATCH) throw;
      database.exec("ROLLBACK TO configuration");
      refused.push_back(fmt::format("\"{}\": {}", configuration.name, error.what()));
    }
    database.exec("RELEASE configuration");
  }
  return refused;
}

}  // namespace

std::vector<std::string> createMainDatabase(const fs::path& file, const MainContents& contents, Existing existing,
                                            std::string_view password) {
  std::vector<std::string> refused;
  createFile(file, FileKind::Main, existing, password, [&](SQLite::Database& database) {
    database.exec(kMainSchema);
    database.exec(kConfigurationsSchema);
    insertParameters(database, contents.parameters);
    insertSystems(database, contents.systems);
    refused = insertConfigurations(database, contents.configurations);
  });
  return refused;
}

void createArchive(const fs::path& file, const std::vector<DrawRow>& rows, Existing existing,
                   std::string_view password) {
  std::vector<RegisteredDraw> draws;
  draws.reserve(rows.size());
  for (const DrawRow& row : rows) draws.push_back({.row = row, .registered = {}});
  createRegisteredArchive(file, draws, existing, password);
}

void createRegisteredArchive(const fs::path& file, const std::vector<RegisteredDraw>& draws, Existing existing,
                             std::string_view password) {
  createFile(file, FileKind::Archive, existing, password, [&](SQLite::Database& database) {
    database.exec(kArchiveSchema);
    database.exec(kDrawSumsSchema);
    insertDraws(database, draws);
  });
}

void createExportFile(const fs::path& file, Existing existing, std::string_view password) {
  createFile(file, FileKind::Export, existing, password,
             [](SQLite::Database& database) { database.exec(kConfigurationsSchema); });
}

}  // namespace trv5
