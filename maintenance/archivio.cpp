#include "maintenance/archivio.h"

namespace trv5 {

Archivio::Archivio(Program& run) : Form(run.shell, "archivio", "Gestione archivio", kHelpContext), program(run) {}

void Archivio::load() {}

}  // namespace trv5
