#include "maintenance/formats/exchange_files.h"

#include <gtest/gtest.h>

#include <random>

#include "provision/demo_archive.h"
#include "support/archive_builder.h"
#include "support/plain_exchange.h"

namespace trv5 {
namespace {

Archive withDates(const std::vector<std::string>& dates) {
  std::vector<DrawRow> rows;
  for (const std::string& date : dates) rows.push_back(drawOf(date, {{"BA", {5, 71, 13, 90, 2}}}));
  return archiveOfRows(rows);
}

int integerAt(const std::string& bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]) | static_cast<unsigned char>(bytes[at + 1]) << 8;
}

TEST(ExchangeFiles, TheYearOf1961Is61AndThatOf2005Is5InDatiIiiAnd05InRuotafast) {
  const Archive archive = withDates({"12/06/1961", "03/01/2005"});
  const std::string records = datiIii(archive), lines = ruotafast(archive);
  ASSERT_EQ(records.size(), 220U);
  EXPECT_EQ(integerAt(records, 0), 12);
  EXPECT_EQ(integerAt(records, 2), 6);
  EXPECT_EQ(integerAt(records, 4), 61);
  EXPECT_EQ(integerAt(records, 114), 5);
  EXPECT_EQ(lines.substr(101, 6), "610612");
  EXPECT_EQ(lines.substr(114 + 101, 6), "050103");
}

TEST(ExchangeFiles, AWheelWithoutDataWrites00FiveTimes) {
  const Archive archive = withDates({"10/06/1961"});
  const std::string numbers = "0571139002" + std::string(90, '0');
  EXPECT_EQ(datiIii(archive).substr(6, 100), numbers);
  EXPECT_EQ(ruotafast(archive), "\"" + numbers + "610610" + "0101\"\r\n");
}

TEST(ExchangeFiles, NothingOfTheNationalWheelGoesToTheFirstTwo) {
  const Archive archive =
      archiveOfRows({drawOf("02/01/2024", {{"VE", {1, 2, 3, 4, 5}}, {"NZ", {77, 77, 77, 77, 77}}})});
  EXPECT_EQ(datiIii(archive).substr(96, 10), "0102030405");
  EXPECT_EQ(datiIii(archive).find("77"), std::string::npos);
  EXPECT_EQ(ruotafast(archive).find("77"), std::string::npos);
}

TEST(ExchangeFiles, TheNationalFileKeepsTheIndicesOfTheArchive) {
  std::vector<DrawRow> rows;
  for (int draw = 1; draw <= 5000; ++draw)
    rows.push_back(draw < 3800 ? drawOf(dateOfDraw(draw), {}) : drawOf(dateOfDraw(draw), {{"NZ", {1, 2, 3, 4, 90}}}));
  const std::string text = nazionale(archiveOfRows(rows));
  EXPECT_EQ(text.size(), 1201U * 18U);
  EXPECT_EQ(text.substr(0, 18), "03800-0102030490\r\n");
  EXPECT_EQ(text.substr(text.size() - 18), "05000-0102030490\r\n");
}

TEST(ExchangeFiles, ANationalWheelCountsByItsFirstNumber) {
  std::vector<DrawRow> rows(3);
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i].date = dateOfDraw(static_cast<int>(i) + 1);
  rows[0].wheels[10] = "99-02-03-04-05";
  rows[1].wheels[10] = "00-02-03-04-05";
  rows[2].wheels[10] = "90-02-99-00-";
  EXPECT_EQ(nazionale(archiveOfRows(rows)), "00003-9002990000\r\n");
}

TEST(ExchangeFiles, ProgAnnoOf100AndMoreTakesThreeDigitsInALineOf111Characters) {
  std::vector<std::string> dates;
  for (int day = 1; day <= 100; ++day) {
    const int month = (day - 1) / 28 + 1;
    dates.push_back(std::string(day % 28 + 1 < 10 ? "0" : "") + std::to_string(day % 28 + 1) + "/0" +
                    std::to_string(month) + "/2024");
  }
  const std::string lines = ruotafast(withDates(dates));
  const std::size_t last = lines.rfind('\n', lines.size() - 2) + 1;
  EXPECT_EQ(lines.size() - last, 1U + 111U + 3U);
  EXPECT_EQ(lines.substr(lines.size() - 6), "100\"\r\n");
  EXPECT_EQ(integerAt(datiIii(withDates(dates)), 99 * 110 + 108), 100);
}

TEST(ExchangeFiles, RecordIIsDrawIOfTheArchiveAsLoadedWhateverItsDate) {
  const std::string records = datiIii(withDates({"03/01/2005", "12/06/1961", "03/01/1990"}));
  EXPECT_EQ(integerAt(records, 0 * 110 + 4), 5);
  EXPECT_EQ(integerAt(records, 1 * 110 + 4), 61);
  EXPECT_EQ(integerAt(records, 2 * 110 + 4), 90);
}

TEST(ExchangeFiles, AnEmptyArchiveGivesEmptyFiles) {
  EXPECT_EQ(datiIii(Archive()), "");
  EXPECT_EQ(ruotafast(Archive()), "");
  EXPECT_EQ(nazionale(Archive()), "");
}

TEST(ExchangeFiles, TellEachDraw) {
  const Archive archive = withDates({"10/06/1961", "03/01/2005"});
  std::string told;
  for (const auto write : {datiIii, ruotafast, nazionale})
    write(archive, [&](int draw) { told += std::to_string(draw); });
  EXPECT_EQ(told, "121212");
}

TEST(ExchangeFiles, AgreeWithThePlainOnesOnRandomArchives) {
  for (unsigned seed = 1; seed <= 50; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    std::vector<DrawRow> rows = randomRows(rng, 200);
    for (int odd = 0; odd < 10; ++odd) rows[rng() % 200].wheels[rng() % 11] = rng() % 2 == 0 ? "99-00-1x-7" : "";
    const Archive archive = archiveOfRows(rows);
    EXPECT_EQ(datiIii(archive), plainDatiIii(archive));
    EXPECT_EQ(ruotafast(archive), plainRuotafast(archive));
    EXPECT_EQ(nazionale(archive), plainNazionale(archive));
  }
}

TEST(ExchangeFiles, OfTheDemonstrationArchiveAgreeByteByByte) {
  std::vector<DrawRow> rows;
  for (const Draw& draw : simulatedDraws()) rows.push_back(rowOf(draw));
  const Archive archive = archiveOfRows(rows);
  EXPECT_TRUE(datiIii(archive) == plainDatiIii(archive));
  EXPECT_TRUE(ruotafast(archive) == plainRuotafast(archive));
  EXPECT_TRUE(nazionale(archive) == plainNazionale(archive));
}

}  // namespace
}  // namespace trv5
