// What the user reads when something fails: Italian in front, a library's own words in the details.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/draw_writer.h"
#include "support/broken_world.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;

bool soundsEnglish(const std::string& text) {
  for (const char* word :
       {"such", "database", "disk", "constraint", "unable", "malformed", "failed", " full", " open "})
    if (text.find(word) != std::string::npos) return true;
  return false;
}

template <class Call>
UserError errorOf(Call&& call) {
  try {
    call();
  } catch (const UserError& error) {
    EXPECT_FALSE(soundsEnglish(error.what())) << error.what();
    return UserError(error.what(), error.title(), error.details());
  }
  ADD_FAILURE() << "nothing failed";
  return UserError("");
}

TEST(ErrorTexts, ARowThatIsRefusedNamesTheRuleInTheDetails) {
  TempFolder folder;
  createArchive(folder / "a.mdb", {drawOf("07/01/1939", {})}, Existing::Refuse);
  Database archive(folder / "a.mdb", FileKind::Archive);
  const UserError error =
      errorOf([&] { archive.execute("INSERT INTO EstrazioniLotto (DataEstrazione) VALUES ('1939-01-07')"); });
  EXPECT_THAT(error.what(), HasSubstr("un dato non è ammesso o esiste già."));
  EXPECT_THAT(error.details(), HasSubstr("UNIQUE"));
}

TEST(ErrorTexts, AWrongStatementIsAnErrorOfTheLibrary) {
  TempFolder folder;
  createArchive(folder / "a.mdb", {}, Existing::Refuse);
  const Database archive(folder / "a.mdb", FileKind::Archive);
  const UserError error = errorOf([&] { archive.prepare("SELECT * FROM Manca"); });
  EXPECT_THAT(error.what(), HasSubstr("la libreria dei dati dà un errore"));
  EXPECT_THAT(error.details(), HasSubstr("no such table"));
}

TEST(ErrorTexts, AFullDiskIsToldInItalianWhereverItFillsUp) {
  TempFolder folder;
  for (const int bytes : {0, 4096, 8192, 20000}) {
    SCOPED_TRACE(bytes);
    const FullDisk full(static_cast<rlim_t>(bytes));
    std::vector<DrawRow> rows;
    for (int i = 1; i <= 600; ++i) rows.push_back(drawOf(dateOfDraw(i), {{"BA", {1, 2, 3, 4, 5}}}));
    const UserError error = errorOf([&] { createArchive(folder / "a.mdb", rows, Existing::Replace); });
    EXPECT_THAT(error.what(), AnyOf(HasSubstr("il disco è pieno"), HasSubstr("supera la grandezza ammessa")));
  }
}

TEST(ErrorTexts, AFullDiskWhileADrawIsWrittenIsToldInItalian) {
  TempFolder folder;
  createArchive(folder / "a.mdb", {drawOf("07/01/1939", {})}, Existing::Refuse);
  Database archive(folder / "a.mdb", FileKind::Archive);
  const FullDisk full(0);
  const UserError error = errorOf([&] { writeDraw(archive, drawOf("14/01/1939", {})); });
  EXPECT_THAT(error.what(), AnyOf(HasSubstr("il disco è pieno"), HasSubstr("supera la grandezza ammessa")));
}

TEST(ErrorTexts, APathThatIsTooLongSaysSo) {
  const std::string name(300, 'y');
  EXPECT_THAT(errorOf([&] { Database("/" + name, FileKind::Archive); }).what(), HasSubstr("il nome è troppo lungo"));
  EXPECT_THAT(errorOf([&] { createArchive("/tmp/" + name, {}, Existing::Refuse); }).what(),
              HasSubstr("il nome è troppo lungo"));
  std::string deep = "/tmp";
  for (int i = 0; i < 1000; ++i) deep += "/cartella";
  EXPECT_THAT(errorOf([&] { Database(deep, FileKind::Archive); }).what(), HasSubstr("il nome è troppo lungo"));
}

TEST(ErrorTexts, AnEmptyFileIsToldAsEmpty) {
  TempFolder folder;
  writeBytes(folder / "a.mdb", "");
  EXPECT_THAT(errorOf([&] { Database(folder / "a.mdb", FileKind::Archive); }).what(), HasSubstr("è vuoto."));
}

TEST(ErrorTexts, AChoiceOfArchiveThatCannotBeStoredSaysSo) {
  ProgramWorld world;
  world.makeMain({{.Parametro = "EstrazioneIniziale", .Valore1 = "1"}});
  const auto archive = world.makeArchive({drawOf("07/01/1939", {})});
  world.shell.answerFile(archive);
  world.start();
  EXPECT_THAT(world.shell.lastBox().text, HasSubstr("La scelta vale solo per questa esecuzione"));
  EXPECT_THAT(world.shell.lastBox().text, HasSubstr("manca il parametro PercorsoArchivio"));
  EXPECT_NE(world.program->DbArchivio, nullptr);
}

}  // namespace
}  // namespace trv5
