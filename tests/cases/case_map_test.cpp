#include "cases/case_map.h"

#include <gtest/gtest.h>

namespace trv5 {
namespace {

TEST(MapCellText, TellsCaseDrawAndColpo) {
  Grid map;
  map.setRows(3);
  map.setColumns(6);
  for (int column = 1; column < 6; ++column) map.setNumber(0, column, 700 + column);
  for (int row = 1; row < 3; ++row) map.setNumber(row, 0, row);
  for (const auto& [row, column] :
       {std::pair(1, 1), std::pair(1, 2), std::pair(2, 3), std::pair(2, 4), std::pair(2, 5)})
    map.setBack(row, column, Rosso);
  EXPECT_EQ(mapCellText(map, 1, 1), "Caso 1, estrazione 701, colpo 1");
  EXPECT_EQ(mapCellText(map, 1, 2), "Caso 1, estrazione 702, colpo 2");
  EXPECT_EQ(mapCellText(map, 1, 3), "Caso 1, estrazione 703");
  EXPECT_EQ(mapCellText(map, 2, 5), "Caso 2, estrazione 705, colpo 3");
  EXPECT_EQ(mapCellText(map, 2, 0), "Caso 2");
  EXPECT_EQ(mapCellText(map, 2, -1), "Caso 2");
  EXPECT_EQ(mapCellText(map, 0, 1), "");
  EXPECT_EQ(mapCellText(map, 3, 1), "");
  EXPECT_EQ(mapCellText(map, 1, 6), "");
}

}  // namespace
}  // namespace trv5
