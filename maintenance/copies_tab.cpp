#include "maintenance/copies_tab.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <utility>

#include "core/archive_load.h"
#include "core/draw_sums.h"
#include "core/errors.h"
#include "core/figures.h"
#include "core/file_writer.h"
#include "maintenance/archive_state.h"
#include "maintenance/archivio.h"
#include "maintenance/backups.h"
#include "maintenance/check_tab.h"
#include "maintenance/copy_first.h"
#include "maintenance/state_report.h"
#include "maintenance/update_server.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

constexpr const char* kNoCopy = "Nessuna copia: la prima nasce prima del prossimo aggiornamento";
constexpr int kHelpContext = 280;  // of the tab, which has no button for it: F1 opens its page

std::string momentText(const DateTime& t) {
  return fmt::format("{:02}/{:02}/{:04} {:02}:{:02}", t.day, t.month, t.year, t.hour, t.minute);
}

// "7.369 estrazioni, fino al 20/08/2026".
std::string drawsText(const std::vector<DrawRow>& draws) {
  return fmt::format("{} {}{}", figureText(static_cast<double>(draws.size())),
                     draws.size() == 1 ? "estrazione" : "estrazioni",
                     draws.empty() ? "" : ", fino al " + draws.back().date);
}

// Lives as long as the buttons of the tab.
class CopiesTab {
 public:
  explicit CopiesTab(Archivio& archivio)
      : a(archivio), m_check(std::make_shared<CheckTab>(archivio, [this] { reload(); })) {
    m_check->connect(m_check);
  }

  void enter();
  void RipristinaCopia();
  void VerificaCopia();
  void EsportaStato();

 private:
  void ElencaCopie();
  const DatedSums& sumsOf(const fs::path& copy);
  const Backup* chosenCopy() const;
  void reload();

  Archivio& a;
  std::shared_ptr<CheckTab> m_check;
  int m_helpBefore = Archivio::kHelpContext;
  std::vector<Backup> m_copies;  // of the rows of `Fg_Copie`
  struct Read {
    fs::file_time_type written;
    DatedSums sums;
  };
  std::map<fs::path, Read> m_read;  // what copies hold, since they hardly ever change
};

void CopiesTab::enter() {
  if (a.SSTab1.index() != Archivio::kCopie) {
    if (a.helpContext() == kHelpContext) a.setHelpContext(m_helpBefore);
    return;
  }
  if (a.helpContext() != kHelpContext) m_helpBefore = a.helpContext();
  a.setHelpContext(kHelpContext);
  ElencaCopie();
  m_check->refresh();
}

const DatedSums& CopiesTab::sumsOf(const fs::path& copy) {
  std::error_code unknown;
  const fs::file_time_type written = fs::last_write_time(copy, unknown);
  const auto known = m_read.find(copy);
  if (known != m_read.end() && known->second.written == written) return known->second.sums;
  m_read.erase(copy);
  return m_read.emplace(copy, Read{written, datedSumsOf(readDraws(Database(copy, FileKind::Archive)))})
      .first->second.sums;
}

void CopiesTab::ElencaCopie() {
  const Database& archive = archiveToRead(a.program);
  DatedSums today;
  try {
    today = datedSumsOf(readDraws(archive));
  } catch (const DatabaseError&) {
    today.clear();  // of a damaged archive the copies are listed all the same
  }
  m_copies = backupsOf(archive.path(), a.shell().now());
  a.Lbl_CartellaCopie.setText(backupFolder(archive.path()).string());
  std::erase_if(m_read, [this](const auto& read) {
    return std::none_of(m_copies.begin(), m_copies.end(), [&](const Backup& copy) { return copy.file == read.first; });
  });
  Grid& list = a.Fg_Copie.grid();
  const Grid::Batch batch(a.Fg_Copie);
  list.cutToHeading();
  for (const Backup& copy : m_copies) {
    const int row = list.appendRow();
    list.setText(row, 0, momentText(copy.taken));
    list.setText(row, 1, copy.monthly ? "mensile" : copy.reason);
    try {
      const DatedSums& draws = sumsOf(copy.file);
      list.setNumber(row, 2, static_cast<int>(draws.size()));
      list.setText(row, 3, draws.empty() ? "" : draws.back().first);
      list.setText(row, 4, compareBackup(draws, today).text());
    } catch (const UserError&) {
      list.setText(row, 4, "non si lascia leggere");
      for (int column = 0; column < list.columns(); ++column) list.setBold(row, column);
    }
  }
}

