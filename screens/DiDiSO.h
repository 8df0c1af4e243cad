#pragma once

#include "screens/kit/screen.h"
#include "tools/draw_characteristics.h"

namespace trv5 {

class SideSplitter;

/// One draw looked at by itself: the draw, the pairs and the frequencies, from left to right.
class DiDiSOScreen : public Screen {
  Q_OBJECT
 public:
  explicit DiDiSOScreen(DiDiSO& form);

  void restore(const QSettings& settings) override;
  void store(QSettings& settings) const override;
  std::vector<std::string> printHeader(const GridControl& grid) const override;

 private:
  QWidget* drawPanel();
  QWidget* pairsPanel();
  QWidget* frequenciesPanel();

  const DiDiSO& m_form;
  SideSplitter* m_parts;
};

}  // namespace trv5
