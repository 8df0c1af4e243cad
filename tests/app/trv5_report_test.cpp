#include <gtest/gtest.h>

#include <string>

#include "support/run_program.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

class Trv5Report : public testing::Test {
 protected:
  ProgramRun report(const std::string& script, const std::string& answers) {
    writeBytes(folder / "script", script);
    writeBytes(folder / "answers", answers);
    return runProgram(TRV5_REPORT_PROGRAM, {"script", "answers"}, {.folder = folder.path()});
  }
  TempFolder folder;
};

TEST_F(Trv5Report, PrintsHeadingsAndTheTextOfAControl) {
  const ProgramRun run =
      report("# only for the console\n#> 1. Avvio\n[\"start\",\".\"]\n\n[\"get\",\"INIZIO\",\"Lbl_Archivio\"]\n",
             "{\"ok\":true}\n{\"ok\":true,\"text\":\"/a/È.mdb\",\"enabled\":true}\n");
  EXPECT_EQ(run.output, "1. Avvio\n  /a/È.mdb\n");
  EXPECT_EQ(run.status, 0);
}

TEST_F(Trv5Report, PrintsATableWithoutHiddenCellsAndWithGreenOnesInBrackets) {
  const ProgramRun run =
      report("[\"dump\",\"S\",\"G\"]\n",
             "{\"ok\":true,\"rows\":[[\"N° \",\"x\",\"R\"],[\"1\",\"y\",\"FI\"],[\"10\",\"z\",\"BA\"]],"
             "\"back\":[[1,2,\"00FF00\"],[2,2,\"FFFF00\"]],\"hidden_cols\":[1]}\n");
  EXPECT_EQ(run.output,
            "  N°  R\n"
            "  1  [FI]\n"
            "  10  BA\n");
}

TEST_F(Trv5Report, TellsHowManyRowsItLeftOut) {
  const ProgramRun run =
      report("#rows 1\n[\"dump\",\"S\",\"G\"]\n", "{\"ok\":true,\"rows\":[[\"h\"],[\"1\"],[\"2\"],[\"3\"]]}\n");
  EXPECT_EQ(run.output, "  h\n  1\n  .. e altre 2 righe\n");
}

TEST_F(Trv5Report, DrawsTheBarOfACell) {
  const ProgramRun run =
      report("[\"dump\",\"S\",\"G\"]\n",
             "{\"ok\":true,\"rows\":[[\"Casi\",\"12\",\"25.0\"]],\"bars\":[[0,2,25.0,\"00FF00\"]]}\n");
  EXPECT_EQ(run.output, "  Casi 12 25.0 #####...............\n");
}

TEST_F(Trv5Report, PrintsTheBoxesThatWereShown) {
  const ProgramRun run =
      report("[\"messages\"]\n", "{\"ok\":true,\"messages\":[{\"title\":\"Avviso\",\"text\":\"Troppi casi\"}]}\n");
  EXPECT_EQ(run.output, "  [Avviso] Troppi casi\n");
}

TEST_F(Trv5Report, NamesALineThatFailedAndGoesOn) {
  const ProgramRun run = report("[\"click\",\"S\",\"C\"]\n#> dopo\n", "{\"ok\":false,\"error\":\"C non esiste\"}\n");
  EXPECT_EQ(run.errors, "[\"click\",\"S\",\"C\"]: C non esiste\n");
  EXPECT_EQ(run.output, "dopo\n");
  EXPECT_EQ(run.status, 1);
}

TEST_F(Trv5Report, EndsWithAnErrorWhenTheConsoleStoppedEarly) {
  const ProgramRun run = report("[\"start\",\".\"]\n[\"screens\"]\n", "{\"ok\":true}\n");
  EXPECT_EQ(run.errors, "Nessuna risposta a [\"screens\"]\n");
  EXPECT_EQ(run.status, 1);
}

}  // namespace
}  // namespace trv5
