#include "maintenance/update_writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>

#include "core/archive_load.h"
#include "core/database_files.h"
#include "core/draw_sums.h"
#include "maintenance/update_samples.h"
#include "support/archive_builder.h"
#include "support/broken_world.h"
#include "support/left_journal.h"
#include "support/random_runs.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const Registration kRegistered{"22/08/2026", "10:30:15"};

class UpdateWritten : public testing::Test {
 protected:
  UpdateWritten() {
    std::mt19937 rng(5);
    stored = randomRows(rng, 40);
    createArchive(file, stored, Existing::Replace);
    rows = randomRows(rng, 10);
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i].date = "0" + std::to_string(i) + "/02/1950";
    rows[0].date = "10/02/1950";
  }
  UpdateReport write(const std::vector<UpdateOrder>& orders, EmptyWheel empty = EmptyWheel::Text) {
    Database archive(file, FileKind::Archive);
    return writeUpdate(archive, rows, orders, kRegistered, empty);
  }
  std::vector<DrawRow> draws() const { return readDraws(Database(file, FileKind::Archive)); }
  // Every row to be added.
  std::vector<UpdateOrder> all() const { return std::vector<UpdateOrder>(rows.size(), {.add = true, .correct = true}); }

  TempFolder folder;
  std::filesystem::path file = folder / "a.mdb";
  std::vector<DrawRow> stored, rows;
};

TEST_F(UpdateWritten, AddsInTheOrderOfTheRowsAndCountsThem) {
  rows.resize(2);
  const UpdateReport report = write({{.add = true}, {.add = true}});
  EXPECT_EQ(report.added, 2);
  EXPECT_THAT(report.lines, ElementsAre("Aggiunta estrazione del10/02/1950", "Aggiunta estrazione del01/02/1950",
                                        "aggiunti N° 2 record"));
  EXPECT_EQ(draws().size(), 42U);
}

TEST_F(UpdateWritten, CorrectionsDoNotCountAsNewRecords) {
  rows.resize(1);
  rows[0].date = stored[3].date;
  const UpdateReport report = write({{.correct = true}});
  EXPECT_EQ(report.added, 0);
  EXPECT_THAT(report.lines, ElementsAre("Modificata estrazione del" + stored[3].date));
  EXPECT_EQ(draws()[3].wheels, rows[0].wheels);
  EXPECT_EQ(draws().size(), 40U);
}

TEST_F(UpdateWritten, RowsWithoutAnOrderAreLeftAlone) {
  const ReadOnlyFolder readOnly(folder.path());
  const UpdateReport report = write(std::vector<UpdateOrder>(rows.size()));
  EXPECT_THAT(report.lines, IsEmpty());
  EXPECT_TRUE(sameDraws(draws(), stored));
}

TEST_F(UpdateWritten, ADrawThatCameMeanwhileIsNotAddedAndOneThatWentIsNotCorrected) {
  rows.resize(2);
  rows[0].date = stored[3].date;
  EXPECT_THAT(write({{.add = true}, {.correct = true}}).lines, IsEmpty());
  EXPECT_TRUE(sameDraws(draws(), stored));
}

TEST_F(UpdateWritten, ADateThatTheFileHoldsTwiceIsAddedOnce) {
  rows.resize(2);
  rows[1].date = rows[0].date;
  EXPECT_EQ(write({{.add = true}, {.add = true}}).added, 1);
  EXPECT_EQ(draws().back().wheels, rows[0].wheels);
}

TEST_F(UpdateWritten, EachDrawIsRegisteredAndSummed) {
  write(all());
  const Database archive(file, FileKind::Archive);
  Statement query =
      archive.prepare("SELECT count(*) FROM EstrazioniLotto WHERE datareg = '2026-08-22' AND orareg = '10:30:15'");
  ASSERT_TRUE(query.step());
  EXPECT_EQ(query.number(0), 10);
  EXPECT_THAT(differencesFromSums(archive, readDraws(archive)), IsEmpty());
}

TEST_F(UpdateWritten, MoreDrawsThanAnArchiveHoldsAreRefusedAsAWhole) {
  std::vector<DrawRow> full;
  for (int draw = 1; draw <= Archive::kMaxDraws - 5; ++draw) full.push_back(drawOf(dateOfDraw(draw), {}));
  createArchive(file, full, Existing::Replace);
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i].date = "01/01/19" + std::to_string(10 + i);
  try {
    write(all());
    ADD_FAILURE();
  } catch (const UserError& error) {
    EXPECT_THAT(error.what(), HasSubstr("9999 estrazioni"));
  }
  EXPECT_EQ(draws().size(), full.size());
}

TEST_F(UpdateWritten, AFullDiskAtAnyWriteLeavesTheArchiveAsItWas) {
  const std::string before = readBytes(file);
  int refused = 0, written = 0;
  for (rlim_t bytes = 0; written == 0; bytes += 512) {
    SCOPED_TRACE(bytes);
    try {
      const FullDisk disk(bytes);
      Database archive(file, FileKind::Archive);
      writeUpdate(archive, rows, all(), kRegistered, EmptyWheel::Text);
      ++written;
    } catch (const UserError&) {
      ++refused;
      ASSERT_EQ(draws().size(), stored.size());
    }
  }
  EXPECT_GT(refused, 10);
  EXPECT_EQ(draws().size(), stored.size() + rows.size());
  EXPECT_FALSE(std::filesystem::exists(file.string() + "-journal"));
}

TEST_F(UpdateWritten, AnArchiveThatAnotherProcessHoldsIsRefused) {
  {
    OtherProgram other(file, "BEGIN EXCLUSIVE");
    try {
      write(all());
      ADD_FAILURE();
    } catch (const DatabaseError& error) {
      EXPECT_EQ(error.reason(), DatabaseError::Reason::Locked);
    }
  }
  EXPECT_TRUE(sameDraws(draws(), stored));
}

TEST_F(UpdateWritten, AReadOnlyArchiveIsRefused) {
  const ReadOnlyFolder readOnly(folder.path());
  EXPECT_THROW(write(all()), DatabaseError);
}

TEST_F(UpdateWritten, KilledAtAnyMomentItIsThereAsAWholeOrNotAtAll) {
  const std::string before = readBytes(file);
  const auto begun = std::chrono::steady_clock::now();
  write(all());
  const auto span = std::chrono::steady_clock::now() - begun;
  const auto longest = std::chrono::duration_cast<std::chrono::microseconds>(span).count() * 3 / 2;
  std::mt19937 rng(9);
  int whole = 0, none = 0;
  for (int i = 0; i < randomRuns(200); ++i) {
    writeBytes(file, before);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      write(all());
      _exit(0);
    }
    usleep(static_cast<useconds_t>(rng() % static_cast<unsigned>(longest)));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const std::vector<DrawRow> left = draws();  // what the killed one left beside the archive is taken back
    ASSERT_TRUE(left.size() == stored.size() || left.size() == stored.size() + rows.size()) << left.size();
    left.size() == stored.size() ? ++none : ++whole;
    const Database archive(file, FileKind::Archive);
    archive.checkIntegrity();
    ASSERT_THAT(differencesFromSums(archive, left), IsEmpty());
  }
  RecordProperty("whole", whole);
  RecordProperty("none", none);
  EXPECT_GT(none, 0);
}

}  // namespace
}  // namespace trv5
