#include "core/database.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <fcntl.h>
#include <fmt/format.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>
#include <vector>

#include "core/database_marks.h"
#include "core/file_writer.h"
#include "core/password.h"
#include "core/replaced_file.h"
#include "core/text.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;
using Reason = DatabaseError::Reason;

constexpr int kBusyTimeoutMs = 2000;
constexpr std::chrono::seconds kLongestStatement{2};
constexpr int kLongestText = 1'000'000;  // bytes, of a row too; the longest of ours have some hundreds

// A full archive has some 3 MB; the main database grows with the configurations saved.
constexpr std::uintmax_t largestFile(FileKind kind) {
  return std::uintmax_t{kind == FileKind::Archive ? 64U : 512U} << 20;
}

Reason reasonOfCode(int code, bool readOnly) {
  if (code == SQLITE_READONLY_DBMOVED) return Reason::Replaced;
  switch (code & 0xFF) {
    case SQLITE_NOTADB:
      return Reason::NotADatabase;
    case SQLITE_CORRUPT:
      return Reason::Damaged;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return Reason::Locked;
    case SQLITE_READONLY:
      return Reason::ReadOnly;
    case SQLITE_CANTOPEN:  // of the journal, in a folder that takes no new files
      return readOnly ? Reason::ReadOnly : Reason::Other;
    case SQLITE_FULL:
      return Reason::DiskFull;
    case SQLITE_CONSTRAINT:
    case SQLITE_MISMATCH:
      return Reason::Constraint;
    case SQLITE_INTERRUPT:
      return Reason::TooSlow;
    case SQLITE_TOOBIG:
      return Reason::WrongShape;
    default:
      return Reason::Other;
  }
}

// `why`: the reason in Italian where the kind leaves it open.
std::string reasonText(Reason reason, const std::string& why) {
  switch (reason) {
    case Reason::Missing:
      return "il file non esiste";
    case Reason::NotADatabase:
      return "non è un file di dati di TRV5";
    case Reason::OtherProgram:
      return "è un file di un altro programma o di un altro genere";
    case Reason::NewerVersion:
      return "è stato scritto da una versione più recente di TRV5";
    case Reason::OtherPassword:
      return "la password è un'altra";
    case Reason::Empty:
      return "è vuoto";
    case Reason::TooLarge:
      return "è troppo grande per un file di TRV5";
    case Reason::WrongShape:
      return "le sue tabelle non sono quelle di TRV5" + (why.empty() ? "" : " (" + why + ")");
    case Reason::TooSlow:
      return "il suo contenuto non si lascia leggere in tempo utile";
    case Reason::Damaged:
      return "il file è danneggiato o troncato";
    case Reason::Locked:
      return "il file è occupato da un altro programma";
    case Reason::Replaced:
      return "è stato sostituito o spostato mentre era aperto: chiudere il programma e riavviarlo";
    case Reason::ReadOnly:
      return "il file è in sola lettura";
    case Reason::DiskFull:
      return "il disco è pieno";
    case Reason::Constraint:
      return "un dato non è ammesso o esiste già";
    case Reason::Other:
      break;
  }
  return why.empty() ? "la libreria dei dati dà un errore" : why;
}

bool allowed(const fs::path& path, int access) {
  return faccessat(AT_FDCWD, path.c_str(), access, AT_EACCESS) == 0;
}

DatabaseError errorOf(std::string_view attempt, const fs::path& file, Reason reason, const std::string& why = {},
                      std::string details = {}) {
  return {reason, fmt::format("Il file \"{}\" non può essere {}: {}.", file.string(), attempt, reasonText(reason, why)),
          std::move(details)};
}

DatabaseError noMemory(const fs::path& file) {
  return errorOf("letto", file, Reason::Other, reasonOf(ENOMEM));
}

// Nothing is opened that could make the program wait or fill its memory.
void refuseSpecialFiles(const fs::path& file, FileKind kind, const struct stat& status) {
  if (!S_ISREG(status.st_mode)) throw errorOf("aperto", file, Reason::NotADatabase);
  if (status.st_size == 0) throw errorOf("aperto", file, Reason::Empty);
  if (static_cast<std::uintmax_t>(status.st_size) > largestFile(kind)) throw errorOf("aperto", file, Reason::TooLarge);
  for (const fs::path& companion : companionsOf(file)) {
    struct stat beside {};
    if (stat(companion.c_str(), &beside) == 0 && S_ISREG(beside.st_mode) &&
        static_cast<std::uintmax_t>(beside.st_size) <= largestFile(kind))
      continue;
    throw errorOf(
        "aperto", file, Reason::Other,
        fmt::format("accanto c'è \"{}\", che non è il resto di una scrittura", companion.filename().string()));
  }
}

fs::path absolutePath(const fs::path& file) {
  std::error_code error;
  const fs::path whole = fs::absolute(file, error);
  return error ? file : whole;
}

}  // namespace

