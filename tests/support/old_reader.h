#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "support/temp_folder.h"

namespace trv5 {

/// A file that begins like a database of older installations, and stand-ins for the programs that read such files,
/// found along PATH as long as this lives: they print the tables given here.
class OldReader {
 public:
  enum class Tools { StandIns, None };

  explicit OldReader(Tools tools = Tools::StandIns) {
    writeBytes(file("a.mdb"), std::string("\0\1\0\0Standard Jet DB\0", 20) + std::string(4096, '\0'));
    std::filesystem::create_directory(folder / "bin");
    std::filesystem::create_directory(folder / "tables");
    if (tools == Tools::StandIns) {
      const std::string tables = "'" + (folder / "tables").string() + "'";
      program("mdb-tables", "ls " + tables + " | grep -v '[.]'");
      program("mdb-export", "for t; do :; done; cat " + tables + "/\"$t\"; . " + tables + "/after.sh");
      program("mdb-count", "cat " + tables + "/\"$2\".count");
      after("true");
    }
    const std::string rest = tools == Tools::StandIns ? ":" + m_path : "";
    ::setenv("PATH", ((folder / "bin").string() + rest).c_str(), 1);
  }
  ~OldReader() { ::setenv("PATH", m_path.c_str(), 1); }
  OldReader(const OldReader&) = delete;
  OldReader& operator=(const OldReader&) = delete;

  std::filesystem::path file(const std::string& name) const { return folder / name; }
  /// A table as the reader prints it, its rows without line ends in their texts.
  void table(const std::string& name, const std::string& text) const {
    writeBytes(folder / ("tables/" + name), text);
    announce(name, static_cast<int>(std::count(text.begin(), text.end(), '\n')) - 1);
  }
  /// How many rows the file says that a table has.
  void announce(const std::string& name, int rows) const {
    writeBytes(folder / ("tables/" + name + ".count"), std::to_string(rows) + "\n");
  }
  /// What the reader does after printing a table.
  void after(const std::string& script) const { writeBytes(folder / "tables/after.sh", script + "\n"); }

  TempFolder folder;

 private:
  void program(const std::string& name, const std::string& script) const {
    const std::filesystem::path path = folder / ("bin/" + name);
    writeBytes(path, "#!/bin/sh\n" + script + "\n");
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
  }

  std::string m_path = std::getenv("PATH") != nullptr ? std::getenv("PATH") : "/usr/bin:/bin";
};

}  // namespace trv5
