#include "maintenance/archivio.h"

#include "maintenance/copies_tab.h"
#include "maintenance/entry_tab.h"
#include "maintenance/formats_tab.h"
#include "maintenance/update_tab.h"

namespace trv5 {

Archivio::Archivio(Program& run) : Form(run.shell, "archivio", "Gestione archivio", kHelpContext), program(run) {
  connectEntry(*this);
  FgImporta.setEmptyText("Premi CONTROLLO AGGIORNAMENTI o AGGIORNA DA FILE");
  connectUpdateTab(*this);
  connectFormatsTab(*this);
  connectCopiesTab(*this);
}

void Archivio::load() {
  MostraImpostazioni(*this);
  ApreArchivio(*this);
}

}  // namespace trv5