Statement::Statement(const Database& database, const std::string& sql) : m_database(&database) {
  database.restartClock();
  try {
    m_statement = std::make_unique<SQLite::Statement>(*database.m_database, sql);
  } catch (const SQLite::Exception&) {
    database.fail("letto");
  }
}

Statement::Statement(Statement&&) noexcept = default;
Statement::~Statement() = default;

Statement& Statement::bind(int parameter, std::int64_t value) {
  m_statement->bind(parameter, value);
  return *this;
}

Statement& Statement::bind(int parameter, std::string_view text) {
  if (text.size() > kLongestText) throw errorOf("scritto", m_database->path(), Reason::Constraint);
  try {
    m_statement->bind(parameter, std::string(text));
  } catch (const SQLite::Exception&) {
    m_database->fail("usato");
  }
  return *this;
}

Statement& Statement::bindNull(int parameter) {
  m_statement->bind(parameter);
  return *this;
}

Statement& Statement::bindOrNull(int parameter, std::string_view text) {
  return text.empty() ? bindNull(parameter) : bind(parameter, text);
}

bool Statement::step() {
  if (!m_running) m_database->restartClock();
  try {
    return m_running = m_statement->executeStep();
  } catch (const SQLite::Exception&) {
    m_database->fail("letto");
  }
}

int Statement::run() {
  m_database->restartClock();
  try {
    const int changed = m_statement->exec();
    m_statement->reset();
    return changed;
  } catch (const SQLite::Exception&) {
    m_statement->tryReset();
    m_database->fail("scritto");
  }
}

void Statement::reset() {
  m_running = false;
  m_statement->reset();
}

int Statement::columns() const {
  return m_statement->getColumnCount();
}

std::string Statement::columnName(int column) const {
  const char* const name = m_statement->getColumnName(column);
  if (name == nullptr) throw noMemory(m_database->path());
  return name;
}

bool Statement::isNull(int column) const {
  return m_statement->getColumn(column).isNull();
}

std::int64_t Statement::number(int column) const {
  return m_statement->getColumn(column).getInt64();
}

std::string_view Statement::view(int column) const {
  const SQLite::Column value = m_statement->getColumn(column);
  const char* const text = value.getText(nullptr);  // before getBytes, which counts the bytes of the text form
  if (text != nullptr) return {text, static_cast<std::size_t>(value.getBytes())};
  // No text though there is a value: a wheel would pass for one that wasn't drawn.
  if (sqlite3_errcode(m_database->m_database->getHandle()) == SQLITE_NOMEM) throw noMemory(m_database->path());
  return "";
}

Database::Database(const fs::path& file, FileKind kind, std::string_view password) {
  struct stat status {};
  if (!file.empty()) m_path = absolutePath(file);
  if (file.empty() || stat(m_path.c_str(), &status) != 0) {
    const bool missing = file.empty() || errno == ENOENT || errno == ENOTDIR;
    throw errorOf("aperto", m_path, missing ? Reason::Missing : Reason::Other, reasonOf(errno));
  }
  refuseSpecialFiles(m_path, kind, status);
  m_device = status.st_dev;
  m_inode = status.st_ino;
  try {
    open(kind, password);
  } catch (const SQLite::Exception&) {
    fail("aperto");
  }
}

Database::~Database() = default;

void Database::open(FileKind kind, std::string_view password) {
  if (!allowed(m_path, R_OK)) throw errorOf("aperto", m_path, Reason::Other, reasonOf(EACCES));
  // SQLite itself falls back to reading where the file can't be written.
  m_database = std::make_unique<SQLite::Database>(m_path.string(), SQLite::OPEN_READWRITE, kBusyTimeoutMs);
  sqlite3* const handle = m_database->getHandle();
  m_readOnly = sqlite3_db_readonly(handle, "main") == 1 || !allowed(m_path.parent_path(), W_OK);

  protect();  // before anything of the file's own schema is looked at
  m_database->exec("PRAGMA trusted_schema = OFF; PRAGMA cell_size_check = ON; PRAGMA mmap_size = 0");
  if (m_database->execAndGet("PRAGMA application_id").getInt() != applicationId(kind))
    throw errorOf("aperto", m_path, Reason::OtherProgram);
  if (m_database->execAndGet("PRAGMA user_version").getInt() > kSchemaVersion)
    throw errorOf("aperto", m_path, Reason::NewerVersion);
  checkPassword(password);
  configure();
}