const Backup* CopiesTab::chosenCopy() const {
  const int row = a.Fg_Copie.current();
  if (row >= 1 && row <= static_cast<int>(m_copies.size())) return &m_copies[static_cast<std::size_t>(row) - 1];
  a.shell().status(m_copies.empty() ? kNoCopy : "Scegli prima una copia dell'elenco");
  return nullptr;
}

// As after every change of the archive; the update's table was compared with the draws of before.
void CopiesTab::reload() {
  RicaricaArchivio(a);
  AggiornaMaschera(a);
  a.FgImporta.cutToHeading();
  ElencaCopie();
}

void CopiesTab::RipristinaCopia() {
  const Backup* const chosen = chosenCopy();
  if (chosen == nullptr) return;
  const Backup copy = *chosen;
  const Database source(copy.file, FileKind::Archive);
  source.checkIntegrity();
  const std::string draws = drawsText(readDraws(source));
  if (!a.shell().confirm(
          {.text = fmt::format("Rimettere al posto dell'archivio la copia del {} ({})?", momentText(copy.taken), draws),
           .title = "Ripristino di una copia",
           .icon = Icon::Question,
           .reason = "Prima viene fatta una copia dell'archivio com'è oggi: si può tornare indietro."}))
    return;
  if (!CopiaPrima(a, BackupReason::Ripristino, copy.file)) return;
  a.program.archiveToWrite().takeFrom(source);
  reload();
  m_check->refresh();
  a.shell().status(fmt::format("Ripristinata la copia del {}: {}", momentText(copy.taken), draws));
}

void CopiesTab::VerificaCopia() {
  const Backup* const copy = chosenCopy();
  if (copy == nullptr) return;
  const Database source(copy->file, FileKind::Archive);
  source.checkIntegrity();
  const std::vector<DrawRow> draws = readDraws(source);
  const std::size_t unlike = differencesFromSums(source, draws).size();
  const auto broken = std::count_if(draws.begin(), draws.end(), [](const DrawRow& row) { return !isWhole(row); });
  std::string text =
      fmt::format("La copia del {} si lascia leggere per intero: {}.", momentText(copy->taken), drawsText(draws));
  if (unlike > 0) text += fmt::format(" Estrazioni che non sono come furono registrate: {}.", unlike);
  if (broken > 0) text += fmt::format(" Estrazioni con ruote senza cinque numeri diversi da 1 a 90: {}.", broken);
  const bool good = unlike == 0 && broken == 0;
  a.shell().message(
      {.text = text, .title = "Verifica della copia", .icon = good ? Icon::Information : Icon::Exclamation});
}

void CopiesTab::EsportaStato() {
  const auto file = a.shell().chooseSave({.title = "Stato dell'archivio",
                                          .folder = a.program.folder,
                                          .filter = "*.txt",
                                          .defaultExtension = "txt",
                                          .name = "Stato TRV5.txt"});
  if (!file) return;
  ElencaCopie();
  m_check->ControllaArchivio();
  writeFile(*file, stateReport(a));
  a.shell().status(fmt::format("Scritto \"{}\"", file->string()));
}

}  // namespace

void connectCopiesTab(Archivio& a) {
  const auto tab = std::make_shared<CopiesTab>(a);
  a.Fg_Copie.setEmptyText(kNoCopy);
  a.SSTab1.onEvent([tab] { tab->enter(); });
  a.Cmd_Ripristina.onEvent([tab] { tab->RipristinaCopia(); });
  a.Cmd_VerificaCopia.onEvent([tab] { tab->VerificaCopia(); });
  a.Cmd_EsportaStato.onEvent([tab] { tab->EsportaStato(); });
}

}  // namespace trv5
