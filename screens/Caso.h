#pragma once

#include "engine/caso.h"
#include "screens/kit/screen.h"

namespace trv5 {

class PaperChart;

/// "Merito del caso": the sentence, the bars beside the table of counts, what was held fixed, and what runs it.
class CasoScreen : public Screen {
  Q_OBJECT
 public:
  explicit CasoScreen(Caso& form);
  ~CasoScreen() override;

  std::vector<std::string> printHeader(const GridControl& grid) const override;

 private:
  QLayout* head();
  QLayout* foot();
  void showBars();

  Caso& m_form;
  PaperChart* m_chart;
};

}  // namespace trv5
