#include "engine/forward_search.h"

#include <memory>

#include "cases/result_states.h"
#include "engine/prova_avanti.h"

namespace trv5 {

void ApreProvaAvanti(Workbench& w) {
  std::optional<LastSearch> search = w.origins.lastSearch;
  if (search && search->archive != w.archive.loadStamp()) search.reset();
  auto& test = dynamic_cast<ProvaAvanti&>(w.shell().show("ProvaAvanti"));
  test.prepare(search, [&w, workbench = std::weak_ptr(w.settled)](const LastSearch& tested) {
    if (!workbench.expired()) noteSeenCases(w, tested.situation);
  });
  if (!search) w.shell().status("Prova in avanti: prima cerca le ambate con 1N 1R, 2N 1R, 3N 1R o 2N 2R");
}

}  // namespace trv5