void Database::protect() {
  sqlite3* const handle = m_database->getHandle();
  sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
  sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
  struct Limit {
    int what, most;
  };
  for (const Limit& limit : {Limit{SQLITE_LIMIT_LENGTH, kLongestText}, Limit{SQLITE_LIMIT_SQL_LENGTH, 100'000},
                             Limit{SQLITE_LIMIT_COLUMN, 200}, Limit{SQLITE_LIMIT_EXPR_DEPTH, 100},
                             Limit{SQLITE_LIMIT_COMPOUND_SELECT, 20}, Limit{SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 100},
                             Limit{SQLITE_LIMIT_TRIGGER_DEPTH, 1}, Limit{SQLITE_LIMIT_WORKER_THREADS, 0}})
    sqlite3_limit(handle, limit.what, limit.most);
  constexpr int kStepsBetweenLooks = 1000;
  restartClock();
  sqlite3_progress_handler(handle, kStepsBetweenLooks, isLate, this);
}

void Database::restartClock() const {
  m_deadline = std::chrono::steady_clock::now() + kLongestStatement;
}

int Database::isLate(void* database) {
  return std::chrono::steady_clock::now() > static_cast<const Database*>(database)->m_deadline ? 1 : 0;
}

void Database::checkPassword(std::string_view password) const {
  if (!hasTable("Protezione")) return;
  Statement hash = prepare("SELECT Impronta FROM Protezione");
  if (!hash.step() || !passwordMatches(hash.text(0), password)) throw errorOf("aperto", m_path, Reason::OtherPassword);
}

void Database::configure() {
  m_database->exec("PRAGMA foreign_keys = ON; PRAGMA synchronous = EXTRA");
  if (!m_readOnly) m_database->exec("PRAGMA journal_mode = DELETE");
}

bool Database::stillInPlace() const {
  struct stat status {};
  return stat(m_path.c_str(), &status) == 0 && status.st_dev == m_device && status.st_ino == m_inode;
}

Statement Database::prepare(const std::string& sql) const {
  return Statement(*this, sql);
}

void Database::execute(const std::string& sql) {
  restartClock();
  try {
    m_database->exec(sql);
  } catch (const SQLite::Exception&) {
    fail("scritto");
  }
}

std::int64_t Database::lastInsertedKey() const {
  return m_database->getLastInsertRowid();
}

bool Database::hasTable(std::string_view table) const {
  // A virtual table has no page of its own; what the schema calls a table may be made by another statement.
  Statement find = prepare(
      "SELECT 1 FROM sqlite_schema WHERE type = 'table' AND rootpage > 0 AND sql LIKE 'CREATE TABLE %' AND name = ? "
      "COLLATE NOCASE");
  return find.bind(1, table).step();
}

void Database::requireTable(std::string_view table, const std::vector<std::string_view>& columns) const {
  const auto refuse = [&](const std::string& why) { throw errorOf("usato", m_path, Reason::WrongShape, why); };
  if (!hasTable(table)) refuse(fmt::format("manca la tabella {}", table));
  Statement fields = prepare("SELECT name, hidden FROM pragma_table_xinfo(?)");
  fields.bind(1, table);
  std::vector<std::string> names;
  while (fields.step()) {
    names.push_back(fields.text(0));
    if (fields.number(1) != 0) refuse(fmt::format("il campo {} di {} è calcolato", names.back(), table));
  }
  for (const std::string_view column : columns)
    if (std::none_of(names.begin(), names.end(), [&](const auto& name) { return equalIgnoringCase(name, column); }))
      refuse(fmt::format("manca il campo {} di {}", column, table));
}

bool Database::hasField(std::string_view table, std::string_view field) const {
  Statement find = prepare("SELECT 1 FROM pragma_table_info(?) WHERE name = ? COLLATE NOCASE");
  return find.bind(1, table).bind(2, field).step();
}

void Database::checkIntegrity() const {
  Statement check = prepare("PRAGMA integrity_check(1)");
  if (!check.step() || check.text(0) != "ok") throw errorOf("letto", m_path, Reason::Damaged);
}

void Database::fail(std::string_view attempt, SQLite::Database* where) const {
  try {
    throw;
  } catch (const SQLite::Exception& error) {
    // Behind a failed read or write of the disk stands a reason of the system's.
    const int extended = error.getExtendedErrorCode(), code = extended & 0xFF;
    const int system = where == nullptr ? 0 : sqlite3_system_errno(where->getHandle());
    if (code == SQLITE_NOMEM) throw errorOf(attempt, m_path, Reason::Other, reasonOf(ENOMEM), error.what());
    const bool systemFailed = (code == SQLITE_IOERR || code == SQLITE_CANTOPEN) && system != 0;
    throw errorOf(attempt, m_path, reasonOfCode(extended, m_readOnly), systemFailed ? reasonOf(system) : std::string(),
                  error.what());
  }
}

Database::Transaction::Transaction(Database& database) : m_database(database) {
  if (database.readOnly()) throw errorOf("scritto", database.path(), Reason::ReadOnly);
  if (!database.stillInPlace()) throw errorOf("scritto", database.path(), Reason::Replaced);
  database.execute("BEGIN IMMEDIATE");
}

Database::Transaction::~Transaction() {
  if (!m_open) return;
  try {
    // After some failures (a full disk) the library has rolled back by itself.
    if (sqlite3_get_autocommit(m_database.m_database->getHandle()) == 0) m_database.m_database->exec("ROLLBACK");
  } catch (const SQLite::Exception&) {
    // Nothing was committed, so the journal is rolled back when the file is opened next.
    m_open = false;
  }
}

void Database::Transaction::commit() {
  m_database.execute("COMMIT");
  m_open = false;
}

}  // namespace trv5
