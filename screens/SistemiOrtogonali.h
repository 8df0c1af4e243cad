#pragma once

#include "screens/kit/screen.h"
#include "tools/orthogonal_systems.h"

namespace trv5 {

class SideSplitter;

/// The orthogonal systems: the list, the rows with the numbers to pick, the rewritten rows, from left to right.
class SistemiOrtogonaliScreen : public Screen {
  Q_OBJECT
 public:
  explicit SistemiOrtogonaliScreen(SistemiOrtogonali& form);

  void restore(const QSettings& settings) override;
  void store(QSettings& settings) const override;
  std::vector<std::string> printHeader(const GridControl& grid) const override;

 private:
  QWidget* listPanel();
  QWidget* systemPanel();
  QWidget* resultPanel();
  QLayout* picks();

  const SistemiOrtogonali& m_form;
  SideSplitter* m_parts;
};

}  // namespace trv5
