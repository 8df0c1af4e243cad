#include "core/file_writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "core/errors.h"
#include "support/broken_world.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

using testing::HasSubstr;

int filesIn(const TempFolder& folder) {
  return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder.path()), {}));
}

TEST(FileWriter, WritesAndReplacesAWholeFile) {
  TempFolder folder;
  writeFile(folder / "a.txt", "uno\r\n");
  EXPECT_EQ(readFile(folder / "a.txt"), "uno\r\n");
  const std::string large(3'000'000, 'x');
  writeFile(folder / "a.txt", large);
  EXPECT_EQ(readFile(folder / "a.txt"), large);
  writeFile(folder / "a.txt", "");
  EXPECT_EQ(readFile(folder / "a.txt"), "");
  EXPECT_EQ(filesIn(folder), 1);
}

TEST(FileWriter, RefusesAnExistingFileWhenAsked) {
  TempFolder folder;
  writeFile(folder / "a.txt", "uno", Existing::Refuse);
  try {
    writeFile(folder / "a.txt", "due", Existing::Refuse);
    FAIL();
  } catch (const UserError& error) {
    EXPECT_THAT(error.what(), HasSubstr("a.txt\" non può essere scritto: il file esiste già"));
  }
  EXPECT_EQ(readFile(folder / "a.txt"), "uno");
  EXPECT_EQ(filesIn(folder), 1);
}

TEST(FileWriter, ADiskThatIsFullAfterSomeBytesLeavesTheOldFileAndNoOther) {
  TempFolder folder;
  writeFile(folder / "a.txt", "il vecchio contenuto");
  for (const int bytes : {0, 1, 100, 65536, 199999}) {
    SCOPED_TRACE(bytes);
    const FullDisk full(static_cast<rlim_t>(bytes));
    try {
      writeFile(folder / "a.txt", std::string(200000, 'x'));
      FAIL() << "the disk took more than it holds";
    } catch (const UserError& error) {
      EXPECT_THAT(error.what(), HasSubstr("a.txt\" non può essere scritto"));
    }
  }
  EXPECT_EQ(readFile(folder / "a.txt"), "il vecchio contenuto");
  EXPECT_EQ(filesIn(folder), 1);
}

TEST(FileWriter, AnAbandonedFileVanishes) {
  TempFolder folder;
  {
    PendingFile pending(folder / "a.txt");
    pending.write("mezzo file");
    EXPECT_EQ(readBytes(pending.path()), "mezzo file");
    EXPECT_EQ(pending.path().parent_path(), folder.path());
  }
  EXPECT_EQ(filesIn(folder), 0);
}

TEST(FileWriter, SaysWhyAFolderTakesNoFile) {
  TempFolder folder;
  writeFile(folder / "a.txt", "vecchio");
  try {
    writeFile(folder / "manca" / "b.txt", "x");
    FAIL();
  } catch (const UserError& error) {
    EXPECT_THAT(error.what(), HasSubstr("il file o la cartella non esiste"));
  }
  const ReadOnlyFolder readOnly(folder.path());
  try {
    writeFile(folder / "a.txt", "x");
    FAIL();
  } catch (const UserError& error) {
    EXPECT_THAT(error.what(), HasSubstr("il permesso è negato"));
  }
  EXPECT_EQ(readFile(folder / "a.txt"), "vecchio");
}

TEST(FileWriter, KeepsThePermissionsOfTheFileItReplaces) {
  TempFolder folder;
  using std::filesystem::perms;
  writeFile(folder / "a.txt", "uno");
  EXPECT_NE(std::filesystem::status(folder / "a.txt").permissions() & perms::owner_write, perms::none);
  std::filesystem::permissions(folder / "a.txt", perms::owner_read | perms::owner_write);
  writeFile(folder / "a.txt", "due");
  EXPECT_EQ(std::filesystem::status(folder / "a.txt").permissions(), perms::owner_read | perms::owner_write);
}

TEST(FileWriter, WritesBehindALinkAndLeavesTheLink) {
  TempFolder folder;
  writeFile(folder / "vero.txt", "uno");
  std::filesystem::create_symlink("vero.txt", folder / "link.txt");
  writeFile(folder / "link.txt", "due");
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.txt"));
  EXPECT_EQ(readFile(folder / "vero.txt"), "due");
}

TEST(FileWriter, AFolderInThePlaceOfTheFileIsAnError) {
  TempFolder folder;
  std::filesystem::create_directory(folder / "a.txt");
  EXPECT_THROW(writeFile(folder / "a.txt", "x"), UserError);
  EXPECT_THROW(readFile(folder / "a.txt"), UserError);
  EXPECT_EQ(filesIn(folder), 1);
}

TEST(FileWriter, ReadingAMissingFileNamesIt) {
  TempFolder folder;
  try {
    readFile(folder / "manca.txt");
    FAIL();
  } catch (const UserError& error) {
    EXPECT_THAT(error.what(), HasSubstr("manca.txt\" non può essere letto"));
  }
}

TEST(FileWriter, AFinishedFileTakesThePlaceOfAnother) {
  TempFolder folder;
  writeFile(folder / "nuovo", "nuovo");
  writeFile(folder / "a.txt", "vecchio");
  takePlace(folder / "nuovo", folder / "a.txt");
  EXPECT_EQ(readFile(folder / "a.txt"), "nuovo");
  EXPECT_EQ(filesIn(folder), 1);
  try {
    takePlace(folder / "manca", folder / "a.txt");
    FAIL();
  } catch (const UserError& error) {
    EXPECT_THAT(error.what(), HasSubstr("a.txt\" non può essere scritto: il file o la cartella non esiste"));
  }
  EXPECT_EQ(readFile(folder / "a.txt"), "nuovo");
}

TEST(FileWriter, MakesAFolderOnceAndSaysWhyItCannot) {
  TempFolder folder;
  makeFolder(folder / "copie");
  makeFolder(folder / "copie");
  EXPECT_TRUE(std::filesystem::is_directory(folder / "copie"));
  writeFile(folder / "a.txt", "x");
  for (const char* const name : {"a.txt", "manca/copie"}) {
    try {
      makeFolder(folder / name);
      ADD_FAILURE() << name;
    } catch (const UserError& error) {
      EXPECT_THAT(error.what(), HasSubstr("La cartella \"" + (folder / name).string() + "\" non può essere creata: "));
    }
  }
}

TEST(FileWriter, TellsAFullDiskInItalian) {
  EXPECT_EQ(reasonOf(ENOSPC), "il disco è pieno");
  EXPECT_EQ(reasonOf(EROFS), "il disco è in sola lettura");
}

}  // namespace
}  // namespace trv5
