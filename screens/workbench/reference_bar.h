#pragma once

#include <QWidget>
#include <vector>

#include "cases/workbench.h"
#include "screens/kit/kit.h"

namespace trv5 {

/// What every search and every verification reads: the reference draw, the wheels of play, the colpi. Always in sight.
class WorkbenchReferenceBar : public QWidget {
  Q_OBJECT
 public:
  explicit WorkbenchReferenceBar(Workbench& w, QWidget* parent = nullptr);
  /// With room the two swatches say in words what they do.
  void setWide(bool wide);

 private:
  std::vector<ClickLabel*> m_swatches;
};

}  // namespace trv5
