// The follow-up beside its plain runs, on random methods.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <functional>
#include <map>
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

// One press, its plain run, and whether that left something worth a comparison.
struct PlainRun {
  const char* name;
  void (*press)(WorkbenchWorld&);
  void (*plain)(PlainFollowup&);
  bool (*telling)(const PlainFollowup&);
};

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

bool any(const Grid& grid, const std::function<bool(const Cell&)>& wanted) {
  for (int row = 1; row < grid.rows(); ++row)
    for (int column = 0; column < grid.columns(); ++column)
      if (wanted(grid.at(row, column))) return true;
  return false;
}
bool anyBack(const Grid& grid, Rgb back) {
  return any(grid, [back](const Cell& cell) { return cell.back == back; });
}
bool hidesSome(const Grid& grid) {
  const int hidden = static_cast<int>(grid.hiddenRows().size());
  return hidden > 0 && hidden < grid.dataRows();
}
bool counts(const PlainFollowup& p) {
  for (int row = 1; row < p.FgConv.rows(); ++row)
    for (int column = 1; column < p.FgConv.columns(); ++column)
      if (p.FgConv.number(row, column) > 1) return true;
  return false;
}
bool forecasts(const PlainFollowup& p) {
  return p.FgGioco.rows() > 2;
}
bool filtered(const PlainFollowup& p) {
  return hidesSome(p.FgIC);
}
bool numbers(const PlainFollowup& p) {
  return any(p.FgRit, [](const Cell& cell) { return cell.text == "1"; });
}
bool marks(const PlainFollowup& p) {
  return anyBack(p.FgRit, AranciaMedio);
}

#define TRV5_PRESS(button) #button, [](WorkbenchWorld & world) { world.press(#button); }

const std::vector<PlainRun> kLive = {
    {"Fg15", click<1>, plainClick<1>, forecasts},
    {"Fg15 row 3", click<3>, plainClick<3>, forecasts},
    {"Fg15 heading", click<0>, plainClick<0>, [](const PlainFollowup& p) { return !p.FgGioco.hasData(); }},
    {TRV5_PRESS(Command35), [](PlainFollowup& p) { p.Command35(); },
     [](const PlainFollowup& p) { return p.FgIC.rows() > 2; }},
    {TRV5_PRESS(Command102), [](PlainFollowup& p) { p.Command102(); },
     [](const PlainFollowup& p) { return anyBack(p.FgIC, Verde); }},
    {TRV5_PRESS(Command50), [](PlainFollowup& p) { p.filter("1"); }, filtered},
    {TRV5_PRESS(Command55), [](PlainFollowup& p) { p.filter("2"); }, filtered},
    {TRV5_PRESS(Command60), [](PlainFollowup& p) { p.filter("3"); }, filtered},
    {TRV5_PRESS(Command61), [](PlainFollowup& p) { p.filter("L"); }, filtered},
    {TRV5_PRESS(Command62), [](PlainFollowup& p) { p.Command62(); }, filtered},
    {TRV5_PRESS(Command63), [](PlainFollowup& p) { p.Command63(); },
     [](const PlainFollowup& p) { return anyBack(p.Fg15, Ciano); }},
};
const std::vector<PlainRun> kGrouping = {
    {TRV5_PRESS(Command114), [](PlainFollowup& p) { p.Command114(1); }, counts},
    {TRV5_PRESS(Command115), [](PlainFollowup& p) { p.Command114(2); }, counts},
    {TRV5_PRESS(Command116), [](PlainFollowup& p) { p.Command114(3); }, counts},
    {TRV5_PRESS(Command117), [](PlainFollowup& p) { p.Command117(); },
     [](const PlainFollowup& p) { return p.speciale.hasData(); }},
};
const std::vector<PlainRun> kInformation = {
    {TRV5_PRESS(Command9), [](PlainFollowup& p) { p.Command9(); }, numbers},
    {TRV5_PRESS(Command88), [](PlainFollowup& p) { p.Command88(); }, numbers},
    {TRV5_PRESS(Command76), [](PlainFollowup& p) { p.Command76(); }, numbers},
    {TRV5_PRESS(Command104), [](PlainFollowup& p) { p.Command104(); },
     [](const PlainFollowup& p) { return hidesSome(p.FgRit); }},
    {TRV5_PRESS(Command111), [](PlainFollowup& p) { p.search(2); }, marks},
    {TRV5_PRESS(Command112), [](PlainFollowup& p) { p.search(3); }, marks},
    {TRV5_PRESS(Command113), [](PlainFollowup& p) { p.search(4); }, marks},
};

struct Page {
  const char* name;
  const std::vector<PlainRun>& runs;
};

void PrintTo(const Page& value, std::ostream* out) {
  *out << value.name;
}

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

// Few different ones, so that forecasts meet; now and then what is no number.
std::string playedNumber(std::mt19937& rng) {
  if (below(rng, 20) == 0) return below(rng, 2) == 0 ? "00" : std::to_string(91 + below(rng, 9));
  return twoDigits(90 - below(rng, below(rng, 3) == 0 ? 90 : 8));
}

