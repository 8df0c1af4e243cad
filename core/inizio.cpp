#include "core/inizio.h"

#include <fmt/format.h>

#include <exception>

#include "core/archive_load.h"
#include "core/errors.h"
#include "core/file_writer.h"
#include "core/text.h"

namespace trv5 {

Inizio::Inizio(Program& program)
    : Form(program.shell, "INIZIO", "", kHelpContext),
      Command2(*this, "Command2", "PROCEDI"),
      Command3(*this, "Command3", "FINE"),
      Command4(*this, "Command4", "SELEZIONE ARCHIVIO"),
      CmDHelp(*this, "CmDHelp", "Help in linea"),
      Label5(*this, "Label5", "Percorso archivio:"),
      Lbl_Archivio(*this, "Lbl_Archivio"),
      Label1(*this, "Label1",
             "Da utilizzare solamente al primo utilizzo del programma. Consultare l'help in linea ------->"),
      pb1(*this, "pb1"),
      FgP(*this, "FgP", "|Parametro|Valore1|Valore2"),
      FgDB(*this, "FgDB", "|DataEstrazione|Ba|Ca|Fi|Ge|Mi|Na|Pa|Ro|To|Ve|Nz"),
      m_program(program) {
  Command2.onEvent([this] { Procedi(); });
  Command3.onEvent([this] { shell().quit(); });
  Command4.onEvent([this] { SelezionaArchivio(); });
  CmDHelp.onEvent([this] {
    setHelpContext(kHelpContext);
    shell().help(kHelpContext);
  });
}

void Inizio::load() {
  m_program.openMainDatabase();
  m_program.PercorsoDbArchivio = m_program.parameters().Valore1("PercorsoArchivio").value_or("");
  Lbl_Archivio.setText(m_program.PercorsoDbArchivio.string());
  // From here on a failure never stops the start: each step goes on to the next.
  openArchive();
  try {
    fillParameters(m_program.mainDatabase(), FgP);
    m_program.IndirizzoInternet = exactParameter(FgP, "IndirizzoInternet").value_or("");
  } catch (const UserError&) {
    m_program.IndirizzoInternet.clear();
  }
  setTitle(fmt::format("TRV5 Nerovia Forge V2: Versione {}", programVersion()));
  try {
    ImpostaInizialix();
  } catch (const std::exception& error) {
    shell().message({.text = error.what(), .title = "Anomalia", .icon = Icon::Critical});
  }
}

void Inizio::openArchive() {
  const auto open = [this] {
    m_program.DbArchivio = std::make_unique<Database>(m_program.PercorsoDbArchivio, FileKind::Archive);
  };
  try {
    return open();
  } catch (const std::exception& error) {
    const bool first = m_program.PercorsoDbArchivio.empty();
    shell().message({.text = "Attenzione, la prima volta è necessario configurare l'origine dell'archivio",
                     .title = "Selezionare Archivio",
                     .icon = Icon::Exclamation,
                     .reason = first ? "" : error.what()});
  }
  bool chosen = true;
  try {
    chosen = SelezionaArchivio();
  } catch (const UserError& error) {
    shell().message({.text = error.what(), .title = error.title(), .icon = Icon::Critical, .reason = error.details()});
  }
  if (!chosen) return;
  try {
    open();
  } catch (const std::exception&) {
    m_program.DbArchivio.reset();  // PROCEDI will say so
  }
}

void Inizio::ImpostaInizialix() {
  if (const auto first = m_program.parameters().Valore1("EstrazioneIniziale"))
    m_program.EstrazioneIniziale = numberOf(*first);
}

std::optional<std::filesystem::path> Inizio::readableArchive(const std::filesystem::path& chosen) {
  const OldFiles& oldFiles = m_program.oldFiles;
  if (!oldFiles.recognised || !oldFiles.recognised(chosen)) return chosen;
  const bool wanted = shell().confirm({.text = fmt::format("Il file \"{}\" è nel formato delle versioni precedenti. "
                                                           "Leggerlo e farne un archivio nuovo? Il file resta com'è.",
                                                           chosen.string()),
                                       .title = "Formato precedente",
                                       .icon = Icon::Question});
  if (!wanted) return chosen;
  const auto fresh = shell().chooseSave({.title = "Archivio nuovo",
                                         .folder = chosen.parent_path(),
                                         .filter = "*.mdb",
                                         .defaultExtension = "mdb",
                                         .name = chosen.stem().string() + "-TRV5.mdb"});
  if (!fresh) return std::nullopt;
  const OldFiles::Outcome outcome = [&] {
    const Hourglass hourglass(shell());
    return oldFiles.convertArchive(chosen, *fresh);
  }();
  shell().status("Creato: " + outcome.description);
  if (!outcome.notes.empty())
    shell().message({.text = "Letto dal formato precedente: " + outcome.description,
                     .title = "Formato precedente",
                     .icon = Icon::Information,
                     .reason = outcome.notes});
  return fresh;
}

bool Inizio::SelezionaArchivio() {
  auto chosen = shell().chooseOpen(
      {.title = "File di archivio (*.Mdb)", .folder = m_program.folder, .filter = "*.mdb", .defaultExtension = "Mdb"});
  if (chosen) chosen = readableArchive(*chosen);
  if (!chosen) return false;
  // The choice serves this run even where it can't be stored; what couldn't be is told when all is done.
  std::string failure, details;
  try {
    writeFile(m_program.folder / "PercorsoDatabase.txt", fmt::format("\"{}\"\r\n", chosen->string()));
  } catch (const UserError& error) {
    failure = error.what();
    details = error.details();
  }
  m_program.PercorsoDbArchivio = *chosen;
  constexpr std::string_view kNotStored = "La scelta vale solo per questa esecuzione: non può essere memorizzata";
  try {
    if (!m_program.parameters().setValore1("PercorsoArchivio", chosen->string()))
      failure = fmt::format("{} (nel database principale manca il parametro PercorsoArchivio).", kNotStored);
  } catch (const UserError& error) {
    failure = fmt::format("{}. {}", kNotStored, error.what());
    details = error.details();
  }
  Lbl_Archivio.setText("Database: " + chosen->string());
  if (!failure.empty()) throw UserError(failure, "Avviso", details);
  return true;
}

void Inizio::Procedi() {
  const auto failed = [this](std::string reason) {
    pb1.set(0, 0);
    shell().message({.text = std::string(kOtherArchive), .icon = Icon::Critical, .reason = std::move(reason)});
  };
  std::string loaded;
  try {
    // The bar counts the rows of the query's grid, the heading included.
    const auto rows = loadArchive(m_program, [this](int row, int all) { pb1.set(row, all + 1); });
    fillFgDB(rows, FgDB);
    loaded = describeArchive(m_program, rows);
  } catch (const UserError& error) {
    return failed(error.what());
  } catch (const std::exception&) {
    return failed({});
  }
  // No archive could be opened at the start: the one now loaded is held from here on.
  if (m_program.DbArchivio == nullptr)
    m_program.DbArchivio = std::make_unique<Database>(m_program.PercorsoDbArchivio, FileKind::Archive);
  shell().show("Container");
  shell().status("Archivio caricato: " + loaded);
  shell().close(name());
}

}  // namespace trv5
