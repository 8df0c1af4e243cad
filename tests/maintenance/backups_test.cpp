#include "maintenance/backups.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "core/archive_load.h"
#include "core/database_files.h"
#include "core/dates.h"
#include "core/draw_sums.h"
#include "core/draw_writer.h"
#include "core/errors.h"
#include "support/archive_builder.h"
#include "support/broken_world.h"
#include "support/random_runs.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;
using Reason = BackupReason;

class Backups : public testing::Test {
 protected:
  Backups() { createArchive(file, {first, second}, Existing::Refuse); }
  // A draw that wasn't there before, or the archive would be the one of the last copy.
  void change() {
    DrawRow row = drawOf("01/01/2000", {{"MI", {1, 2, 3, 4, 5 + ++changes % 80}}});
    Database archive(file, FileKind::Archive);
    DrawWriter writer(archive);
    writer.put(row);
    writer.commit();
  }
  Backup copy(const DateTime& now, Reason reason = Reason::Aggiornamento) {
    change();
    return makeBackup(Database(file, FileKind::Archive), reason, now);
  }
  std::vector<Backup> copies(const DateTime& now = {2026, 12, 31, 23, 59, 59}) { return backupsOf(file, now); }
  std::vector<std::string> names() {
    std::vector<std::string> all;
    for (const Backup& backup : copies()) all.push_back(backup.file.filename().string());
    return all;
  }
  static std::size_t drawsIn(const fs::path& archive) { return readDraws(Database(archive, FileKind::Archive)).size(); }

  TempFolder folder;
  const fs::path file = folder / "Il mio archivio.mdb";
  const DrawRow first = drawOf("07/01/1939", {{"BA", {58, 22, 47, 49, 69}}});
  const DrawRow second = drawOf("14/01/1939", {{"RO", {1, 2, 3, 4, 5}}});
  int changes = 0;
};

TEST_F(Backups, LieBesideTheArchiveWithMomentAndReasonInTheirNames) {
  EXPECT_TRUE(copies().empty());
  const Backup made = copy({2026, 8, 21, 20, 52, 10});
  EXPECT_EQ(made.file, folder / "copie" / "Il mio archivio 2026-08-21 20.52.10 aggiornamento.mdb");
  const std::vector<Backup> all = copies();
  ASSERT_EQ(all.size(), 1u);
  EXPECT_EQ(all[0].file, made.file);
  EXPECT_EQ(all[0].taken, (DateTime{2026, 8, 21, 20, 52, 10}));
  EXPECT_EQ(all[0].reason, "aggiornamento");
  EXPECT_EQ(drawsIn(all[0].file), 3u);
}

TEST_F(Backups, OfEachKindAreTakenBackWhole) {
  for (const Reason reason :
       {Reason::Aggiornamento, Reason::Correzione, Reason::Cancellazione, Reason::Importazione, Reason::Ripristino}) {
    const Backup made = copy({2026, 8, 21, 20, 52, static_cast<int>(reason)}, reason);
    Database archive(file, FileKind::Archive);
    const std::vector<DrawRow> before = readDraws(archive);
    ASSERT_TRUE(deleteDraw(archive, first.date));
    writeDraw(archive, drawOf("21/01/1939", {{"NA", {6, 7, 8, 9, 10}}}));
    archive.takeFrom(Database(made.file, FileKind::Archive));
    const std::vector<DrawRow> now = readDraws(archive);
    ASSERT_EQ(now.size(), before.size()) << nameOf(reason);
    for (std::size_t i = 0; i < now.size(); ++i) {
      EXPECT_EQ(now[i].date, before[i].date);
      EXPECT_EQ(now[i].wheels, before[i].wheels);
    }
    archive.checkIntegrity();
    EXPECT_TRUE(differencesFromSums(archive, now).empty());
  }
}

TEST_F(Backups, AreTenAndTheFirstOfEachMonth) {
  for (int month = 1; month <= 3; ++month)
    for (int day = 1; day <= 5; ++day) copy({2026, month, day, 21, 0, 0});
  for (int day = 6; day <= 9; ++day) copy({2026, 3, day, 21, 0, 0});
  const std::vector<Backup> all = copies();
  ASSERT_EQ(all.size(), 12u);
  EXPECT_EQ(all[0].taken.day, 9);
  EXPECT_FALSE(all[9].monthly) << "the tenth";
  EXPECT_EQ(all[9].taken, (DateTime{2026, 2, 5, 21, 0, 0}));
  EXPECT_TRUE(all[10].monthly);
  EXPECT_EQ(all[10].taken, (DateTime{2026, 2, 1, 21, 0, 0}));
  EXPECT_EQ(all[11].taken, (DateTime{2026, 1, 1, 21, 0, 0}));
}

