#include "maintenance/archive_check.h"

#include <gtest/gtest.h>

#include "maintenance/draw_days.h"
#include "support/archive_builder.h"

namespace trv5 {
namespace {

const Day kToday = *dayOfText("21/08/2026");

// Each finding as "check|draw|date|text".
std::vector<std::string> told(const std::vector<DrawRow>& rows, const std::vector<DrawDifference>& differences = {},
                              Day today = kToday) {
  std::vector<std::string> all;
  for (const ArchiveFinding& f : findingsOf(rows, differences, today))
    all.push_back(std::string(nameOf(f.check)) + "|" + std::to_string(f.draw) + "|" + f.date + "|" + f.text);
  return all;
}

DrawRow withBari(const std::string& date, const std::string& text) {
  DrawRow row = drawOf(date, {});
  row.wheels[0] = text;
  return row;
}

TEST(ArchiveCheck, FindsNothingInAnArchiveOfAllDrawDays) {
  std::vector<DrawRow> rows;
  for (const Day day : drawDays()) rows.push_back(withBari(dateText(day), "01-22-33-44-90"));
  EXPECT_EQ(told(rows), std::vector<std::string>());
  EXPECT_EQ(told({}), std::vector<std::string>());
}

TEST(ArchiveCheck, NamesTheDrawsThatAreNotAsTheyWereWritten) {
  const std::vector<DrawRow> rows = {drawOf("07/01/1939", {}), drawOf("14/01/1939", {})};
  using Kind = DrawDifference::Kind;
  const auto lines =
      told(rows, {{Kind::Missing, drawOf("31/12/1938", {})}, {Kind::Changed, rows[0]}, {Kind::Added, rows[1]}});
  EXPECT_EQ(lines, (std::vector<std::string>{"Somme di controllo|2|14/01/1939|scritta fuori dal programma",
                                             "Somme di controllo|1|07/01/1939|cambiata fuori dal programma",
                                             "Somme di controllo|0|31/12/1938|tolta fuori dal programma"}));
}

TEST(ArchiveCheck, NamesWheelTextsThatAreNotFiveNumbers) {
  for (const char* const text : {"1-2-3-4-5", "01-02-03-04", "01-02-03-04-05-06", "01.02.03.04.05", "01-02-03-04-91",
                                 "00-02-03-04-05", "aa-02-03-04-05", " "})
    EXPECT_EQ(told({withBari("07/01/1939", text)}),
              std::vector<std::string>{std::string("Testi delle ruote|1|07/01/1939|BA: \"") + text + "\""});
}

TEST(ArchiveCheck, TakesZerosForAWheelThatWasNotDrawn) {
  EXPECT_EQ(told({withBari("07/01/1939", "00-00-00-00-00"), withBari("14/01/1939", "")}), std::vector<std::string>());
  EXPECT_TRUE(isWhole(withBari("07/01/1939", "00-00-00-00-00")));
  for (const char* const text : {"00-00-00-00-01", "01-02-03-04-04", "1-2-3-4-5"})
    EXPECT_FALSE(isWhole(withBari("07/01/1939", text))) << text;
}

TEST(ArchiveCheck, NamesNumbersThatRepeat) {
  EXPECT_EQ(told({withBari("07/01/1939", "45-02-45-04-05")}),
            std::vector<std::string>{"Numeri ripetuti|1|07/01/1939|BA: 45 due volte"});
  EXPECT_EQ(told({withBari("07/01/1939", "45-02-45-02-45")}),
            std::vector<std::string>{"Numeri ripetuti|1|07/01/1939|BA: 2 due volte, 45 3 volte"});
}

TEST(ArchiveCheck, NamesDatesAfterToday) {
  const std::vector<DrawRow> rows = {drawOf("07/01/1939", {}), drawOf("14/01/1939", {})};
  EXPECT_EQ(told(rows, {}, *dayOfText("13/01/1939")),
            std::vector<std::string>{"Date|2|14/01/1939|è dopo la data di oggi"});
  EXPECT_EQ(told(rows, {}, *dayOfText("14/01/1939")), std::vector<std::string>());
}

TEST(ArchiveCheck, NamesTheDaysOfDrawsThatAreMissingAsOneGapEach) {
  EXPECT_EQ(told({drawOf("07/01/1939", {}), drawOf("21/01/1939", {}), drawOf("11/02/1939", {})}),
            (std::vector<std::string>{"Calendario|3|11/02/1939|mancano 2 estrazioni, dal 28/01/1939 al 04/02/1939",
                                      "Calendario|2|21/01/1939|manca sabato 14/01/1939"}));
}

TEST(ArchiveCheck, NamesATextThatIsNoDateAndLooksForNoGapAtIt) {
  EXPECT_EQ(told({drawOf("07/01/1939", {}), drawOf("1939", {}), drawOf("14/01/1939", {})}),
            std::vector<std::string>{"Date|2|1939|non è una data"});
}

TEST(ArchiveCheck, ListsTheChecksInTheirOrder) {
  std::vector<DrawRow> rows = {withBari("07/01/1939", "45-02-45-04-05"), withBari("28/01/1939", "x")};
  const auto findings = findingsOf(rows, {{DrawDifference::Kind::Changed, rows[0]}}, *dayOfText("08/01/1939"));
  ASSERT_EQ(findings.size(), 5u);
  for (std::size_t i = 1; i < findings.size(); ++i) EXPECT_LT(findings[i - 1].check, findings[i].check);
}

}  // namespace
}  // namespace trv5
