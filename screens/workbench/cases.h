#pragma once

#include <QWidget>

#include "cases/workbench.h"

namespace trv5 {

/// Elenco estrazioni: the cases, and below them their totals.
class WorkbenchCases : public QWidget {
  Q_OBJECT
 public:
  explicit WorkbenchCases(Workbench& w, QWidget* parent = nullptr);
};

}  // namespace trv5
