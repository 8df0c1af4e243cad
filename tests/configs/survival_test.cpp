// Saves in a world that breaks: nothing is lost, no half configuration is left.
#include <fmt/format.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <thread>

#include "configs/configuration_world.h"
#include "configs/workbench_configuration.h"
#include "support/broken_world.h"
#include "support/random_runs.h"
#include "support/random_search.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

class SaveSurvives : public testing::Test {
 protected:
  SaveSurvives() {
    for (int i = 0; i < 5; ++i) WorkbenchWorld::addFormula(w.Fg11, {.elements = {{0, 1}}, .fix = 7 + i});
    world.save("prima");
  }
  // The database is whole, and every head has the rows that it counts.
  void expectWhole(int heads) {
    const Database database(world.mainFile(), FileKind::Main);
    database.checkIntegrity();
    EXPECT_EQ(world.saved(), heads);
    EXPECT_EQ(world.savedRows(), heads * 5);
  }
  ConfigurationWorld world;
  Workbench& w = world.w();
};

TEST_F(SaveSurvives, ADatabaseLockedByAnotherProgram) {
  {
    const OtherProgram other(world.mainFile(), "BEGIN EXCLUSIVE");
    EXPECT_FALSE(world.save("seconda"));
    EXPECT_EQ(world.shell.lastBox().text, kNotSaved);
    EXPECT_NE(world.shell.reasons.back().find("occupato"), std::string::npos);
  }
  expectWhole(1);
  EXPECT_TRUE(world.save("seconda"));
  expectWhole(2);
}

TEST_F(SaveSurvives, AReadOnlyDatabase) {
  {
    const ReadOnlyFolder readOnly(world.folder.path());
    world.restart();
    EXPECT_FALSE(world.save("seconda"));
    EXPECT_EQ(world.shell.lastBox().text, kNotSaved);
    EXPECT_NE(world.shell.reasons.back().find("sola lettura"), std::string::npos);
    world.press("Cmd_Elenco");
    EXPECT_EQ(world.w().FgPir1.rows(), 2);
  }
  expectWhole(1);
}

TEST_F(SaveSurvives, AFullDiskAtEachOfItsWrites) {
  const auto size = fs::file_size(world.mainFile());
  int failed = 0;
  // Journal and database grow by pages and parts of pages.
  for (rlim_t room = 0; room <= size + 65536; room += 512) {
    bool saved = false;
    {
      const FullDisk disk(room);
      saved = world.save("piena");
    }
    if (saved) break;
    ++failed;
    ASSERT_EQ(world.shell.lastBox().text, kNotSaved) << room;
    expectWhole(1);
  }
  EXPECT_GT(failed, 3);
  expectWhole(2);
  EXPECT_TRUE(world.save("dopo"));
}

TEST_F(SaveSurvives, BeingKilledAtAnyMoment) {
  std::mt19937 rng(8);
  const int kills = randomRuns(200);
  int inside = 0;
  const Configuration sample = captureConfiguration(w);
  for (int kill = 0; kill < kills; ++kill) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      try {
        Database own(world.mainFile(), FileKind::Main);
        for (int i = 0;; ++i) {
          Configuration next = sample;
          for (Field& field : next.head)
            if (field.name == "Denominazione") field.value = fmt::format("uccisa {} {}", kill, i);
          saveConfiguration(own, next);
        }
      } catch (...) {
        _exit(1);
      }
    }
    std::this_thread::sleep_for(std::chrono::microseconds(2000 + below(rng, 30000)));
    ::kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the child ended by itself";
    inside += fs::exists(world.mainFile().string() + "-journal") ? 1 : 0;
    const Database reopened(world.mainFile(), FileKind::Main);
    reopened.checkIntegrity();
    ASSERT_EQ(world.savedRows(), world.saved() * 5) << "kill " << kill;
  }
  RecordProperty("struck inside a write", inside);
  std::printf("%d of %d kills struck inside a write\n", inside, kills);
  EXPECT_GT(inside, 0);
  EXPECT_GT(world.saved(), 1);
}

}  // namespace
}  // namespace trv5
