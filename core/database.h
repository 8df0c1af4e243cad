#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/errors.h"

namespace SQLite {
class Database;
class Statement;
}  // namespace SQLite

namespace trv5 {

/// The three kinds of database file; each carries a mark of its own, so that none is taken for another.
enum class FileKind { Main, Archive, Export };

/// Why a database can't be used. what() is the text for the user: what was tried, on which file, and why.
class DatabaseError : public UserError {
 public:
  enum class Reason {
    Missing,        ///< no such file
    NotADatabase,   ///< the file holds something else
    OtherProgram,   ///< a database of another program or of another kind
    NewerVersion,   ///< written by a later version of this program
    OtherPassword,  ///< the file asks for a password that wasn't given, or for another one
    Empty,          ///< no byte in it
    TooLarge,       ///< larger than any file of this program grows
    WrongShape,     ///< its tables aren't those of this program: missing, views, columns that aren't real
    TooSlow,        ///< a statement over it would not end in time
    Damaged,        ///< truncated or corrupt
    Locked,         ///< another program holds it
    Replaced,       ///< another file has taken the place of the open one, or it was moved away
    ReadOnly,       ///< something would have been written to a file that can't be
    DiskFull,
    Constraint,  ///< a row against the rules of its table: a key that exists already, a date that is none
    Other
  };
  DatabaseError(Reason reason, const std::string& text, std::string details = {})
      : UserError(text, "Avviso", std::move(details)), m_reason(reason) {}
  Reason reason() const { return m_reason; }

 private:
  Reason m_reason;
};

/// The password of the program's files, joined from its pieces at run time. It guards against other programs only.
std::string programPassword();

class Database;

/// A prepared statement. Parameters count from 1, columns from 0. All failures throw DatabaseError.
class Statement {
 public:
  Statement(Statement&&) noexcept;
  ~Statement();

  Statement& bind(int parameter, std::int64_t value);
  Statement& bind(int parameter, std::string_view text);
  Statement& bindNull(int parameter);
  /// Text, or NULL for an empty one.
  Statement& bindOrNull(int parameter, std::string_view text);

  /// Goes on to the next row; false after the last.
  bool step();
  /// Runs a statement that gives no rows and makes it ready for the next run; returns the number of rows changed.
  int run();
  /// Ready for another run, its parameters kept.
  void reset();

  int columns() const;
  std::string columnName(int column) const;
  bool isNull(int column) const;
  /// NULL and texts without digits give 0.
  std::int64_t number(int column) const;
  /// NULL gives "". The view holds until the next step.
  std::string_view view(int column) const;
  std::string text(int column) const { return std::string(view(column)); }

 private:
  friend class Database;
  Statement(const Database& database, const std::string& sql);

  const Database* m_database;
  std::unique_ptr<SQLite::Statement> m_statement;
  bool m_running = false;  // rows are being read
};

/// An open database file. Opening never makes a file. A file that can't be written is opened read-only: readOnly()
/// tells, and the first operation that would write throws. Every setting that keeps the file safe (full sync, rollback
/// journal, foreign keys) is made here, and every one that keeps the program safe from a file made by others: no
/// trigger and no view runs, texts are of bounded length, no statement takes more than two seconds.
class Database {
 public:
  /// Throws DatabaseError. A file with a password opens with that one only; a file without opens with any.
  Database(const std::filesystem::path& file, FileKind kind, std::string_view password = programPassword());
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  /// Absolute.
  const std::filesystem::path& path() const { return m_path; }
  bool readOnly() const { return m_readOnly; }
  /// False when another file has taken the place of the one held open, or none is there any more.
  bool stillInPlace() const;

  Statement prepare(const std::string& sql) const;
  /// Runs statements without parameters. Throws when the file is read-only.
  void execute(const std::string& sql);
  /// The key that the database gave to the row inserted last.
  std::int64_t lastInsertedKey() const;

  /// True for a real table only: a view or a virtual table doesn't count. Names of tables and fields compare without
  /// regard to case.
  bool hasTable(std::string_view table) const;
  bool hasField(std::string_view table, std::string_view field) const;

  /// Throws DatabaseError (WrongShape) unless the real table is there with these columns, and all its columns are real.
  void requireTable(std::string_view table, const std::vector<std::string_view>& columns) const;
  /// Reads the whole file and looks whether its pages, rows and indices agree. Throws DatabaseError (Damaged) when they
  /// don't.
  void checkIntegrity() const;

  /// Writes all that it holds into an empty file, as it stands at one moment whatever other programs write. Nothing is
  /// synced, and a file of which this fails is no database: it has to be another's temporary one. Throws DatabaseError.
  void copyInto(const std::filesystem::path& empty) const;
  /// Takes the contents of another file of the same kind in place of its own, in one transaction: when this throws a
  /// DatabaseError the file is as it was.
  void takeFrom(const Database& other);

  /// One transaction, writing from its first moment on, so that two programs never wait for each other's half. Rolled
  /// back at its end unless committed. Throws when the file is read-only or another program is writing.
  class Transaction {
   public:
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

   private:
    Database& m_database;
    bool m_open = true;
  };

 private:
  friend class Statement;
  void open(FileKind kind, std::string_view password);
  void protect();
  void restartClock() const;
  static int isLate(void* database);
  void checkPassword(std::string_view password) const;
  void configure();
  /// Throws the DatabaseError of the library's error being handled, which `where` knows more about.
  [[noreturn]] void fail(std::string_view attempt) const { fail(attempt, m_database.get()); }
  [[noreturn]] void fail(std::string_view attempt, SQLite::Database* where) const;

  std::filesystem::path m_path;
  std::unique_ptr<SQLite::Database> m_database;
  bool m_readOnly = false;
  std::uint64_t m_device = 0, m_inode = 0;
  mutable std::chrono::steady_clock::time_point m_deadline;  // of the statement begun last
};

}  // namespace trv5
