// A whole method through the program's windows, on the demonstration archive, beside the same method on the workbench
// alone: what a click does on the screen is what it does below it.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <fstream>

#include "provision/demo_archive.h"
#include "support/console_process.h"
#include "support/program_world.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

using nlohmann::json;

// What follows the script of the demonstration: terni, a lunghetta, everything again.
constexpr const char* kMore = R"(
["set", "Sommativi1", "SSTab3", 2]
["set", "Sommativi1", "Combo1R_2N", 2]
["click", "Sommativi1", "Command43"]
["cell", "Sommativi1", "FgF", 2, 3, "click"]
["click", "Sommativi1", "Cmd_LaSorte_3"]
["click", "Sommativi1", "Command48"]
["set", "Sommativi1", "SSTab3", 4]
["set", "Sommativi1", "ComboSorte", "2"]
["click", "Sommativi1", "Command30"]
["click", "Sommativi1", "Command58"]
["cell", "Sommativi1", "FgF", 1, 3, "dblclick"]
["click", "Sommativi1", "Command51"]
["set", "Sommativi1", "hs1", 7340]
["click", "Sommativi1", "Label17"]
["click", "Sommativi1", "Command87"]
["click", "Sommativi1", "Command90"]
)";

std::vector<json> methodScript() {
  std::ifstream file(TRV5_METHOD);
  std::stringstream text;
  text << file.rdbuf() << kMore;
  std::vector<json> lines;
  for (std::string line; std::getline(text, line);)
    if (!line.empty() && line.front() == '[') lines.push_back(json::parse(line));
  return lines;
}

// The user's doing on the controls themselves.
void apply(Workbench& w, const json& line) {
  const std::string verb = line[0], name = line[2];
  if (verb == "click") {
    if (auto* label = dynamic_cast<Label*>(w.find(name)))
      label->click();
    else
      w.button(name).press();
  } else if (verb == "cell") {
    auto& grid = w.get<GridControl>(name);
    grid.clickCell(line[3], line[4]);
    if (line[5] == "dblclick") grid.doubleClickCell(line[3], line[4]);
  } else if (verb == "set") {
    Control* const control = w.find(name);
    const json& value = line[3];
    if (auto* combo = dynamic_cast<Combo*>(control)) {
      if (value.is_number())
        combo->pick(value);
      else
        WorkbenchWorld::choose(*combo, value);
    }
    if (auto* check = dynamic_cast<Check*>(control)) check->set(value == 1);
    if (auto* tabs = dynamic_cast<Tabs*>(control)) tabs->set(value);
    if (auto* scroll = dynamic_cast<Scroll*>(control)) scroll->set(value);
  }
}

json rowsOf(const Grid& grid) {
  json rows = json::array();
  for (int row = 0; row < grid.rows(); ++row) {
    json cells = json::array();
    for (int column = 0; column < grid.columns(); ++column) cells.push_back(grid.text(row, column));
    rows.push_back(cells);
  }
  return rows;
}

json backsOf(const Grid& grid) {
  json backs = json::array();
  for (int row = 0; row < grid.rows(); ++row)
    for (int column = 0; column < grid.columns(); ++column)
      if (grid.back(row, column) != kWhite)
        backs.push_back({row, column, fmt::format("{:06X}", grid.back(row, column))});
  return backs;
}

TEST(MethodConsole, LeavesTheTablesThatTheOperationsLeave) {
  std::vector<DrawRow> rows;
  for (const Draw& draw : simulatedDraws()) rows.push_back(rowOf(draw));
  ProgramWorld folder;
  folder.makeBoth(rows);
  ConsoleProcess console(TRV5_CONSOLE_PROGRAM, folder.userFolder.path());
  console.does("start", folder.folder.path().string());
  console.does("click", "INIZIO", "Command2");
  console.does("click", "Container", "Command4");
  WorkbenchWorld twin(archiveOfRows(rows));
  ASSERT_EQ(twin.archive.UltimaEstrazione(), 7370);

  int applied = 0;
  for (const json& line : methodScript()) {
    const std::string verb = line[0];
    if (line.size() < 3 || line[1] != "Sommativi1" || (verb != "click" && verb != "cell" && verb != "set")) continue;
    if (line[2] == "Command103") continue;  // another screen
    SCOPED_TRACE(line.dump());
    ++applied;
    ASSERT_TRUE(console.sayText(line.dump())["ok"]);
    apply(twin.w, line);
    for (const char* name : {"FgEv", "FgF", "Fg11", "Fg22", "Fg33", "Fg00", "FgZ1", "FgZ2", "FgZ3", "FgZ0", "FgZZ",
                             "FgZ100", "Fg15", "FgSSS", "Fg_Stat", "Fg_Graf", "FgRG", "FgNu"}) {
      const json dump = console.does("dump", "Sommativi1", name);
      const Grid& grid = twin.w.get<GridControl>(name);
      ASSERT_EQ(dump["rows"], rowsOf(grid)) << name;
      ASSERT_EQ(dump["back"], backsOf(grid)) << name;
    }
  }
  EXPECT_GT(applied, 50);
  EXPECT_TRUE(twin.w.Fg33.hasData());
  EXPECT_GE(twin.w.Fg00.dataRows(), 4);
  EXPECT_TRUE(console.does("messages")["messages"].empty());
  EXPECT_EQ(console.finish(), 0);
}

}  // namespace
}  // namespace trv5
