// The luck of a ranking through the program's windows: the line, its window, and that a next line finds all of it done.
#include <gtest/gtest.h>

#include <random>

#include "support/archive_builder.h"
#include "support/console_process.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

using nlohmann::json;

class LuckConsole : public testing::Test {
 protected:
  LuckConsole() : console(TRV5_CONSOLE_PROGRAM, folder.userFolder.path()) {
    std::mt19937 rng(3);
    folder.makeBoth(randomRows(rng, 200));
    console.does("start", folder.folder.path().string());
    console.does("click", "INIZIO", "Command2");
    console.does("click", "Container", "Command4");
    for (int column = 0; column < 10; ++column) console.does("cell", "Sommativi1", "FgNu", 0, column, "click");
    console.does("click", "Sommativi1", "Command6");
    for (const char* const position : {"LblPN_1", "LblPN_2", "LblPN_3"}) console.does("click", "Sommativi1", position);
    console.does("set", "Sommativi1", "ChFix1R", 0);
    console.does("click", "Sommativi1", "Command44");
    console.does("click", "Sommativi1", "Command20");
  }
  std::string text(const char* screen, const char* control) { return console.does("get", screen, control)["text"]; }

  ProgramWorld folder;
  ConsoleProcess console;
};

TEST_F(LuckConsole, StandsBelowTheRankingAndGoesWithIt) {
  EXPECT_EQ(console.does("get", "Sommativi1", "Ch_Caso")["checked"], true);
  const std::string line = text("Sommativi1", "LblCaso");
  EXPECT_EQ(line.substr(0, 8), "Su 1.000");
  EXPECT_TRUE(line.ends_with("1 ricerca su questi casi.")) << line;
  console.does("click", "Sommativi1", "Cmd_Annulla");
  EXPECT_EQ(text("Sommativi1", "LblCaso"), "");
  EXPECT_EQ(console.finish(), 0);
}

TEST_F(LuckConsole, OpensTheWindowThatDrawsOnAndPrints) {
  console.does("click", "Sommativi1", "Cmd_Caso");
  const std::string sentence = text("Caso", "LblFrase");
  EXPECT_EQ(text("Sommativi1", "LblCaso"), sentence + " 1 ricerca su questi casi.");
  EXPECT_EQ(text("Caso", "LblConto").substr(0, 13), "999 di 999 in");
  EXPECT_EQ(console.does("get", "Caso", "")["title"], "Merito del caso");
  const json rows = console.does("dump", "Caso", "Fg_Conti")["rows"];
  EXPECT_EQ(rows[0], json({"Almeno", "Tue", "Dal caso", "Archivi"}));
  EXPECT_GT(rows.size(), 2U);
  EXPECT_EQ(console.does("list", "Caso", "ComboRepliche")["items"], json({"999", "9.999", "99.999"}));
  console.does("set", "Caso", "Txt_Seme", "7");
  console.does("click", "Caso", "Cmd_Sorteggia");
  console.does("set", "Caso", "Txt_Seme", "20260101");
  console.does("click", "Caso", "Stampa_Fg_Conti");
  EXPECT_EQ(console.does("messages")["messages"][0]["kind"], "print");
  EXPECT_EQ(console.finish(), 0);
}

}  // namespace
}  // namespace trv5
