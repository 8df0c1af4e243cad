#include "desk/workbench_buttons.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/archive_builder.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

TEST(WorkbenchButtons, StandOnceEachAndReachTheWorkbench) {
  WorkbenchWorld world(archiveOf({{{"BA", {1, 2, 3, 4, 5}}}}));
  std::set<std::string> names;
  for (const WorkbenchButtons& group : workbenchButtons()) {
    EXPECT_STRNE(group.place, "");
    for (const WorkbenchButton& row : group.buttons) {
      EXPECT_TRUE(names.insert(row.name).second) << row.name << " stands twice";
      const Button& button = world.w.button(row.name);
      EXPECT_EQ(button.caption(), row.caption);
      EXPECT_EQ(button.hasEvent(), row.run != nullptr) << row.name;
      EXPECT_TRUE(row.run == nullptr || button.toolTip() == row.toolTip) << row.name;
    }
  }
  EXPECT_EQ(names.size(), 121U);
}

TEST(WorkbenchButtons, OpenTheTabsThatHaveAnOperationToOffer) {
  WorkbenchWorld world(archiveOf({{{"BA", {1, 2, 3, 4, 5}}}}));
  for (const WorkbenchButtons& group : workbenchButtons()) {
    if (group.tab < 0) continue;
    EXPECT_EQ(world.w.SSTab3.tabEnabled(group.tab), group.buttons.front().run != nullptr) << group.place;
  }
}

TEST(WorkbenchButtons, SayWhenTheyHaveNoOperationYet) {
  WorkbenchWorld world(archiveOf({{{"BA", {1, 2, 3, 4, 5}}}}));
  for (const WorkbenchButtons& group : workbenchButtons())
    for (const WorkbenchButton& row : group.buttons) {
      if (row.run != nullptr) continue;
      EXPECT_FALSE(world.w.button(row.name).enabled()) << row.name;
      EXPECT_EQ(world.w.button(row.name).toolTip(), "Non ancora disponibile in questa versione") << row.name;
    }
}

}  // namespace
}  // namespace trv5