// Whatever the clock does: days, months and years pass, and now and then it stands wrong.
TEST_F(Backups, OfAnySeriesOfActsKeepTheNewOneTenAndOneAMonth) {
  std::mt19937 rng(15);
  for (int run = 0; run < randomRuns(2); ++run) {
    fs::remove_all(backupFolder(file));
    DateTime now{2026, 1, 1, 10, 0, 0};
    std::set<std::pair<int, int>> months;
    for (int act = 0; act < 30; ++act) {
      Day day = *dayOf(now.year, now.month, now.day) + std::chrono::days(rng() % 3 == 0 ? rng() % 40 : 0);
      const std::chrono::year_month_day date(day);
      now = {int(date.year()),
             static_cast<int>(unsigned(date.month())),
             static_cast<int>(unsigned(date.day())),
             static_cast<int>(rng() % 24),
             0,
             0};
      DateTime shown = now;
      if (rng() % 10 == 0) shown.year += rng() % 2 == 0 ? 5 : -5;
      months.emplace(shown.year, shown.month);
      const Backup made = copy(shown, static_cast<Reason>(rng() % 5));
      ASSERT_TRUE(fs::exists(made.file)) << "act " << act;
      const std::vector<Backup> all = copies(shown);
      std::set<std::pair<int, int>> kept;
      for (const Backup& backup : all) kept.emplace(backup.taken.year, backup.taken.month);
      ASSERT_EQ(kept, months) << "act " << act;
      ASSERT_LE(all.size(), 11 + months.size());
      ASSERT_GE(all.size(), std::min<std::size_t>(10, static_cast<std::size_t>(act) + 1));
    }
  }
}

TEST_F(Backups, OfAWrongClockMakeRoomBeforeTheOthers) {
  for (int day = 1; day <= 10; ++day) copy({2031, 3, day, 21, 0, 0});
  for (int day = 1; day <= 10; ++day) copy({2026, 5, day, 21, 0, 0});
  const std::vector<Backup> all = copies({2026, 5, 10, 22, 0, 0});
  ASSERT_EQ(all.size(), 11u);
  for (int i = 0; i < 10; ++i) EXPECT_EQ(all[static_cast<std::size_t>(i)].taken, (DateTime{2026, 5, 10 - i, 21, 0, 0}));
  EXPECT_EQ(all[10].taken, (DateTime{2031, 3, 1, 21, 0, 0}));
}

TEST_F(Backups, OfOtherArchivesAndFilesOfOthersAreLeftAlone) {
  fs::create_directory(backupFolder(file));
  const std::vector<std::string> others = {"Altro 2026-01-01 10.00.00 correzione.mdb",
                                           "Il mio archivio 2026-1-1 10.00.00 x.mdb",
                                           "Il mio archivio 2026-02-30 10.00.00 correzione.mdb",
                                           "Il mio archivio 2026-01-01 10.00.00 correzione.mdb.bak",
                                           "Il mio archivio 2026-01-01 10.00.00 correzione (1).mdb",
                                           "Il mio archivio.mdb",
                                           "appunti.txt"};
  for (const std::string& name : others) writeBytes(backupFolder(file) / name, "x");
  fs::create_directory(backupFolder(file) / "Il mio archivio 2026-01-01 10.00.00 cartella.mdb");
  for (int day = 1; day <= 15; ++day) copy({2026, 5, day, 21, 0, 0});
  EXPECT_EQ(names().size(), 11u);
  for (const std::string& name : others) EXPECT_TRUE(fs::exists(backupFolder(file) / name)) << name;
}

TEST_F(Backups, OfArchivesWithTheSameNameButForTheirEndingAreApart) {
  createArchive(folder / "Il mio archivio.old", {first}, Existing::Refuse);
  makeBackup(Database(folder / "Il mio archivio.old", FileKind::Archive), Reason::Correzione, {2026, 5, 1, 21, 0, 0});
  copy({2026, 5, 2, 21, 0, 0});
  EXPECT_EQ(copies().size(), 1u);
  EXPECT_EQ(backupsOf(folder / "Il mio archivio.old", {2026, 6, 1}).size(), 1u);
}

TEST_F(Backups, WithinASecondAreKeptApart) {
  const Backup one = copy({2026, 8, 21, 20, 52, 10}), two = copy({2026, 8, 21, 20, 52, 10});
  EXPECT_EQ(two.file.filename(), "Il mio archivio 2026-08-21 20.52.10 aggiornamento (2).mdb");
  const std::vector<Backup> all = copies();
  ASSERT_EQ(all.size(), 2u);
  EXPECT_EQ(all[0].file, two.file) << "the newest first";
  EXPECT_EQ(all[0].reason, "aggiornamento");
  EXPECT_NE(readDraws(Database(one.file, FileKind::Archive)).back().wheels,
            readDraws(Database(two.file, FileKind::Archive)).back().wheels);
}

