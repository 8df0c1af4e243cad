#include "characteristics_world.h"

namespace trv5 {
namespace {

TEST(DrawCharacteristicsSearch, ByIndexTakesDrawsOfTheArchiveOnly) {
  CharacteristicsWorld world;
  world.form.hs1.set(2);
  for (const char* const answer : {"0", "4", "", "-1", "abc", "99999999999"}) {
    world.shell.answerText(answer);
    world.form.Command42[0].press();
    EXPECT_EQ(world.form.hs1.value(), 2) << answer;
  }
  world.shell.answerText("1");
  world.form.Command42[0].press();
  EXPECT_EQ(world.form.hs1.value(), 1);
  world.shell.answerText("3");
  world.form.Command42[0].press();
  EXPECT_EQ(world.form.hs1.value(), 3);
  EXPECT_EQ(world.shell.lastBox().title, "Scelta estrazione");
  EXPECT_EQ(world.shell.lastBox().text, "Inserire il n° indice dell'archivio modello.");
  EXPECT_EQ(world.form.Command42[0].caption(), "Ricerca per numero indice");
}

TEST(DrawCharacteristicsSearch, ByDateComparesTheText) {
  CharacteristicsWorld world;
  world.shell.answerText("14/01/1939");
  world.form.Command42[1].press();
  EXPECT_EQ(world.form.hs1.value(), 2);
  EXPECT_EQ(world.shell.lastBox().title, "Ricerca per data GG/MM/AAAA");
  EXPECT_EQ(world.shell.lastBox().text, "Data ?");
  world.shell.answerText("14/1/1939");
  world.form.Command42[1].press();
  EXPECT_EQ(world.form.hs1.value(), 2);
  EXPECT_EQ(world.shell.lastBox().text, "Data non trovata");
  EXPECT_EQ(world.shell.lastBox().title, "Cerca data");
  EXPECT_EQ(world.form.Command42[1].caption(), "Cerca estrazione per data");
}

TEST(DrawCharacteristicsSearch, ByDateIsSilentOnACancelledOrEmptyAnswer) {
  CharacteristicsWorld world;
  world.shell.answerCancel();
  world.form.Command42[1].press();
  world.shell.answerText("");
  world.form.Command42[1].press();
  EXPECT_EQ(world.shell.shown.size(), 2U);
}

TEST(DrawCharacteristicsSearch, ByDateEndsWithAShorterModelArchive) {
  CharacteristicsWorld world;
  world.archive.setModelFrom(3);
  world.shell.answerText("07/01/1939");
  world.form.Command42[1].press();
  EXPECT_EQ(world.shell.lastBox().text, "Data non trovata");
  EXPECT_EQ(world.form.hs1.value(), 3);
}

}  // namespace
}  // namespace trv5
