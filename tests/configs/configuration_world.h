#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "cases/selections.h"
#include "configs/configuration_store.h"
#include "configs/dds_field.h"
#include "configs/import_export.h"
#include "desk/equip_workbench.h"
#include "support/left_journal.h"
#include "support/program_world.h"
#include "support/workbench_world.h"

namespace trv5 {

/// A running program with its main database, the workbench open, the screens of exchange and of the field DDS known.
class ConfigurationWorld : public ProgramWorld {
 public:
  explicit ConfigurationWorld(const std::vector<DrawRow>& rows) {
    shell.addScreen("ImportExport", [this] { return made<ImportExport>(); });
    shell.addScreen("FunzioniAggiuntive", [this] { return made<FunzioniAggiuntive>(); });
    makeBoth(rows);
    restart();
  }
  ConfigurationWorld() : ConfigurationWorld(someRows()) {}

  /// Ends the run and starts the next one, to the open workbench.
  void restart() {
    bench.reset();
    startAndProceed();
    bench = std::make_unique<Workbench>(program->archive, shell);
    equipWorkbench(*bench);
    connectDatabase(*bench, *program);
    ApreBanco(*bench);
  }

  static std::vector<DrawRow> someRows(int draws = 60) {
    std::mt19937 rng(7);
    return randomRows(rng, draws);
  }

  Workbench& w() { return *bench; }
  void press(const char* button) { bench->button(button).press(); }
  ImportExport& exchange() { return dynamic_cast<ImportExport&>(shell.show("ImportExport")); }
  FunzioniAggiuntive& dds() { return dynamic_cast<FunzioniAggiuntive&>(shell.show("FunzioniAggiuntive")); }
  std::filesystem::path mainFile() const { return folder / "DbTRV5.mdb"; }
  /// Another program's statement in the main database.
  void change(const std::string& sql) const { const OtherProgram other(mainFile(), sql); }

  /// Saves the workbench under a name; true when it was saved.
  bool save(const std::string& name) {
    bench->Txt_Denominazione.set(name);
    press("Command4");
    return shell.lastBox().title == "Salvataggio configurazione";
  }
  /// ELENCO and a double click on the row of that name.
  void reload(const std::string& name) {
    press("Cmd_Elenco");
    bench->FgPir1.doubleClickCell(rowOf(name), 2);
  }
  /// The row of `FgPir1` with that name, 0 for none.
  int rowOf(const std::string& name) const {
    for (int row = 1; row < bench->FgPir1.rows(); ++row)
      if (bench->FgPir1.text(row, 2) == name) return row;
    return 0;
  }
  std::string keyOf(const std::string& name) const { return bench->FgPir1.text(rowOf(name), 1); }

  /// The first value of a select in a file, as text.
  static std::string value(const std::filesystem::path& file, FileKind kind, const std::string& select) {
    const QueryRows rows = readRows(Database(file, kind).prepare(select));
    return rows.rows.empty() ? "" : rows.rows.front().front();
  }
  std::string inMain(const std::string& select) const { return value(mainFile(), FileKind::Main, select); }
  int saved() const { return std::stoi(inMain("SELECT count(*) FROM Elenco_Memo")); }
  int savedRows() const { return std::stoi(inMain("SELECT count(*) FROM Elenco_Dett")); }

  /// An empty export file in the program's folder.
  std::filesystem::path exportFile(const std::string& name = "TRV5_Export.mdb") const {
    createExportFile(folder / name, Existing::Replace);
    return folder / name;
  }

  std::unique_ptr<Workbench> bench;

 private:
  template <class FormType>
  std::unique_ptr<Form> made() {
    auto form = std::make_unique<FormType>(*program);
    form->load();
    return form;
  }
};

inline constexpr const char* kSaved = "La configurazione è stata salvata. Ricaricare l'elenco.";
inline constexpr const char* kNotSaved =
    "Attenzione, probabilmente è stato inserita una denominazione già presente. Modificare la descrizione e riprovare.";
inline constexpr const char* kNotReloaded = "Errore imprevisto. ";

}  // namespace trv5
