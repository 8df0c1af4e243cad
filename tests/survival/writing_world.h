#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "configs/configuration_world.h"
#include "maintenance/archivio_world.h"
#include "survival/watched_disk.h"

namespace trv5 {

/// What a file holds, as text: of a database all rows of all tables, of another file its bytes.
using Contents = std::map<std::string, std::string>;

/// A running program with every screen that writes. What an update or an import reads lies in a folder of its own.
class WritingWorld : public ConfigurationWorld {
 public:
  WritingWorld();

  Archivio& archivio();
  /// All that the program told since the last call: boxes, their reasons, the status line; the text of an error that no
  /// operation caught too. Where a text tells the reason itself, the line below it is in the library's own language and
  /// is left out.
  std::vector<std::string> told();
  /// Runs something as the one handler around operations does: an error is told.
  void guarded(const std::function<void()>& operation);
  /// The draws that the update brings.
  std::filesystem::path updateFile() const { return sources / "nuove.txt"; }
  std::filesystem::path importFile() const { return sources / "TRV5_Export.mdb"; }
  /// Ends the run of the program and closes all its files.
  void end();

  TempFolder sources;

 private:
  std::size_t m_toldBoxes = 0, m_toldReasons = 0, m_toldStatus = 0;
  std::vector<std::string> m_errors;
};

/// An operation of the program that writes, as the user does it.
struct WritingOperation {
  std::string name;
  /// What has to stand on the disk before, beside the world's own files.
  std::function<void(WritingWorld&)> files = [](WritingWorld&) {};
  /// What the user does before, which writes nothing.
  std::function<void(WritingWorld&)> ready = [](WritingWorld&) {};
  /// The act that writes.
  std::function<void(WritingWorld&)> run;
  /// The database that stays open meanwhile, null where the operation opens its own or writes no database.
  Database* (*database)(const WritingWorld&) = nullptr;
  /// States between before and after that may stay, by its rules: the export has no transaction over its three steps.
  /// Made out of the files that it left.
  std::function<std::vector<std::string>(const std::filesystem::path& folder)> between = [](const auto&) {
    return std::vector<std::string>();
  };
};

const std::vector<WritingOperation>& writingOperations();
/// For the names of tests.
std::ostream& operator<<(std::ostream& out, const WritingOperation& operation);
struct NameOfOperation {
  template <class Tested>
  std::string operator()(const Tested& tested) const {
    return tested.param.name;
  }
};

/// The files of a folder, and of the folders in it, by what they hold; scratch files and what a killed writer left
/// beside a database don't count (the databases are opened, which takes it back). Throws DatabaseError for a database
/// that isn't whole.
Contents contentsOf(const std::filesystem::path& folder);

/// The states in which an operation may leave each file of a folder.
class AllowedStates {
 public:
  void setBefore(const std::filesystem::path& folder) { m_before = stateOf(folder); }
  void setAfter(const std::filesystem::path& folder) { m_after = stateOf(folder); }
  void setBetween(const std::vector<std::string>& contents) { m_between = {contents.begin(), contents.end()}; }
  const DiskImage& imageBefore() const { return m_before.image; }
  /// False when the operation has changed nothing.
  bool differ() const { return m_before.contents != m_after.contents; }

  /// What is wrong with the folder, "" when nothing is: each file has to be as before or as after, or after the end of
  /// the operation as after. A copy of the archive that the operation makes has to be there once another file has
  /// changed; one that has to make room may stay.
  std::string fault(const std::filesystem::path& folder, bool ended) const;

 private:
  struct State {
    DiskImage image;
    Contents contents;
  };
  static State stateOf(const std::filesystem::path& folder);
  std::string content(const std::filesystem::path& file) const;

  State m_before, m_after;
  std::set<std::string> m_between;
};

/// The number that an environment variable asks for, else `usual`.
int asked(const char* variable, int usual);

}  // namespace trv5
