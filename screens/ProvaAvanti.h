#pragma once

#include "engine/prova_avanti.h"
#include "screens/kit/screen.h"

namespace trv5 {

class PaperChart;

/// The test forward: what came out, its curve beside luck, and its tests one by one.
class ProvaAvantiScreen : public Screen {
  Q_OBJECT
 public:
  explicit ProvaAvantiScreen(ProvaAvanti& form);

 private:
  void showCurve();

  ProvaAvanti& m_form;
  PaperChart* m_chart;
  std::shared_ptr<void> m_figures;
};

}  // namespace trv5
