#include "engine/payouts.h"

#include <gtest/gtest.h>

#include "core/database_files.h"
#include "provision/shipped_contents.h"
#include "support/temp_folder.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

// A workbench on a main database with these parameters.
struct PaidWorld {
  explicit PaidWorld(const std::vector<ParameterRow>& parameters) : world(archiveOf({{{"BA", {1, 2, 3, 4, 5}}}})) {
    createMainDatabase(folder / "main.mdb", {.parameters = parameters, .systems = {}}, Existing::Refuse);
    database = std::make_unique<Database>(folder / "main.mdb", FileKind::Main);
    world.w.hooks.mainDatabase = [this]() -> Database& { return *database; };
  }
  Payouts payouts() const { return payoutsOf(world.w); }

  TempFolder folder;
  WorkbenchWorld world;
  std::unique_ptr<Database> database;
};

const Payouts kLaw;

TEST(Payouts, AreShippedAsTheLawSays) {
  const PaidWorld world(shippedContents("Archivio.mdb").parameters);
  EXPECT_EQ(world.payouts().multiples, kLaw.multiples);
  EXPECT_DOUBLE_EQ(world.payouts().withheld, kLaw.withheld);
  int rows = 0;
  for (const ParameterRow& row : shippedContents("").parameters)
    rows += row.Parametro.starts_with("Vincita") || row.Parametro == "RitenutaVincite" ? 1 : 0;
  EXPECT_EQ(rows, 6);
}

TEST(Payouts, AreThoseOfTheParameters) {
  const PaidWorld world({{"VincitaEstratto", " 12,5 "}, {"VincitaCinquina", "1000000"}, {"ritenutavincite", "10,5"}});
  EXPECT_EQ(world.payouts().multiples, (std::array<double, 6>{0, 12.5, 250, 4500, 120000, 1000000}));
  EXPECT_DOUBLE_EQ(world.payouts().withheld, 0.105);
}

TEST(Payouts, OfARowThatSaysNothingCertainAreThoseOfTheLaw) {
  for (const char* nonsense : {"", "0", "-3", "molto", "11.232", "1.000,5", "11,2,3", "12 volte", "inf", "nan", "1e5",
                               "99999999999999999999", "0x10"}) {
    const PaidWorld world({{"VincitaEstratto", nonsense}, {"VincitaTerno", nonsense}});
    EXPECT_EQ(world.payouts().multiples, kLaw.multiples) << nonsense;
  }
  for (const char* nonsense : {"", "100", "-1", "otto", "8 %", "0.08"}) {
    const PaidWorld world({ParameterRow{"RitenutaVincite", nonsense}});
    EXPECT_DOUBLE_EQ(world.payouts().withheld, kLaw.withheld) << nonsense;
  }
  const PaidWorld nothingWithheld({ParameterRow{"RitenutaVincite", "0"}});
  EXPECT_EQ(nothingWithheld.payouts().withheld, 0);
}

TEST(Payouts, WithoutRowsOrDatabaseAreThoseOfTheLaw) {
  const PaidWorld world({});
  EXPECT_EQ(world.payouts().multiples, kLaw.multiples);
  EXPECT_DOUBLE_EQ(world.payouts().withheld, kLaw.withheld);
  const WorkbenchWorld closed(archiveOf({{{"BA", {1, 2, 3, 4, 5}}}}));
  EXPECT_EQ(payoutsOf(closed.w).multiples, kLaw.multiples);
}

}  // namespace
}  // namespace trv5
