#pragma once

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include "core/database_files.h"
#include "support/fake_shell.h"
#include "support/temp_folder.h"
#include "tools/orthogonal_systems.h"

namespace trv5 {

inline std::vector<OrthogonalSystem> threeSystems() {
  return {
      {"nove numeri", 3, 9, {{1, 2, 6}, {1, 3, 5}, {7, 8, 9}}},
      {"tre numeri", 2, 3, {{1, 2}, {1, 3}, {2, 3}}},
      {"due, con il 90", 2, 2, {{1, 90}}},
  };
}

struct SystemsWorld {
  /// `damage`: what another program did to the file.
  explicit SystemsWorld(const std::vector<OrthogonalSystem>& systems = threeSystems(), const std::string& damage = "") {
    createMainDatabase(folder / "DbTRV5.mdb", {.parameters = {}, .systems = systems}, Existing::Replace);
    if (!damage.empty()) SQLite::Database((folder / "DbTRV5.mdb").string(), SQLite::OPEN_READWRITE).exec(damage);
    program.openMainDatabase();
    form.load();
  }

  static std::string row(const Grid& grid, int row) {
    std::string text;
    for (int column = 0; column < grid.columns(); ++column)
      if (!grid.text(row, column).empty()) text += (text.empty() ? "" : " ") + grid.text(row, column);
    return text;
  }
  int rowOf(const std::string& name) const {
    for (int row = 1; row < form.FgSistemi.rows(); ++row)
      if (form.FgSistemi.text(row, 2) == name) return row;
    ADD_FAILURE() << name;
    return 0;
  }
  void loadSystem(const std::string& name) { form.FgSistemi.doubleClickCell(rowOf(name), 2); }
  void click(int number) { form.Fg99x.clickCell((number - 1) / 15, (number - 1) % 15); }
  bool picked(int number) const { return form.Fg99x.back((number - 1) / 15, (number - 1) % 15) == Giallo; }

  TempFolder folder;
  FakeShell shell;
  Program program{shell, folder.path(), {}, folder.path()};
  SistemiOrtogonali form{program};
};

}  // namespace trv5
