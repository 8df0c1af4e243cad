#include "provision/old_conversion.h"

#include <gtest/gtest.h>

#include <sstream>

#include "core/archive_load.h"
#include "core/errors.h"
#include "provision/data_commands.h"
#include "support/old_reader.h"

namespace trv5 {
namespace {

constexpr const char* kDraws =
    "DataEstrazione,Ba,Ca,Fi,Ge,Mi,Na,Pa,Ro,To,Ve,Nz,datareg,orareg\n"
    "\"2005-05-04 00:00:00\",\"81-04-19-45-01\",,,,,,,,,,\"01-02-03-04-05\",\"2005-05-05 00:00:00\","
    "\"1899-12-30 21:15:30\"\n"
    "\"2004-12-04 00:00:00\",\"01-02-03-04-90\",,,,,,,\"5-6\",,,,,\n";

constexpr const char* kHeads =
    "Id_Config,Denominazione,Estrazione,NumCasi,Parametro,Posizioni,RuoteGioco,DDS,Vecchio\n"
    "7,\"Ambata di \"\"Bari\"\"\",100,3,\"7\",\"10000\",\"10000000000\",1,\"x\"\n"
    "9,\"Terni\",101,4,,\"11111\",\"11111111111\",0,\n";
constexpr const char* kDetails =
    "Id_Dett,Rif_Memo,Grid,Riga,R1,Ru1,P1\n"
    "40,7,1,1,\"12\",\"BA\",\"1\"\n41,9,2,1,\"33\",\"CA\",\"2\"\n42,7,1,2,\"13\",\"BA\",\"2\"\n";

std::string failure(const std::function<void()>& act) {
  try {
    act();
  } catch (const UserError& error) {
    return error.what();
  }
  return "nothing failed";
}

struct Answer {
  int status;
  std::string output, errors;
};

Answer command(const std::vector<std::string>& arguments) {
  std::ostringstream output, errors;
  const int status = runDataCommand(arguments, output, errors);
  return {status, output.str(), errors.str()};
}

std::string text(const Database& database, const std::string& select) {
  Statement statement = database.prepare(select);
  std::string found;
  while (statement.step())
    for (int column = 0; column < statement.columns(); ++column) found += statement.text(column) + "|";
  return found;
}

TEST(OldArchive, BecomesANewOneInTheOrderOfItsDatesWithTheMomentsOfItsRows) {
  const OldReader reader;
  reader.table("EstrazioniLotto", kDraws);
  const std::string before = readBytes(reader.file("a.mdb"));
  const Answer answer = command({"converti", reader.file("a.mdb").string(), reader.file("n.mdb").string()});
  ASSERT_EQ(answer.status, 0) << answer.errors;
  EXPECT_NE(answer.output.find("archivio con 2 estrazioni, dal 04/12/2004 al 04/05/2005"), std::string::npos);
  EXPECT_NE(answer.output.find("04/12/2004, Roma: \"5-6\""), std::string::npos) << answer.output;
  const Database archive(reader.file("n.mdb"), FileKind::Archive);
  const std::vector<DrawRow> draws = readDraws(archive);
  ASSERT_EQ(draws.size(), 2u);
  EXPECT_EQ(draws[0].wheels[0], "01-02-03-04-90");
  EXPECT_EQ(draws[0].wheels[7], "5-6");
  EXPECT_EQ(draws[1].wheels[10], "01-02-03-04-05");
  EXPECT_EQ(text(archive, "SELECT datareg, orareg FROM EstrazioniLotto ORDER BY DataEstrazione"),
            "||2005-05-05|21:15:30|");
  EXPECT_EQ(text(archive, "SELECT count(*) FROM VerificaEstrazioni"), "2|") << "each draw has its sum";
  EXPECT_EQ(readBytes(reader.file("a.mdb")), before) << "the old file is never written";
}

TEST(OldArchive, WithoutTheNazionaleHasItUndrawn) {
  const std::vector<RegisteredDraw> draws =
      oldDraws(parseOldTable("dataestrazione,BA\n\"1990-01-06 00:00:00\",\"01-02-03-04-05\"\n"));
  ASSERT_EQ(draws.size(), 1u);
  EXPECT_EQ(draws[0].row.date, "06/01/1990");
  EXPECT_EQ(draws[0].row.wheels[0], "01-02-03-04-05");
  EXPECT_EQ(draws[0].row.wheels[10], "");
}

TEST(OldArchive, WithADateThatIsNoneOrStandsTwiceIsRefused) {
  const auto drawsOf = [](const std::string& rows) { oldDraws(parseOldTable("DataEstrazione,Ba\n" + rows)); };
  EXPECT_EQ(failure([&] { drawsOf("\"1990-02-30 00:00:00\",\n"); }), "Riga 1: \"1990-02-30 00:00:00\" non è una data.");
  EXPECT_EQ(failure([&] { drawsOf(",\"01-02-03-04-05\"\n"); }), "Riga 1: \"\" non è una data.");
  EXPECT_EQ(failure([&] { drawsOf("\"1990-01-06 00:00:00\",\n\"1990-01-06 10:00:00\",\n"); }),
            "L'estrazione del 06/01/1990 compare due volte.");
  EXPECT_EQ(failure([] { oldDraws(parseOldTable("Ba\n")); }), "Nella tabella manca il campo DataEstrazione.");
}

TEST(OldArchive, LeavesNoNewFileBehindWhenItCannotBeRead) {
  const OldReader reader;
  reader.table("EstrazioniLotto", kDraws);
  const auto fails = [&] {
    const Answer answer = command({"converti", reader.file("a.mdb").string(), reader.file("n.mdb").string()});
    return answer.status == 1 && !answer.errors.empty() && !std::filesystem::exists(reader.file("n.mdb"));
  };
  reader.after("exit 1");
  EXPECT_TRUE(fails());
  reader.after("true");
  reader.table("EstrazioniLotto", "DataEstrazione,Ba\n");
  EXPECT_TRUE(fails()) << "no draws";
  std::filesystem::remove(reader.folder / "tables/EstrazioniLotto");
  EXPECT_TRUE(fails()) << "no table";
}

TEST(OldArchive, IsNeverItsOwnTarget) {
  const OldReader reader;
  reader.table("EstrazioniLotto", kDraws);
  const std::string before = readBytes(reader.file("a.mdb")), file = reader.file("a.mdb").string();
  EXPECT_EQ(command({"converti", file, file, "--sostituisci"}).status, 1);
  EXPECT_EQ(readBytes(reader.file("a.mdb")), before);
}

TEST(OldMainDatabase, BringsItsConfigurationsAndParameters) {
  const OldReader reader;
  reader.table("Elenco_Memo", kHeads);
  reader.table("Elenco_Dett", kDetails);
  reader.table("ParametriProgramma",
               "Parametro,Valore1,Valore2\n\"percorsoarchivio\",\"C:\\vecchio.mdb\",\n"
               "\"INDIRIZZOINTERNET\",\"http://example.net\",\n\"EstrazioneIniziale\",\"250\",\n\"Ignoto\",\"1\",\n");
  const Answer answer = command({"converti", reader.file("a.mdb").string(), reader.file("n.mdb").string()});
  ASSERT_EQ(answer.status, 0) << answer.errors;
  EXPECT_NE(answer.output.find("database principale con 2 configurazioni"), std::string::npos) << answer.output;
  const Database main(reader.file("n.mdb"), FileKind::Main);
  EXPECT_EQ(text(main, "SELECT Id_Config, Denominazione, Estrazione, Parametro, Posizioni, DDS FROM Elenco_Memo"),
            "7|Ambata di \"Bari\"|100|7|10000|1|9|Terni|101||11111|0|");
  EXPECT_EQ(text(main, "SELECT Rif_Memo, Riga, R1, Ru1 FROM Elenco_Dett ORDER BY Rif_Memo, Riga"),
            "7|1|12|BA|7|2|13|BA|9|1|33|CA|");
  EXPECT_EQ(text(main,
                 "SELECT Valore1 FROM ParametriProgramma WHERE Parametro IN ('PercorsoArchivio', "
                 "'IndirizzoInternet', 'EstrazioneIniziale') ORDER BY Parametro"),
            "250|http://example.net||")
      << "the path of another machine isn't taken over";
}

TEST(OldMainDatabase, KeepsTheOtherConfigurationsWhenOneIsNotAdmitted) {
  const OldReader reader;
  reader.table("Elenco_Memo", std::string(kHeads) +
                                  "11,\"terni\",1,1,,\"11111\",\"11111111111\",0,\n"
                                  "12,\"Corta\",1,1,,\"1\",\"11111111111\",0,\n");
  reader.table("Elenco_Dett", std::string(kDetails) + "43,12,1,1,\"1\",\"BA\",\"1\"\n");
  const Converted converted = convertOldFile(reader.file("a.mdb"), reader.file("n.mdb"), Existing::Refuse);
  EXPECT_EQ(converted.configurations, 2u);
  ASSERT_EQ(converted.refused.size(), 2u);
  EXPECT_EQ(converted.refused[0].rfind("\"terni\"", 0), 0u) << "names differ by more than case";
  EXPECT_EQ(converted.refused[1].rfind("\"Corta\"", 0), 0u);
  EXPECT_NE(converted.notes().find("\"Corta\""), std::string::npos);
  const Database main(reader.file("n.mdb"), FileKind::Main);
  EXPECT_EQ(text(main, "SELECT count(*) FROM Elenco_Memo"), "2|");
  EXPECT_EQ(text(main, "SELECT count(*) FROM Elenco_Dett WHERE Rif_Memo = 12"), "0|");
}

TEST(OldMainDatabase, IsNoArchive) {
  const OldReader reader;
  reader.table("Elenco_Memo", kHeads);
  const std::string text =
      failure([&] { convertOldFile(reader.file("a.mdb"), reader.file("n.mdb"), Existing::Refuse, FileKind::Archive); });
  EXPECT_NE(text.find("trv5-data converti"), std::string::npos) << text;
  EXPECT_FALSE(std::filesystem::exists(reader.file("n.mdb")));
}

}  // namespace
}  // namespace trv5
