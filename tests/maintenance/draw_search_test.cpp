#include "maintenance/draw_search.h"

#include <gtest/gtest.h>

#include "maintenance/archivio_world.h"

namespace trv5 {
namespace {

std::vector<DrawRow> rows(int count) {
  std::vector<DrawRow> made;
  for (int draw = 1; draw <= count; ++draw) made.push_back(drawOf(dateOfDraw(draw), {}));
  return made;
}

struct DrawSearch : ::testing::Test {
  void ask(Button& button, const std::string& answer) {
    world.shell.answerText(answer);
    button.press();
  }
  void askIndex(const std::string& answer) {
    world.shell.answerText(answer);
    a.pAN_DC.click();
  }

  ArchivioWorld world;
  Archivio& a = world.openOn(rows(30));
};

TEST_F(DrawSearch, ByDateGoesToTheDrawAndGivesTheScrollerTheFocus) {
  ask(a.Command59, dateOfDraw(7));
  EXPECT_EQ(a.HScrestrazione.value(), 7);
  EXPECT_TRUE(a.HScrestrazione.hasFocus());
  ASSERT_EQ(world.shell.shown.size(), 1u);
  EXPECT_EQ(world.shell.shown[0].text, "Data ?");
  EXPECT_EQ(world.shell.shown[0].title, "Ricerca per data GG/MM/AAAA");
  EXPECT_EQ(world.shell.shown[0].placeholder, "GG/MM/AAAA");
}

TEST_F(DrawSearch, ByDateOfATextThatIsNoneSaysSo) {
  ask(a.Command59, "xx");
  EXPECT_EQ(world.shell.lastBox().text, "Data non trovata");
  EXPECT_EQ(world.shell.lastBox().title, "Cerca data");
  EXPECT_EQ(a.HScrestrazione.value(), 30);
}

TEST_F(DrawSearch, ByDateCancelledOrEmptyDoesNothing) {
  world.shell.answerCancel();
  a.Command59.press();
  ask(a.Command59, "");
  EXPECT_EQ(world.shell.shown.size(), 2u);
  EXPECT_EQ(a.HScrestrazione.value(), 30);
}

TEST(DrawSearchInAModel, ByDateTakesThePlaceInTheModelArchive) {
  ArchivioWorld world;
  world.makeMain({{.Parametro = "PercorsoArchivio", .Valore1 = world.makeArchive(rows(30)).string()},
                  {.Parametro = "EstrazioneIniziale", .Valore1 = "11"}});
  Archivio& a = world.open();
  world.shell.answerText(dateOfDraw(15));
  a.Command59.press();
  EXPECT_EQ(a.HScrestrazione.value(), 5);
  EXPECT_EQ(a.LBLESTRAZIONE.text(), dateOfDraw(5));
  world.shell.answerText(dateOfDraw(5));  // before the model's first draw
  a.Command59.press();
  EXPECT_EQ(world.shell.lastBox().text, "Data non trovata");
}

TEST_F(DrawSearch, ByIndexTakesTwentyAndMore) {
  ask(a.Command42, "20");
  EXPECT_EQ(a.HScrestrazione.value(), 20);
  EXPECT_TRUE(a.HScrestrazione.hasFocus());
  EXPECT_EQ(world.shell.shown[0].text, "Inserire il n° indice dell'archivio modello.");
  EXPECT_EQ(world.shell.shown[0].title, "Scelta estrazione");
  for (const char* const answer : {"19", "31", "0", "-25", "abc", ""}) {
    ask(a.Command42, answer);
    EXPECT_EQ(a.HScrestrazione.value(), 20) << answer;
  }
  ask(a.Command42, "30");
  EXPECT_EQ(a.HScrestrazione.value(), 30);
}

TEST_F(DrawSearch, AClickOnTheIndexOffers3894AndTakesAnyDrawOfTheArchive) {
  askIndex("3");
  EXPECT_EQ(world.shell.shown[0].text, "Digitare il numero indice");
  EXPECT_EQ(world.shell.shown[0].title, "Indice estrazione");
  EXPECT_EQ(world.shell.shown[0].initial, "3894");
  EXPECT_EQ(a.HScrestrazione.value(), 3);
  EXPECT_TRUE(a.HScrestrazione.hasFocus());
}

TEST_F(DrawSearch, AnIndexThatTheArchiveLacksLeavesTheScrollerWhereItStood) {
  askIndex("3");
  for (const char* const answer : {"0", "31", "3894", "99999999999", "abc", ""}) {
    askIndex(answer);
    EXPECT_EQ(a.HScrestrazione.value(), 3) << answer;
    EXPECT_EQ(a.LBLESTRAZIONE.text(), dateOfDraw(3));
  }
  world.shell.answerOk();
  a.pAN_DC.click();
  EXPECT_EQ(a.HScrestrazione.value(), 3);
}

TEST_F(DrawSearch, TheLastDrawIsOnePressAway) {
  a.HScrestrazione.set(3);
  a.Command4.press();
  EXPECT_EQ(a.LBLESTRAZIONE.text(), dateOfDraw(30));
}

}  // namespace
}  // namespace trv5
