#include <gtest/gtest.h>

#include <QTest>

#include "screens/Caso.h"
#include "screens/kit/paper_chart.h"
#include "screens/kit/theme.h"
#include "support/archive_builder.h"
#include "support/fake_shell.h"
#include "support/random_search.h"

namespace trv5 {
namespace {

struct CasoWorld {
  CasoWorld() : screen(form) {
    std::mt19937 rng(5);
    archive = randomArchive(rng, 120);
    AmbataRequest request;
    request.archive = &archive;
    request.formula = formulaInput({Shape::TwoOneWheel, 0, {}, 0, {}});
    request.cases = {100, 90, 80, 70, 60, 50, 40};
    request.colpi = 9;
    request.lastDraw = 120;
    request.wheelSets = {1U};
    request.keep = 50;
    search.repeat = [request] { return repeatAmbate(request); };
    shell.holdSteps = true;
  }
  template <class Widget>
  Widget& find(const char* name) {
    return *screen.findChild<Widget*>(QLatin1String(name));
  }

  Archive archive;
  FakeShell shell;
  Caso form{shell};
  CasoScreen screen;
  RankedSearch search;
};

TEST(CasoScreen, ShowsABarForEachCountAndPointsAtTheOwnOne) {
  CasoWorld world;
  auto& chart = world.find<PaperChart>("Barre");
  EXPECT_TRUE(chart.bars().bars.empty());
  world.form.study(world.search, "Ambate", "1 ricerca su questi casi.", world.archive);
  while (world.shell.runSteps()) {
  }
  const BarChart& bars = chart.bars();
  ASSERT_FALSE(bars.bars.empty());
  double archives = 0;
  for (const BarChart::Bar& bar : bars.bars) archives += bar.height;
  EXPECT_EQ(archives, 999);
  const int best = world.form.bars().best;
  EXPECT_EQ(bars.bars[static_cast<std::size_t>(bars.own)].label, QString::number(best));
  for (const BarChart::Bar& bar : bars.bars) EXPECT_EQ(bar.reaches, bar.label.toInt() >= best);
  EXPECT_TRUE(bars.ownText.startsWith(QStringLiteral("la tua: ")));
  world.form.forget();
  EXPECT_TRUE(chart.bars().bars.empty());
}

TEST(CasoScreen, PrintsItsTableUnderTheSentence) {
  CasoWorld world;
  world.form.study(world.search, "Ambate · 2N 1R", "1 ricerca su questi casi.", world.archive);
  while (world.shell.runSteps()) {
  }
  const std::vector<std::string> header = world.screen.printHeader(world.form.Fg_Conti);
  ASSERT_GE(header.size(), 3U);
  EXPECT_EQ(header[1], "Ambate · 2N 1R");
  EXPECT_EQ(header[2], world.form.LblFrase.text());
}

TEST(CasoScreen, KeepsEveryControlWholeAtItsSize) {
  CasoWorld world;
  world.screen.resize(760, 530);
  world.screen.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&world.screen));
  EXPECT_LE(world.screen.minimumSizeHint().width(), 760);
  EXPECT_LE(world.screen.minimumSizeHint().height(), 530);
  for (const char* const name : {"Cmd_Ferma", "Cmd_Sorteggia", "Stampa_Fg_Conti", "Copia_Fg_Conti"}) {
    const auto& button = world.find<QPushButton>(name);
    EXPECT_GE(button.width(), button.sizeHint().width()) << name;
  }
}

}  // namespace
}  // namespace trv5
