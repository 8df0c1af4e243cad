#include "engine/open_workbench.h"

#include "cases/case_list.h"
#include "cases/selections.h"
#include "engine/engine_buttons.h"

namespace trv5 {

void openWorkbench(Workbench& w) {
  connectSelections(w);
  connectCaseList(w);
  connectEngine(w);
  ApreBanco(w);
  w.disableDeadButtons();
}

}  // namespace trv5
