#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "cases/workbench.h"
#include "screens/kit/kit.h"

namespace trv5 {

class LastDrawLabel;

/// What every search and every verification reads: the reference draw, the wheels of play, the colpi. Always in sight.
class WorkbenchReferenceBar : public QWidget {
  Q_OBJECT
 public:
  explicit WorkbenchReferenceBar(Workbench& w, QWidget* parent = nullptr);
  /// With room the two swatches say in words what they do, and the steps back and on have buttons.
  void setWide(bool wide);

 protected:
  bool event(QEvent* event) override;

 private:
  void makeRoom();

  std::vector<ClickLabel*> m_swatches;
  std::vector<QPushButton*> m_history;  // back and on again
  LastDrawLabel* m_lastDraw;
  GridView* m_wheels;
  QPushButton* m_rework;
  std::optional<bool> m_gives;  // whether other parts give way to the chip
};

}  // namespace trv5
