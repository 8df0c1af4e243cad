#include "provision/old_file.h"

#include <gtest/gtest.h>

#include "core/errors.h"
#include "support/old_reader.h"

namespace trv5 {
namespace {

using Row = OldTable::Row;

TEST(OldTableText, HoldsTextsInQuotesNumbersWithoutAndNothingForNull) {
  const OldTable table = parseOldTable("Id,Nome,Valore\n7,\"uno\",\n8,\"\",\"2,5\"\n");
  EXPECT_EQ(table.columns, (std::vector<std::string>{"Id", "Nome", "Valore"}));
  ASSERT_EQ(table.rows.size(), 2u);
  EXPECT_EQ(table.rows[0], (Row{"7", "uno", std::nullopt}));
  EXPECT_EQ(table.rows[1], (Row{"8", "", "2,5"}));
}

TEST(OldTableText, HoldsQuotesAndLineEndsInsideATextAndTheOtherKindOfLineEnd) {
  const OldTable table = parseOldTable("Nome\r\n\"detto \"\"forse\"\"\r\npoi\"\r\n\"senza fine di riga\"");
  ASSERT_EQ(table.rows.size(), 2u);
  EXPECT_EQ(table.rows[0], (Row{"detto \"forse\"\r\npoi"}));
  EXPECT_EQ(table.rows[1], (Row{"senza fine di riga"}));
}

TEST(OldTableText, IsRefusedWhenItIsCutOrUneven) {
  for (const char* const text : {"", "A,B\n1\n", "A\n1,2\n", "A\n\"cut", "A\n\"a\"b\n"})
    EXPECT_THROW(parseOldTable(text), UserError) << text;
}

TEST(OldTableText, CutAnywhereIsRefusedOrHasFewerRows) {
  const std::string whole = "A,B\n1,\"x\"\"y\"\n2,\"z\"\n";
  for (std::size_t length = 0; length < whole.size(); ++length) {
    try {
      const OldTable table = parseOldTable(whole.substr(0, length));
      for (const Row& row : table.rows) EXPECT_EQ(row.size(), table.columns.size()) << length;
    } catch (const UserError&) {
    }
  }
}

TEST(OldTableText, FindsItsColumnsWithoutRegardToCase) {
  const OldTable table = parseOldTable("DataEstrazione,Ba\n");
  EXPECT_EQ(table.column("dataestrazione"), 0u);
  EXPECT_EQ(table.column("BA"), 1u);
  EXPECT_FALSE(table.column("Nz"));
}

TEST(OldFile, IsKnownByItsFirstBytes) {
  const OldReader reader;
  EXPECT_TRUE(isOldFile(reader.file("a.mdb")));
  writeBytes(reader.folder / "short.mdb", std::string("\0\1\0\0Stand", 9));
  EXPECT_FALSE(isOldFile(reader.folder / "short.mdb"));
  EXPECT_FALSE(isOldFile(reader.folder / "missing.mdb"));
  EXPECT_FALSE(isOldFile(reader.folder.path()));
  EXPECT_THROW(oldTableNames(reader.folder / "short.mdb"), UserError);
}

TEST(OldFile, GivesItsTables) {
  const OldReader reader;
  reader.table("Prima", "A\n1\n");
  reader.table("Seconda tabella", "A\n");
  EXPECT_EQ(oldTableNames(reader.file("a.mdb")), (std::vector<std::string>{"Prima", "Seconda tabella"}));
  EXPECT_EQ(readOldTable(reader.file("a.mdb"), "Prima").rows.size(), 1u);
}

// The message of a failed read of the table T.
std::string refusal(const OldReader& reader, const ProcessLimits& limits = {}) {
  try {
    readOldTable(reader.file("a.mdb"), "T", limits);
  } catch (const UserError& error) {
    return error.what();
  }
  return "read";
}

TEST(OldFile, NamesThePackageWhenItsReaderIsMissing) {
  const OldReader reader(OldReader::Tools::None);
  EXPECT_NE(refusal(reader).find("mdbtools"), std::string::npos);
}

TEST(OldFile, IsDamagedWhenTheReaderFailsComplainsOrFindsOtherRowsThanAnnounced) {
  const OldReader reader;
  reader.table("T", "A\n1\n2\n");
  EXPECT_EQ(refusal(reader), "read");
  for (const char* const way : {"exit 1", "echo unreadable page >&2", "kill -SEGV $$"}) {
    reader.after(way);
    EXPECT_NE(refusal(reader).find("danneggiato"), std::string::npos) << way;
  }
  reader.after("true");
  reader.announce("T", 3);
  EXPECT_NE(refusal(reader).find("righe annunciate 3, trovate 2"), std::string::npos) << refusal(reader);
}

TEST(OldFile, IsGivenUpWhenItsReaderDoesNotEndOrPrintsTooMuch) {
  const OldReader reader;
  reader.table("T", "A\n1\n");
  reader.after("sleep 60");
  EXPECT_NE(refusal(reader, {.time = std::chrono::milliseconds(200)}).find("in tempo"), std::string::npos);
  reader.after("true");
  EXPECT_NE(refusal(reader, {.output = 2}).find("più dati"), std::string::npos);
}

}  // namespace
}  // namespace trv5