// Random live forecasts as `FgRagg` may hold them, of a method or two.
void fillGrouping(WorkbenchWorld& world, std::mt19937& rng) {
  Workbench& w = world.w;
  const auto chance = [&rng](int n) { return below(rng, n) == 0; };
  w.FgRagg.cutToHeading();
  for (int i = below(rng, 30); i > 0; --i) {
    const int row = w.FgRagg.appendRow();
    w.FgRagg.setNumber(row, 1, 1 + below(rng, 3));
    w.FgRagg.setText(row, 2, "metodo" + w.FgRagg.text(row, 1));
    w.FgRagg.setNumber(row, 3, 1 + below(rng, w.archive.NumEstrazioni()));
    w.FgRagg.setNumber(row, 5, chance(4) ? 1 + below(rng, 5) : 1 + below(rng, 3));
    for (int column = 7; column <= 16; ++column)
      if (column == 7 || chance(2)) w.FgRagg.setText(row, column, playedNumber(rng));
    for (int column = 17; column <= 27; ++column)
      if (chance(2)) w.FgRagg.setText(row, column, "X");
  }
}

// What the operations read of the setting that failed.
std::string described(const Workbench& w) {
  std::string text =
      fmt::format("reference draw {} of {}, colpi {}, delta {}, played on {:b}\n", w.EstrazioneRiferimento,
                  w.archive.UltimaEstrazione(), w.Colpi, w.ComboDelta.index(), w.RuoteGioco);
  for (const GridControl* const grid : {&w.FgEv, &w.Fg15, &w.FgGioco, &w.FgIC, &w.FgRagg}) {
    text += grid->name() + '\n';
    for (int row = 0; row < grid->rows(); ++row, text += '\n')
      for (int column = 0; column < grid->columns(); ++column)
        text += grid->text(row, column) + (grid->back(row, column) == kWhite ? "|" : "*|");
  }
  return text;
}

Grid outcomesOf(FakeShell& shell) {
  return dynamic_cast<Speciale&>(shell.show("Speciale")).Fg1;
}

// Empty when the press leaves what the plain run left.
std::string comparison(WorkbenchWorld& world, const PlainRun& run, PlainFollowup& plain) {
  run.press(world);
  run.plain(plain);
  if (const std::string text = difference(plain, world.w); !text.empty()) return text;
  for (std::size_t i = 0; i < plain.FgS.size(); ++i) {
    const std::string name = "FgS" + std::to_string(i + 1);
    if (const std::string text = difference(plain.FgS[i], world.w.get<GridControl>(name)); !text.empty())
      return name + ' ' + text;
  }
  if (std::string_view(run.name) != "Command117") return {};
  if (world.shell.isOpen("Speciale") != plain.speciale.hasData()) return "Speciale open or not";
  return plain.speciale.hasData() ? difference(plain.speciale, outcomesOf(world.shell)) : "";
}

void randomSetting(WorkbenchWorld& world, std::mt19937& rng) {
  randomMethod(world, rng);
  fillGrouping(world, rng);
  RicavaElementiReali(world.w);
  disturb(world, rng);
  if (below(rng, 3) != 0) world.press("Command35");
  if (below(rng, 3) == 0) world.w.Fg15.clickCell(below(rng, world.w.Fg15.rows()), 1);
  if (below(rng, 3) == 0) world.press("Command9");
  disturb(world, rng);
}

// The runs in an order of their own, one of them twice.
std::vector<const PlainRun*> shuffled(const std::vector<PlainRun>& runs, std::mt19937& rng) {
  std::vector<const PlainRun*> order;
  for (const PlainRun& run : runs) order.insert(order.begin() + below(rng, static_cast<int>(order.size()) + 1), &run);
  order.push_back(order.back());
  return order;
}

class Followup : public testing::TestWithParam<Page> {};

TEST_P(Followup, AgreesWithThePlainRunsOnRandomMethods) {
  constexpr int kSettings = 20;
  const int seeds = randomRuns(50);
  std::map<const PlainRun*, int> telling;
  for (int seed = 1; seed <= seeds; ++seed) {
    std::mt19937 rng(static_cast<unsigned>(seed));
    WorkbenchWorld world(randomMethodArchive(rng));
    world.shell.addScreen("Speciale", [&world] { return std::make_unique<Speciale>(world.shell); });
    for (int setting = 0; setting < kSettings; ++setting) {
      randomSetting(world, rng);
      for (const PlainRun* const run : shuffled(GetParam().runs, rng)) {
        PlainFollowup plain(world.w);
        ASSERT_EQ(comparison(world, *run, plain), "")
            << run->name << ", seed " << seed << ", setting " << setting << '\n'
            << described(world.w);
        telling[run] += run->telling(plain);
      }
    }
  }
  for (const PlainRun& run : GetParam().runs) EXPECT_GT(telling[&run] * 20, seeds * kSettings) << run.name;
}

INSTANTIATE_TEST_SUITE_P(OfEveryPage, Followup,
                         testing::Values(Page{"Live", kLive}, Page{"Grouping", kGrouping},
                                         Page{"Information", kInformation}),
                         [](const auto& page) { return page.param.name; });

}  // namespace
}  // namespace trv5
