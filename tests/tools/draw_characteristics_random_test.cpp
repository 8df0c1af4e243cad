// The form beside the plain transcription of its rules, button by button and click by click.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <random>

#include "plain_draw_characteristics.h"
#include "support/archive_builder.h"
#include "support/fake_shell.h"
#include "support/random_runs.h"
#include "tools/draw_characteristics.h"

namespace trv5 {
namespace {

// "" when the data rows of the grid are those of the table, else where they first differ.
std::string difference(const Grid& grid, const PlainDrawCharacteristics::Table& table) {
  if (grid.rows() != static_cast<int>(table.size()))
    return fmt::format("{} rows instead of {}", grid.rows(), table.size());
  for (int r = 1; r < grid.rows(); ++r)
    for (int c = 0; c < grid.columns(); ++c)
      if (grid.at(r, c) != table[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)])
        return fmt::format("row {} column {}: \"{}\"", r, c, grid.text(r, c));
  return "";
}

struct TwoLooks {
  TwoLooks(const Archive& archive, Shell& shell) : form(archive, shell), plain(archive) {
    form.load();
    plain.changeDraw(archive.UltimaEstrazione());
  }

  void compare(const std::string& after) {
    EXPECT_EQ(difference(form.fG2, plain.fG2), "") << "fG2 after " << after;
    EXPECT_EQ(difference(form.fG3, plain.fG3), "") << "fG3 after " << after;
    EXPECT_EQ(difference(form.Fg1, plain.Fg1), "") << "Fg1 after " << after;
    EXPECT_EQ(difference(form.Fg5, plain.Fg5), "") << "Fg5 after " << after;
    const std::string words[] = {"DEC", "CAD", "FIG", "RAD", "GEM"};
    for (int kind = 0; kind < kClassKinds; ++kind) {
      const std::optional<Rgb> back = buttonOf(form, static_cast<ClassKind>(kind)).back();
      if (plain.mode.empty())
        EXPECT_EQ(back, std::nullopt);
      else
        EXPECT_EQ(back, words[kind] == plain.mode ? 0x80FF80U : 0xFFFF80U) << words[kind] << " after " << after;
    }
  }

  void changeDraw(int draw) {
    form.hs1.set(draw);
    plain.changeDraw(draw);
    compare("the change of draw");
  }

  void chooseMode(std::mt19937& rng) {
    const std::pair<Button*, const char*> modes[] = {{&form.Command3, "DEC"},
                                                     {&form.Command4, "CAD"},
                                                     {&form.Command5, "FIG"},
                                                     {&form.Command6, "RAD"},
                                                     {&form.Command7, "GEM"}};
    const auto& [button, word] = modes[rng() % 5];
    button->press();
    plain.chooseMode(word);
    compare(word);
  }

  void act(std::mt19937& rng) {
    switch (rng() % 10) {
      case 0:
        form.Command1.press();
        plain.listSumsAndDistances();
        return compare("DS");
      case 1:
        form.Command2.press();
        plain.listEqualClasses();
        return compare("Command2");
      case 2:
        form.Command81.press();
        plain.whiten();
        return compare("Command81");
      case 3:
      case 4:
        return chooseMode(rng);
      case 5:
      case 6: {
        const int row = 1 + static_cast<int>(rng() % 11), column = 1 + static_cast<int>(rng() % 5);
        form.fG3.clickCell(row, column);
        plain.clickClass(row, column);
        return compare("a click on fG3");
      }
      case 7: {
        if (!form.Fg1.hasData()) return;
        const int row = 1 + static_cast<int>(rng() % static_cast<unsigned>(form.Fg1.dataRows()));
        form.Fg1.clickCell(row, 0);
        plain.clickPair(row);
        return compare("a click on Fg1");
      }
      default: {
        const int row = 1 + static_cast<int>(rng() % 90), column = 1 + static_cast<int>(rng() % 9);
        form.Fg5.clickCell(row, column);
        plain.clickFrequency(row, column);
        return compare("a click on Fg5");
      }
    }
  }

  DiDiSO form;
  PlainDrawCharacteristics plain;
};

TEST(DrawCharacteristicsRandom, ShowWhatThePlainRulesShowAfterEveryButtonAndClick) {
  constexpr unsigned kSeed = 74;
  SCOPED_TRACE("seed " + std::to_string(kSeed));
  std::mt19937 rng(kSeed);
  const int draws = randomRuns(1000);
  const Archive archive = randomArchive(rng, draws);
  FakeShell shell;
  TwoLooks looks(archive, shell);
  looks.compare("the opening");
  int undrawn = 0, beforeNational = 0;
  for (int i = 1; i <= draws && !testing::Test::HasFailure(); ++i) {
    SCOPED_TRACE("draw " + std::to_string(i));
    beforeNational += archive.NumeriEstratti(i, kNational, 1) == 0;
    for (int wheel = 0; wheel < kNational; ++wheel) undrawn += archive.NumeriEstratti(i, wheel, 1) == 0;
    looks.changeDraw(i);
    for (int action = 0; action < 8; ++action) looks.act(rng);
  }
  EXPECT_GT(undrawn, 0);
  EXPECT_GT(beforeNational, 0);
}

}  // namespace
}  // namespace trv5
