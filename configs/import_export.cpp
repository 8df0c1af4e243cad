#include "configs/import_export.h"

#include <fmt/format.h>

#include <charconv>

#include "configs/configuration_store.h"
#include "core/database_files.h"
#include "core/errors.h"

namespace trv5 {
namespace {

constexpr int kHelpContext = 0;
constexpr Rgb kFree = Verde, kTaken = 0xFF8080;

QueryRows listed(const Database& database) {
  return readRows(
      database.prepare("SELECT Elenco_Memo.Id_Config as Cod, Elenco_Memo.Denominazione "
                       "From Elenco_Memo ORDER BY Elenco_Memo.Denominazione"));
}

// The texts of a grid bound to a table.
QueryRows textsOf(const Grid& grid) {
  QueryRows answer;
  const auto row = [&grid](int r) {
    std::vector<std::string> texts;
    for (int column = 1; column < grid.columns(); ++column) texts.push_back(grid.text(r, column));
    return texts;
  };
  answer.columns = row(0);
  for (int r = 1; r < grid.rows(); ++r) answer.rows.push_back(row(r));
  return answer;
}

}  // namespace

ImportExport::ImportExport(Program& program)
    : Form(program.shell, "ImportExport", "Esportazione e Importazione configurazioni", kHelpContext),
      SSTab1(*this, "SSTab1", {{0, "Esportazione"}, {1, "Importazione"}, {2, "Avvertenze"}}),
      Fg1(*this, "Fg1", "|Cod|Denominazione"),
      List1(*this, "List1"),
      Label1(*this, "Label1"),
      Command1(*this, "Command1", "ELENCO", "Legge di nuovo l'elenco delle configurazioni"),
      Command2(*this, "Command2", "SELEZIONA DESTINAZIONE"),
      Command3(*this, "Command3", "ESPORTA CONFIGURAZIONE SELEZIONATA"),
      Label4(*this, "Label4"),
      Txt_Denominazione(*this, "Txt_Denominazione"),
      List2(*this, "List2"),
      Command4(*this, "Command4", "SELEZIONA FILE DA IMPORTARE"),
      Command5(*this, "Command5", "", "Legge di nuovo la configurazione del file"),
      Command6(*this, "Command6", "IMPORTA CONFIGURAZIONE"),
      fG2(*this, "fG2", ""),
      Fg11(*this, "Fg11", ""),
      Cmd_CreaVuoto(*this, "Cmd_CreaVuoto", "Crea un file di esportazione vuoto"),
      m_program(program) {
  Fg1.setEmptyText("Premi ELENCO");
  Command1.onEvent([this] { Elenca(); });
  Command2.onEvent([this] { SelezionaDestinazione(); });
  Command3.onEvent([this] { Esporta(); });
  Command4.onEvent([this] { SelezionaFile(); });
  Command5.onEvent([this] { MostraAnteprima(); });
  Command6.onEvent([this] { Importa(); });
  Cmd_CreaVuoto.onEvent([this] { CreaVuoto(); });
  Txt_Denominazione.onDoubleClick([this] {
    Txt_Denominazione.set("");
    Txt_Denominazione.setBack(kWhite);
  });
}

void ImportExport::load() {
  try {
    Elenca();
  } catch (const UserError& error) {
    // The screen opens all the same: after the addition of a field the main database is closed.
    shell().message({.text = error.what(), .icon = Icon::Critical, .reason = error.details()});
  }
}

void ImportExport::Elenca() {
  List1.clear();
  bindGrid(Fg1, listed(m_program.mainDatabase()));
  Fg1.setEmptyText("Nessuna configurazione salvata");
}

std::unique_ptr<Database> ImportExport::openFile(const std::filesystem::path& file) const {
  std::error_code error;
  if (std::filesystem::equivalent(file, m_program.PercorsoDbParametri, error))
    throw UserError("È il database principale: non può essere il file di scambio.");
  return openExportFile(file);
}

// False when the user cancelled. The path stands in the label whether or not the file can be opened.
bool ImportExport::chooses(Label& path, const char* title) {
  const auto chosen = shell().chooseOpen({.title = title, .folder = m_program.folder, .filter = "*.mdb"});
  if (chosen) path.setText(chosen->string());
  return chosen.has_value();
}

void ImportExport::SelezionaDestinazione() {
  const auto failed = [this](const char* reason) {
    shell().message({.text = "Errore nella selezione del database di destinazione.", .reason = reason});
  };
  if (!chooses(Label1, "File di destinazione")) return failed("");
  try {
    openFile(Label1.text());
  } catch (const std::exception& error) {
    failed(error.what());
  }
}

void ImportExport::Esporta() {
  const int row = Fg1.current();
  if (row < 1) return shell().status("Scegli prima una configurazione dell'elenco");
  std::int64_t key = 0;
  const std::string& text = Fg1.text(row, 1);
  std::from_chars(text.data(), text.data() + text.size(), key);
  List1.clear();
  try {
    const auto file = openFile(Label1.text());
    const bool there = exportConfiguration(m_program.mainDatabase(), key, *file, [this](ExportStep step) {
      if (step == ExportStep::Emptied) List1.add("Tabelle di destinazione azzerate");
      if (step == ExportStep::HeadWritten) List1.add("Inseriti dati 1° tabella");
      if (step == ExportStep::RowsWritten) List1.add("Inseriti dati 2° tabella");
    });
    List1.add("Esportazione terminata");
    if (!there) shell().status("La configurazione non c'è più: il file è rimasto vuoto");
  } catch (const std::exception& error) {
    List1.add("Rilevamento errore");
    shell().message({.text = "Attenzione! problemi di salvataggio.", .reason = error.what()});
  }
}

void ImportExport::SelezionaFile() {
  const auto failed = [this](const char* reason) {
    shell().message({.text = "Errore nella selezione del database da importare.", .reason = reason});
  };
  if (!chooses(Label4, "File da importare")) return failed("");
  try {
    Command5.press();
  } catch (const std::exception& error) {
    failed(error.what());
  }
}

void ImportExport::MostraAnteprima() {
  if (Label4.text().empty()) return shell().status("Scegli prima il file da importare");
  const ExportedRows texts = readExportFile(*openFile(Label4.text()));
  bindGrid(fG2, texts.head);
  bindGrid(Fg11, texts.rows);
  if (texts.head.rows.empty()) {
    Txt_Denominazione.set("");
    Txt_Denominazione.setBack(kWhite);
    return;
  }
  Txt_Denominazione.set(texts.head.rows.front()[texts.head.column("Denominazione")]);
  ColoraDenominazione();
}

// Informs only: the import doesn't look at it. With nothing saved yet the colour stays.
void ImportExport::ColoraDenominazione() {
  const Database& database = m_program.mainDatabase();
  if (!database.prepare("SELECT 1 FROM Elenco_Memo").step()) return;
  Txt_Denominazione.setBack(hasDenomination(database, Txt_Denominazione.text()) ? kTaken : kFree);
}

void ImportExport::Importa() {
  List2.clear();
  try {
    const ExportedRows texts = {textsOf(fG2), textsOf(Fg11)};
    saveConfiguration(m_program.mainDatabase(), importedConfiguration(texts, Txt_Denominazione.text()),
                      [this] { List2.add("Importata 1° tabella"); });
    List2.add("Importata 2° tabella");
  } catch (const std::exception& error) {
    shell().message({.text = "Attenzione la procedura non è andata a buon fine.", .reason = error.what()});
    List2.add("Rilevato errore");
  }
}

void ImportExport::CreaVuoto() {
  const auto chosen = shell().chooseSave({.title = "File di esportazione vuoto",
                                          .folder = m_program.folder,
                                          .filter = "*.mdb",
                                          .defaultExtension = "Mdb",
                                          .name = "TRV5_Export.mdb"});
  if (!chosen) return;
  createExportFile(*chosen, Existing::Refuse);
  shell().status(fmt::format("Creato il file di esportazione vuoto {}", chosen->string()));
}

}  // namespace trv5