TEST_F(Backups, OfAnArchiveThatHasNotChangedAreOne) {
  const Backup one = copy({2026, 8, 21, 20, 52, 10});
  const Database archive(file, FileKind::Archive);
  EXPECT_EQ(makeBackup(archive, Reason::Correzione, {2026, 8, 22, 9, 0, 0}).file, one.file);
  EXPECT_EQ(copies().size(), 1u);
  writeBytes(one.file, "no database");
  EXPECT_NE(makeBackup(archive, Reason::Correzione, {2026, 8, 22, 9, 0, 0}).file, one.file) << "nor one that is broken";
}

TEST_F(Backups, ThatAreStillNeededAreSpared) {
  const Backup wanted = copy({2026, 5, 2, 21, 0, 0});
  copy({2026, 5, 1, 21, 0, 0});  // the first of the month
  for (int day = 3; day <= 11; ++day) copy({2026, 5, day, 21, 0, 0});
  change();
  makeBackup(Database(file, FileKind::Archive), Reason::Ripristino, {2026, 5, 12, 21, 0, 0}, wanted.file);
  EXPECT_TRUE(fs::exists(wanted.file));
  copy({2026, 5, 13, 21, 0, 0});
  EXPECT_FALSE(fs::exists(wanted.file));
}

TEST_F(Backups, ThatCannotBeMadeAreToldAndTakeNothingAway) {
  writeBytes(folder / "copie", "a file where the folder should be");
  EXPECT_THROW(copy({2026, 8, 21, 20, 52, 10}), UserError);
  fs::remove(folder / "copie");
  for (int day = 1; day <= 10; ++day) copy({2026, 5, day, 21, 0, 0});
  const std::vector<std::string> before = names();
  change();
  const Database archive(file, FileKind::Archive);
  {
    const FullDisk full(8192);
    EXPECT_THROW(makeBackup(archive, Reason::Correzione, {2026, 5, 11, 21, 0, 0}), UserError);
  }
  {
    const ReadOnlyFolder readOnly(backupFolder(file));
    EXPECT_THROW(makeBackup(archive, Reason::Correzione, {2026, 5, 11, 21, 0, 0}), UserError);
  }
  EXPECT_EQ(names(), before);
  EXPECT_EQ(std::distance(fs::directory_iterator(backupFolder(file)), {}), 10) << "nothing half made is left";
}

TEST_F(Backups, OfADamagedArchiveAreNotMade) {
  {
    // A page of draws overwritten.
    std::vector<DrawRow> rows;
    for (int draw = 1; draw <= 300; ++draw) rows.push_back(drawOf(dateOfDraw(draw), {{"BA", {1, 2, 3, 4, 5}}}));
    createArchive(file, rows, Existing::Replace);
    std::string bytes = readBytes(file);
    bytes.replace(bytes.size() - 3 * 4096, 4096, std::string(4096, '\x7F'));
    writeBytes(file, bytes);
  }
  const Database archive(file, FileKind::Archive);
  try {
    makeBackup(archive, Reason::Correzione, {2026, 5, 11, 21, 0, 0});
    ADD_FAILURE();
  } catch (const UserError& error) {
    EXPECT_EQ(std::string(error.what()),
              "Il file \"" + file.string() + "\" non può essere letto: il file è danneggiato o troncato.");
  }
  EXPECT_TRUE(copies().empty());
}

TEST_F(Backups, TellHowTheyDifferFromToday) {
  const DrawRow third = drawOf("21/01/1939", {{"NA", {6, 7, 8, 9, 10}}});
  const DrawRow other = drawOf("14/01/1939", {{"RO", {1, 2, 3, 4, 6}}});
  const auto told = [](const std::vector<DrawRow>& copy, const std::vector<DrawRow>& today) {
    return compareBackup(datedSumsOf(copy), datedSumsOf(today)).text();
  };
  EXPECT_EQ(told({first, second}, {first, second}), "uguale");
  EXPECT_EQ(told({first, second}, {first, second, third}), "manca la 3");
  EXPECT_EQ(told({second}, {first, second}), "manca la 1");
  EXPECT_EQ(told({first}, {first, second, third}), "mancano 2 estrazioni");
  EXPECT_EQ(told({first, other}, {first, second, third}), "manca 1, 1 diversa");
  EXPECT_EQ(told({first, second, third}, {first, second}), "1 in più");
  EXPECT_EQ(told({third}, {first, second}), "mancano 2, 1 in più");
  EXPECT_EQ(told({}, {}), "uguale");
}

}  // namespace
}  // namespace trv5
