// Undo through the program's windows: the keys reach the screen, the offer stands in the shell.
#include <gtest/gtest.h>

#include <random>

#include "support/archive_builder.h"
#include "support/console_process.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

using nlohmann::json;

TEST(UndoConsole, KeysAndOfferGiveBackTheTables) {
  std::mt19937 rng(3);
  ProgramWorld folder;
  folder.makeBoth(randomRows(rng, 200));
  ConsoleProcess console(TRV5_CONSOLE_PROGRAM, folder.userFolder.path());
  console.does("start", folder.folder.path().string());
  console.does("click", "INIZIO", "Command2");
  console.does("click", "Container", "Command4");
  for (int column = 0; column < 10; ++column) console.does("cell", "Sommativi1", "FgNu", 0, column, "click");
  console.does("click", "Sommativi1", "Command6");
  for (const char* const position : {"LblPN_1", "LblPN_2", "LblPN_3"}) console.does("click", "Sommativi1", position);
  console.does("click", "Sommativi1", "Command44");
  console.does("click", "Sommativi1", "Command20");
  const char* const tables[] = {"FgEv", "FgF", "FgNu", "FgSSS"};
  const auto shown = [&] {
    json all;
    for (const char* const table : tables) all[table] = console.does("dump", "Sommativi1", table);
    return all;
  };
  const json full = shown();
  ASSERT_GT(full["FgF"]["rows"].size(), 1U);
  console.does("click", "Sommativi1", "Command41");
  const json empty = shown();
  ASSERT_NE(full, empty);
  console.does("key", "Sommativi1", "FgNu", "Ctrl+Z");
  EXPECT_EQ(shown(), full);
  console.does("key", "Sommativi1", "TxtNumeri", "Ctrl+Shift+Z");
  EXPECT_EQ(shown(), empty);
  console.does("click", "Sommativi1", "Cmd_Annulla");
  EXPECT_EQ(shown(), full);
  console.does("click", "Sommativi1", "Command41");
  console.does("click", "Container", "Cmd_Annulla");
  EXPECT_EQ(shown(), full);
  EXPECT_TRUE(console.does("messages")["messages"].empty());
  EXPECT_EQ(console.finish(), 0);
}

}  // namespace
}  // namespace trv5
