#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/archive.h"
#include "core/grid.h"

namespace trv5 {

/// The look at one draw, word by word as its rules tell it: grids are tables of cells, wheels count from 1, nothing is
/// prepared or shared. What the form is compared with.
class PlainDrawCharacteristics {
 public:
  using Table = std::vector<std::vector<Cell>>;

  explicit PlainDrawCharacteristics(const Archive& archive);

  void changeDraw(int newDraw);
  void listSumsAndDistances();
  void listEqualClasses();
  void chooseMode(const std::string& word);
  void clickClass(int row, int column);
  void clickPair(int row);
  void clickFrequency(int row, int column);
  void whiten();

  std::string mode;
  Table fG2, fG3, Fg1, Fg5;

 private:
  using Visit = std::function<void(int w, int a, int v, int b, int p, int q)>;

  int number(int w, int position) const;
  void visitPairs(const std::string& family, const Visit& visit) const;
  void countFrequencies();
  void addRow(const std::string& label, const std::string& family, int w, int a, int v, int b, int value);

  const Archive& m_archive;
  int m_draw = 0;
};

}  // namespace trv5
