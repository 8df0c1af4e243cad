#include "core/database_files.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <fmt/format.h>
#include <sqlite3.h>

#include <cerrno>
#include <functional>

#include "core/database_marks.h"
#include "core/dates.h"
#include "core/draw_sums.h"
#include "core/password.h"
#include "schema.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

// A file in the making is nobody's yet: no journal, no sync until it is whole. PendingFile syncs it and gives it its
// name; half a file is never seen.
void createFile(const fs::path& file, FileKind kind, Existing existing, std::string_view password,
                const std::function<void(SQLite::Database&)>& fill) {
  PendingFile pending(file);
  {
    SQLite::Database database(pending.path().string(), SQLite::OPEN_READWRITE);
    try {
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
    } catch (const SQLite::Exception& error) {
      const int system = sqlite3_system_errno(database.getHandle());
      const bool systemFailed = error.getErrorCode() == SQLITE_FULL || error.getErrorCode() == SQLITE_IOERR;
      throw UserError(fmt::format("Il file \"{}\" non può essere scritto: {}.", file.string(),
                                  systemFailed ? reasonOf(system != 0 ? system : ENOSPC)
                                               : "un dato non è ammesso o la libreria dei dati dà un errore"),
                      "Avviso", error.what());
    }
  }
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

void insertDraws(SQLite::Database& database, const std::vector<DrawRow>& rows) {
  SQLite::Statement insert(database,
                           "INSERT INTO EstrazioniLotto (DataEstrazione, Ba, Ca, Fi, Ge, Mi, Na, Pa, Ro, \"To\", Ve, "
                           "Nz) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
  SQLite::Statement sum(database, "INSERT INTO VerificaEstrazioni VALUES (?, ?)");
  for (const DrawRow& row : rows) {
    const std::optional<Day> day = dayOfText(row.date);
    if (!day) throw UserError(fmt::format("\"{}\" non è una data nella forma GG/MM/AAAA.", row.date));
    insert.bind(1, isoText(*day));
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      const std::string& text = row.wheels[static_cast<std::size_t>(wheel)];
      if (text.empty())
        insert.bind(wheel + 2);
      else
        insert.bindNoCopy(wheel + 2, text);
    }
    insert.exec();
    insert.reset();
    sum.bind(1, isoText(*day));
    sum.bind(2, sumOfDraw(row));
    sum.exec();
    sum.reset();
  }
}

}  // namespace

void createMainDatabase(const fs::path& file, const MainContents& contents, Existing existing,
                        std::string_view password) {
  createFile(file, FileKind::Main, existing, password, [&](SQLite::Database& database) {
    database.exec(kMainSchema);
    database.exec(kConfigurationsSchema);
    insertParameters(database, contents.parameters);
    insertSystems(database, contents.systems);
  });
}

void createArchive(const fs::path& file, const std::vector<DrawRow>& rows, Existing existing,
                   std::string_view password) {
  createFile(file, FileKind::Archive, existing, password, [&](SQLite::Database& database) {
    database.exec(kArchiveSchema);
    database.exec(kDrawSumsSchema);
    insertDraws(database, rows);
  });
}

void createExportFile(const fs::path& file, Existing existing, std::string_view password) {
  createFile(file, FileKind::Export, existing, password,
             [](SQLite::Database& database) { database.exec(kConfigurationsSchema); });
}

}  // namespace trv5
