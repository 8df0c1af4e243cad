#pragma once

#include "core/inizio.h"
#include "screens/kit/screen.h"

namespace trv5 {

/// The start screen.
class InizioScreen : public Screen {
  Q_OBJECT
 public:
  explicit InizioScreen(Inizio& form);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
};

}  // namespace trv5
