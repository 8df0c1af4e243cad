// The look at one draw and the orthogonal systems, as a user walks through both screens.
#include <gtest/gtest.h>

#include "provision/orthogonal_systems.h"
#include "support/console_process.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

using nlohmann::json;

class ToolsConsole : public testing::Test {
 protected:
  void SetUp() override {
    const std::string archive =
        world
            .makeArchive({drawOf("07/01/1939", {{"BA", {58, 22, 47, 49, 69}}}),
                          drawOf("14/01/1939", {{"BA", {45, 19, 30, 90, 1}}, {"CA", {45, 2, 30, 11, 89}}}),
                          drawOf("04/02/1939", {{"BA", {7, 80, 9, 10, 11}}, {"NZ", {90, 89, 88, 87, 86}}})})
            .string();
    createMainDatabase(world.folder / "DbTRV5.mdb",
                       {.parameters = {{.Parametro = "PercorsoArchivio", .Valore1 = archive},
                                       {.Parametro = "EstrazioneIniziale", .Valore1 = "1"}},
                        .systems = shippedSystems()},
                       Existing::Replace);
    console.does("start", world.folder.path().string());
    console.does("click", "INIZIO", "Command2");
  }

  json get(const char* screen, const char* control) { return console.does("get", screen, control); }
  json rows(const char* screen, const char* grid) { return console.does("dump", screen, grid)["rows"]; }
  json back(const char* screen, const char* grid) { return console.does("dump", screen, grid)["back"]; }
  void press(const char* screen, const char* control) { console.does("click", screen, control); }
  void click(const char* screen, const char* grid, int row, int column) {
    console.does("cell", screen, grid, row, column, "click");
  }
  json messages() { return console.does("messages")["messages"]; }

  ProgramWorld world;
  ConsoleProcess console{TRV5_CONSOLE_PROGRAM, world.userFolder.path()};
};

TEST_F(ToolsConsole, ADrawIsLookedAtFromTheFrequencyToItsNumbers) {
  press("Container", "Command7");
  EXPECT_EQ(get("DiDiSO", "")["title"], "Caratteristiche estrazione");
  EXPECT_EQ(get("DiDiSO", "hs1")["value"], 3);
  console.does("answer", "text", "2");
  press("DiDiSO", "Command42_0");
  EXPECT_EQ(get("DiDiSO", "Label1")["text"], "14/01/1939");
  EXPECT_EQ(get("DiDiSO", "Label3")["text"], "PM=2   PA=2");

  click("DiDiSO", "Fg5", 90, 2);  // vertical sums of 90: 45 with 45, and 0 with 0 on the wheels not drawn
  const json pairs = rows("DiDiSO", "Fg1");
  EXPECT_EQ(pairs[1], json({"Somma", "Verticale", "0", "BA", "1", "1", "CA", "1", "90"}));
  EXPECT_EQ(std::to_string(pairs.size() - 1), rows("DiDiSO", "Fg5")[90][2]);
  EXPECT_EQ(back("DiDiSO", "Fg5").size(), 89U + 1U + 1U) << "the cross and its end";

  click("DiDiSO", "Fg1", 1, 3);
  EXPECT_EQ(back("DiDiSO", "fG2"), json({{1, 1, "00FF00"}, {2, 1, "00FF00"}}));
  press("DiDiSO", "Command81");
  EXPECT_EQ(back("DiDiSO", "fG2"), json::array());
}

TEST_F(ToolsConsole, TheClassesFollowTheDraw) {
  press("Container", "Command7");
  press("DiDiSO", "Command3");
  EXPECT_EQ(get("DiDiSO", "Command3")["back"], "80FF80");
  EXPECT_EQ(get("DiDiSO", "Command7")["back"], "FFFF80");
  EXPECT_EQ(rows("DiDiSO", "fG3")[1], json({"", "0", "8", "0", "1", "1"}));
  click("DiDiSO", "fG3", 1, 2);
  EXPECT_EQ(back("DiDiSO", "fG3").size(), 5U);
  press("DiDiSO", "Command1");
  EXPECT_EQ(rows("DiDiSO", "Fg1").size(), 2971U);
  console.does("set", "DiDiSO", "hs1", 1);
  EXPECT_EQ(rows("DiDiSO", "fG3")[1], json({"", "5", "2", "4", "4", "6"}));
  EXPECT_EQ(rows("DiDiSO", "Fg1").size(), 1U);
  console.does("answer", "text", "1/1/1990");
  press("DiDiSO", "Command42_1");
  EXPECT_EQ(messages().back()["text"], "Data non trovata");
}

TEST_F(ToolsConsole, ASystemIsChosenPickedRewrittenAndPrinted) {
  press("Container", "Command6");
  const char* const screen = "SistemiOrtogonali";
  EXPECT_EQ(get(screen, "")["help"], 270);
  const json list = rows(screen, "FgSistemi");
  int row = 0;
  while (list.at(static_cast<std::size_t>(row))[2] != "9 numeri in 12 terne") ++row;
  console.does("cell", screen, "FgSistemi", row, 2, "dblclick");
  EXPECT_EQ(rows(screen, "FgSy").size(), 100U);
  EXPECT_EQ(get(screen, "LblPromessa")["text"],
            "9 numeri, 12 righe, 3 numeri a riga: ogni coppia esattamente una volta.");

  for (const int n : {88, 7, 23, 31, 45, 58, 66, 72, 12, 1}) click(screen, "Fg99x", (n - 1) / 15, (n - 1) % 15);
  EXPECT_EQ(get(screen, "Label20")["text"], "9") << "the tenth is one too many";
  EXPECT_EQ(get(screen, "Label20")["back"], "00FF00");
  press(screen, "Command36");
  const json result = rows(screen, "fG88");
  ASSERT_EQ(result.size(), 13U);
  EXPECT_EQ(result[1][1], "7");
  EXPECT_EQ(rows(screen, "Fg99")[9], json({"9", "88"}));

  messages();
  const std::string paper = (world.folder / "formazioni.pdf").string();
  console.does("answer", "file", paper);
  press(screen, "Command9");
  const json printed = messages()[0];
  EXPECT_EQ(printed["kind"], "print");
  EXPECT_EQ(printed["title"], "Sviluppo sistema selezionato");
  EXPECT_EQ(printed["orientation"], "portrait");
  EXPECT_EQ(printed["margin"], 400);
  EXPECT_EQ(readBytes(paper).substr(0, 4), "%PDF");

  press(screen, "Command34");
  EXPECT_EQ(get(screen, "Label20")["text"], "0");
  EXPECT_EQ(rows(screen, "fG88").size(), 1U);
  press(screen, "Command12");
  EXPECT_EQ(rows(screen, "FgSistemi"), list);
}

}  // namespace
}  // namespace trv5
