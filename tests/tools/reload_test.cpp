#include <gtest/gtest.h>

#include "core/archive_load.h"
#include "support/program_world.h"
#include "tools/draw_characteristics.h"

namespace trv5 {
namespace {

TEST(DiDiSO, FollowsAnArchiveThatIsLoadedAnewShorter) {
  std::mt19937 rng(5);
  const std::vector<DrawRow> rows = randomRows(rng, 30);
  ProgramWorld world;
  world.makeBoth(rows);
  world.startAndProceed();
  DiDiSO form(*world.program);
  form.load();
  EXPECT_EQ(form.hs1.value(), 30);
  world.program->DbArchivio.reset();
  world.makeArchive({rows.begin(), rows.begin() + 20});
  CaricaArchivioExNovo(*world.program);
  EXPECT_EQ(form.hs1.maximum(), 20);
  EXPECT_EQ(form.Label2.text(), "20");
  EXPECT_EQ(form.Label1.text(), world.program->archive.DateEstrazioni(20));
}

}  // namespace
}  // namespace trv5
