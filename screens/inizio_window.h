#pragma once

#include "core/inizio.h"
#include "screens/screen.h"

namespace trv5 {

/// The start screen.
class InizioWindow : public Screen {
  Q_OBJECT
 public:
  explicit InizioWindow(Inizio& form);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
};

}  // namespace trv5
