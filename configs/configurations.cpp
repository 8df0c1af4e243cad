#include "configs/configurations.h"

#include <fmt/format.h>

#include <charconv>
#include <exception>

#include "configs/configuration_store.h"
#include "configs/workbench_configuration.h"
#include "core/errors.h"
#include "core/text.h"
#include "engine/colouring.h"

namespace trv5 {
namespace {

constexpr int kKeyColumn = 1, kNameColumn = 2, kFirstHiddenColumn = 4;

void reload(Workbench& w, std::int64_t key) {
  w.button("Command41").press();
  const Database& database = w.hooks.mainDatabase();
  const auto head = loadHead(database, key, configurationFieldNames());
  if (!head) throw UserError("La configurazione non c'è più.");
  disponeConfigurazione(w, *head, [&] { return loadRows(database, key); });
}

// The row of that name, without regard to case; 0 for none.
int rowNamed(const Workbench& w, const std::string& name) {
  for (int row = 1; row < w.FgPir1.rows(); ++row)
    if (foldedCase(w.FgPir1.text(row, kNameColumn)) == foldedCase(name)) return row;
  return 0;
}

}  // namespace

void SalvaConfigurazione(Workbench& w) {
  try {
    saveConfiguration(w.hooks.mainDatabase(), captureConfiguration(w));
  } catch (const std::exception& error) {
    // One text for all that can happen.
    w.shell().message({.text = "Attenzione, probabilmente è stato inserita una denominazione già presente. Modificare "
                               "la descrizione e riprovare.",
                       .icon = Icon::Critical,
                       .reason = error.what()});
    return;
  }
  w.shell().message(
      {.text = "La configurazione è stata salvata. Ricaricare l'elenco.", .title = "Salvataggio configurazione"});
}

void ElencaConfigurazioni(Workbench& w) {
  try {
    bindGrid(w.FgPir1, listConfigurations(w.hooks.mainDatabase()));
  } catch (const std::exception& error) {
    w.shell().message({.text = "Attenzione, probabilmente non esiste il campo DDS, provvedere ad inserirlo, ed "
                               "eventualmente azzerare il campo DDS",
                       .reason = error.what()});
    w.shell().show("FunzioniAggiuntive");
    return;
  }
  for (int column = kFirstHiddenColumn; column < w.FgPir1.columns(); ++column) w.FgPir1.setColumnHidden(column);
  FiltraConfigurazioni(w);
  // The one saved or reloaded last is easy to find, though no row is current.
  if (const int row = rowNamed(w, w.Txt_Denominazione.text())) w.FgPir1.showRow(row);
  if (const int count = w.FgPir1.dataRows(); count > 0)
    w.shell().status("ELENCO: " + counted(count, "configurazione", "configurazioni"));
}

void CancellaConfigurazione(Workbench& w) {
  const int row = w.FgPir1.current();
  if (row < 1) return w.shell().status("Scegli prima una configurazione dell'elenco");
  const std::int64_t key = chiaveDellaRiga(w, row);
  constexpr const char* kTitle = "Cancellazione record";
  if (!w.shell().confirm({.text = fmt::format("Concellare la riga: {} ?", key), .title = kTitle})) return;
  if (eraseConfiguration(w.hooks.mainDatabase(), key))
    w.shell().message({.text = "Record eliminato.", .title = kTitle});
  w.button("Cmd_Elenco").press();
}

void RicaricaConfigurazione(Workbench& w, int row) {
  if (row < 1 || row >= w.FgPir1.rows()) return;
  if (const auto reason = ricaricaChiave(w, chiaveDellaRiga(w, row))) return mostraMancataRicarica(w, *reason);
  w.shell().status(fmt::format("Configurazione ricaricata: {}", w.Txt_Denominazione.text()));
}

std::optional<std::string> ricaricaChiave(Workbench& w, std::int64_t key) {
  try {
    reload(w, key);
    return {};
  } catch (const std::exception& error) {
    return error.what();
  }
}

void disponeConfigurazione(Workbench& w, const std::vector<Field>& head, const std::function<QueryRows()>& rows) {
  for (const ReloadStep step : {ReloadStep::Values, ReloadStep::Marks, ReloadStep::RowCounts}) layFields(w, head, step);
  const QueryRows stored = rows();
  bindGrid(w.FgDett, stored);
  layRows(w, rowsOf(stored));
  Colora_fg00(w);
  for (const Table table : {Table::Ambate, Table::Ambi, Table::Terni}) coloraFormule(w.formulas(table));
  w.button("Command44").press();
  constexpr std::pair<Table, const char*> verifications[] = {{Table::Ambate, "Command29"},
                                                             {Table::Ambi, "Command34"},
                                                             {Table::Terni, "Command48"},
                                                             {Table::Lunghetta, "Command51"}};
  for (const auto& [table, verifyAll] : verifications)
    if (w.formulas(table).hasData()) w.button(verifyAll).press();
}

void mostraMancataRicarica(Workbench& w, const std::string& reason) {
  w.shell().message({.text = "Errore imprevisto. ", .title = "Anomalia nel database", .reason = reason});
}

std::int64_t chiaveDellaRiga(const Workbench& w, int row) {
  const std::string& text = w.FgPir1.text(row, kKeyColumn);
  std::int64_t key = 0;
  std::from_chars(text.data(), text.data() + text.size(), key);
  return key;
}

void FiltraConfigurazioni(Workbench& w) {
  const std::string wanted = foldedCase(w.Txt_FiltroConfig.text());
  const Grid::Batch batch(w.FgPir1);
  for (int row = 1; row < w.FgPir1.rows(); ++row)
    w.FgPir1.setRowHidden(row, foldedCase(w.FgPir1.text(row, kNameColumn)).find(wanted) == std::string::npos);
  w.FgPir1.setEmptyText(w.FgPir1.hasData() ? "Nessuna denominazione con questo testo"
                                           : "Nessuna configurazione salvata");
}

}  // namespace trv5
