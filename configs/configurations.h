#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cases/workbench.h"
#include "configs/configuration.h"
#include "configs/query_rows.h"

namespace trv5 {

/// "Salva configurazione": the workbench under the name of `Txt_Denominazione`. The list isn't read again.
void SalvaConfigurazione(Workbench& w);

/// "ELENCO": all configurations in `FgPir1`; no row is current. A database that lacks the field DDS opens
/// `FunzioniAggiuntive`.
void ElencaConfigurazioni(Workbench& w);

/// "Cancella selezionata": after a question, the configuration of the current row of `FgPir1`.
void CancellaConfigurazione(Workbench& w);

/// Double click on `FgPir1`: the workbench as the configuration of that row says, its cases and verifications worked
/// out anew on the archive as it stands. An error leaves it as far as it got.
void RicaricaConfigurazione(Workbench& w, int row);

/// The same for a key; where it fails, why.
std::optional<std::string> ricaricaChiave(Workbench& w, std::int64_t key);

/// The message of a reload that failed for that reason.
void mostraMancataRicarica(Workbench& w, const std::string& reason);

/// Lays a configuration on the reset workbench and runs it: fields, the rows that `rows` reads once the fields stand,
/// colours, detection, verifications. Throws UserError; the workbench stays as far as it got.
void disponeConfigurazione(Workbench& w, const std::vector<Field>& head, const std::function<QueryRows()>& rows);

/// The key in column 1 of a row of `FgPir1`; 0 where there is none.
std::int64_t chiaveDellaRiga(const Workbench& w, int row);

/// Hides the rows of `FgPir1` whose name doesn't hold the text of `Txt_FiltroConfig`, in whatever letters' case.
void FiltraConfigurazioni(Workbench& w);

}  // namespace trv5
