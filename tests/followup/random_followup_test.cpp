// The follow-up beside its plain runs, on random methods.
#include <gtest/gtest.h>

#include <ostream>

#include "core/text.h"
#include "engine/evaluation.h"
#include "engine/result_forms.h"
#include "support/plain_followup.h"
#include "support/random_method.h"
#include "support/random_runs.h"
#include "support/random_search.h"

namespace trv5 {
namespace {

struct PlainRun {
  const char* name;
  void (*press)(WorkbenchWorld&);
  void (*plain)(PlainFollowup&);
};

void PrintTo(const PlainRun& value, std::ostream* out) {
  *out << value.name;
}

template <int row>
void click(WorkbenchWorld& world) {
  if (row < world.w.Fg15.rows()) world.w.Fg15.clickCell(row, 1);
}
template <int row>
void plainClick(PlainFollowup& p) {
  if (row >= p.Fg15.rows()) return;
  if (row > 0) p.Fg15.setCurrent(row, 1);
  p.clickFg15(row);
}

#define TRV5_PRESS(button) #button, [](WorkbenchWorld & world) { world.press(#button); }

const std::vector<PlainRun> kRuns = {
    {"Fg15", click<1>, plainClick<1>},
    {"Fg15_3", click<3>, plainClick<3>},
    {"Fg15_0", click<0>, plainClick<0>},
    {TRV5_PRESS(Command35), [](PlainFollowup& p) { p.Command35(); }},
    {TRV5_PRESS(Command102), [](PlainFollowup& p) { p.Command102(); }},
    {TRV5_PRESS(Command50), [](PlainFollowup& p) { p.filter("1"); }},
    {TRV5_PRESS(Command55), [](PlainFollowup& p) { p.filter("2"); }},
    {TRV5_PRESS(Command60), [](PlainFollowup& p) { p.filter("3"); }},
    {TRV5_PRESS(Command61), [](PlainFollowup& p) { p.filter("L"); }},
    {TRV5_PRESS(Command62), [](PlainFollowup& p) { p.Command62(); }},
    {TRV5_PRESS(Command63), [](PlainFollowup& p) { p.Command63(); }},
    {TRV5_PRESS(Command114), [](PlainFollowup& p) { p.Command114(1); }},
    {TRV5_PRESS(Command115), [](PlainFollowup& p) { p.Command114(2); }},
    {TRV5_PRESS(Command116), [](PlainFollowup& p) { p.Command114(3); }},
    {TRV5_PRESS(Command117), [](PlainFollowup& p) { p.Command117(); }},
    {TRV5_PRESS(Command9), [](PlainFollowup& p) { p.Command9(); }},
    {TRV5_PRESS(Command88), [](PlainFollowup& p) { p.Command88(); }},
    {TRV5_PRESS(Command76), [](PlainFollowup& p) { p.Command76(); }},
    {TRV5_PRESS(Command104), [](PlainFollowup& p) { p.Command104(); }},
    {TRV5_PRESS(Command111), [](PlainFollowup& p) { p.search(2); }},
    {TRV5_PRESS(Command112), [](PlainFollowup& p) { p.search(3); }},
    {TRV5_PRESS(Command113), [](PlainFollowup& p) { p.search(4); }},
};

// What the user may have changed since the last verification.
void disturb(WorkbenchWorld& world, std::mt19937& rng) {
  Workbench& w = world.w;
  if (below(rng, 3) == 0) w.hs1.set(1 + below(rng, w.archive.NumEstrazioni()));
  if (below(rng, 3) == 0) w.FgRG.clickCell(0, below(rng, kWheels));
  if (below(rng, 3) == 0) w.Colpi = 1 + below(rng, 20);
  if (below(rng, 3) == 0) w.ComboSorte.pick(below(rng, 5));
  w.ComboDelta.pick(below(rng, 6));
  w.OptionRit[below(rng, 3)].set(true);
  w.Ch_coperture.set(below(rng, 2) == 0);
  for (int i = 0; i < 4; ++i) w.Ch_FF[i].set(below(rng, 2) == 0);
}

// Random live forecasts as `FgRagg` may hold them, of a method or two.
void fillGrouping(WorkbenchWorld& world, std::mt19937& rng) {
  Workbench& w = world.w;
  const auto chance = [&rng](int n) { return below(rng, n) == 0; };
  w.FgRagg.cutToHeading();
  for (int i = below(rng, 12); i > 0; --i) {
    const int row = w.FgRagg.appendRow();
    w.FgRagg.setNumber(row, 1, 1 + below(rng, 3));
    w.FgRagg.setText(row, 2, "metodo" + w.FgRagg.text(row, 1));
    w.FgRagg.setNumber(row, 3, 1 + below(rng, w.archive.NumEstrazioni()));
    w.FgRagg.setNumber(row, 5, chance(4) ? 1 + below(rng, 5) : 1 + below(rng, 2));
    for (int column = 7; column <= 16; ++column)
      if (column == 7 || chance(2)) w.FgRagg.setText(row, column, twoDigits(91 - 1 - below(rng, chance(2) ? 90 : 15)));
    for (int column = 17; column <= 27; ++column)
      if (chance(2)) w.FgRagg.setText(row, column, "X");
  }
}

class Followup : public testing::TestWithParam<PlainRun> {};

Grid outcomesOf(FakeShell& shell) {
  return dynamic_cast<Speciale&>(shell.show("Speciale")).Fg1;
}

void compare(WorkbenchWorld& world, const PlainRun& run) {
  PlainFollowup plain(world.w);
  run.press(world);
  run.plain(plain);
  ASSERT_EQ(difference(plain, world.w), "");
  for (std::size_t i = 0; i < plain.FgS.size(); ++i) {
    const std::string name = "FgS" + std::to_string(i + 1);
    ASSERT_TRUE(world.w.get<GridControl>(name).grid() == plain.FgS[i]) << name;
  }
  if (std::string_view(run.name) != "Command117") return;
  ASSERT_EQ(world.shell.isOpen("Speciale"), plain.speciale.hasData());
  if (plain.speciale.hasData()) ASSERT_TRUE(outcomesOf(world.shell) == plain.speciale);
}

TEST_P(Followup, AgreesWithThePlainRunOnRandomMethods) {
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(50)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    WorkbenchWorld world(randomMethodArchive(rng));
    world.shell.addScreen("Speciale", [&world] { return std::make_unique<Speciale>(world.shell); });
    for (int setting = 0; setting < 20; ++setting) {
      SCOPED_TRACE("setting " + std::to_string(setting));
      randomMethod(world, rng);
      fillGrouping(world, rng);
      RicavaElementiReali(world.w);
      disturb(world, rng);
      if (below(rng, 3) != 0) world.press("Command35");
      if (below(rng, 3) == 0) world.w.Fg15.clickCell(below(rng, world.w.Fg15.rows()), 1);
      if (below(rng, 3) == 0) world.press("Command9");
      disturb(world, rng);
      ASSERT_NO_FATAL_FAILURE(compare(world, GetParam()));
      ASSERT_NO_FATAL_FAILURE(compare(world, GetParam()));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(OfEveryButton, Followup, testing::ValuesIn(kRuns),
                         [](const auto& run) { return run.param.name; });

}  // namespace
}  // namespace trv5
