#pragma once

#include <QWidget>

#include "cases/workbench.h"

namespace trv5 {

/// Selezioni: the situation that makes a draw a case. What stands above the last row scrolls where it is too high; the
/// button that looks for the cases is always in sight.
class WorkbenchSelections : public QWidget {
  Q_OBJECT
 public:
  explicit WorkbenchSelections(Workbench& w, QWidget* parent = nullptr);
  /// The height at which nothing has to scroll.
  int wholeHeight() const;

 private:
  QWidget* m_rows;
};

}  // namespace trv5
