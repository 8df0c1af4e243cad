#include "maintenance/update_tab.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "core/file_writer.h"
#include "maintenance/archive_state.h"
#include "maintenance/archivio.h"
#include "maintenance/copy_first.h"
#include "maintenance/download.h"
#include "maintenance/draw_entry.h"
#include "maintenance/formats/history_file.h"
#include "maintenance/formats/update_text.h"
#include "maintenance/update_check.h"
#include "maintenance/update_grid.h"
#include "maintenance/update_server.h"
#include "maintenance/update_writer.h"

namespace trv5 {
namespace {

constexpr const char* kLocalCopy = "Estr_Agg.txt";
constexpr const char* kFtpCopy = "pippo.txt";  // the name that users know

// Lives as long as the buttons of the tab; the download, and with it what waits for a file, goes with it.
class UpdateTab {
 public:
  UpdateTab(Archivio& archivio, BeginTransfer begin)
      : a(archivio), m_download(std::make_shared<Download>(archivio, std::move(begin), [this] { enableButtons(); })) {}

  void ControllaAggiornamenti();
  void AggiornaDaFile();
  void EseguiAggiornamento();
  void ScaricaFile();
  void ScaricaDaFtp();
  void ConfrontaConStorico();
  void AnnullaScarico();
  void enableButtons();

 private:
  void load(const std::string& text, BackupReason origin);
  void check(const std::vector<DrawRow>& rows);
  void trapped(const std::function<void()>& operation);
  void tellFailure(const std::string& reason);
  void keepLocalCopy(const std::string& bytes) const;

  Archivio& a;
  std::shared_ptr<Download> m_download;
  std::string m_phase;                                  // of the first stage, for its message
  BlankCell m_blank = BlankCell::Text;                  // what an empty cell of `FgImporta` says
  BackupReason m_origin = BackupReason::Aggiornamento;  // what it is to write what stands there
};

void UpdateTab::enableButtons() {
  const bool free = !m_download->running();
  for (Button* const button :
       {&a.Command18, &a.Command21, &a.Command27, &a.Command28, &a.Command19, &a.Command20, &a.Cmd_Storico})
    button->setEnabled(free);
  a.Command26.setEnabled(!free);
}

void UpdateTab::tellFailure(const std::string& reason) {
  a.shell().message({.text = "Attenzione qualcosa è andato strorto nella procedura " + m_phase,
                     .icon = Icon::Critical,
                     .reason = reason});
}

// Any error of the first stage ends it with one box, which names how far it got.
void UpdateTab::trapped(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const std::exception& error) {
    tellFailure(error.what());
  }
}

void UpdateTab::keepLocalCopy(const std::string& bytes) const {
  writeFile(a.program.folder / kLocalCopy, bytes + "\r\n");
}

// CONTROLLO AGGIORNAMENTI: the file from the web, by way of the local copy.
void UpdateTab::ControllaAggiornamenti() {
  m_phase = "Collegamento al sito";
  trapped([&] {
    m_download->fetch(
        webAddress(a.program),
        [this](const std::string& bytes) {
          trapped([&] {
            keepLocalCopy(bytes);
            m_phase = "Elenco nuove estrazioni";
            load(decodedText(readFile(a.program.folder / kLocalCopy, kMaxUpdateBytes + 2)),
                 BackupReason::Aggiornamento);
          });
        },
        [this](const UserError& error) { tellFailure(error.what()); });
  });
}

// AGGIORNA DA FILE: a dialog that is cancelled is an error too, before the first phase.
void UpdateTab::AggiornaDaFile() {
  m_phase = "";
  trapped([&] {
    const auto file = a.shell().chooseOpen(
        {.title = "File di testo (*.Txt)", .folder = a.program.folder, .filter = "*.txt", .defaultExtension = "txt"});
    if (!file) throw UserError("Non è stato scelto nessun file.");
    const std::string text = decodedText(readFile(*file, kMaxUpdateBytes));
    if (!hasUpdateForm(text))
      return a.shell().message({.text = "Attenzione, sembra che il file non sia del formato corretto"});
    m_phase = "Elenco nuove estrazioni";
    load(text, BackupReason::Importazione);
  });
}

void UpdateTab::load(const std::string& text, BackupReason origin) {
  m_blank = BlankCell::Text;
  const std::vector<DrawRow> rows = readUpdateText(text);
  m_origin = origin;
  fillUpdateGrid(rows, a.FgImporta);
  m_phase = "Controllo estrazioni mancanti";
  check(rows);
}

void UpdateTab::check(const std::vector<DrawRow>& rows) {
  a.List4.clear();
  if (rows.empty()) return;
  const UpdateCheck found =
      checkUpdate(archiveToRead(a.program), rows, m_blank, [&](int row, int all) { a.shell().progress(row, all); });
  markUpdateGrid(found.marks, a.FgImporta);
  for (const std::string& line : found.lines) a.List4.add(line);
  if (found.stoppedAt)
    throw UserError(fmt::format("La riga {} comincia con \"{}\", che non è una data.", *found.stoppedAt + 1,
                                rows[*found.stoppedAt].date));
}

// AGGIORNAMENTO: writes what the colours tell, and reads the archive again whether or not there was anything to write.
void UpdateTab::EseguiAggiornamento() {
  a.List4.clear();
  if (a.FgImporta.rows() < 2) {
    a.shell().message({.text = "Non ci sono estrazioni da aggiornare.", .title = "Aggiornamento archivio"});
    a.SSTab1.set(Archivio::kGestione);
    return;
  }
  const std::vector<UpdateOrder> orders = updateOrders(a.FgImporta, a.Check3.checked());
  const bool writes =
      std::any_of(orders.begin(), orders.end(), [](const UpdateOrder& order) { return order.add || order.correct; });
  if (writes && !CopiaPrima(a, m_origin)) return;
  const UpdateReport report =
      writeUpdate(a.program.archiveToWrite(), updateRows(a.FgImporta), orders, registrationNow(a.shell()),
                  m_blank == BlankCell::Text ? EmptyWheel::Text : EmptyWheel::Null);
  for (const std::string& line : report.lines) a.List4.add(line);
  if (report.added > 0) {
    a.shell().message({.text = "Dati salvati correttamente.", .title = "Aggiornamento archivio"});
    a.SSTab1.set(Archivio::kGestione);
  }
  RicaricaArchivio(a);
  a.FgImporta.cutToHeading();
  AggiornaMaschera(a);
}

// SCARICO FILE.
void UpdateTab::ScaricaFile() {
  m_download->fetch(webAddress(a.program), [this](const std::string& bytes) {
    keepLocalCopy(bytes);
    a.shell().message({.text = "Fatto"});
  });
}

// The same file from the web and from the ftp server, of which nothing is kept, and then the one that is.
void UpdateTab::ScaricaDaFtp() {
  const std::string fromFtp = ftpAddress(a.program), toKeep = ftpCopyAddress(a.program);
  m_download->fetch(webAddress(a.program), [this, fromFtp, toKeep](const std::string&) {
    m_download->fetch(fromFtp, [this, toKeep](const std::string&) {
      m_download->fetch(toKeep, [this](const std::string& bytes) {
        const std::filesystem::path file = a.program.folder / kFtpCopy;
        writeFile(file, bytes);
        a.shell().status(fmt::format("Scritto \"{}\"", file.string()));
      });
    });
  });
}

void UpdateTab::AnnullaScarico() {
  if (!m_download->running()) return;
  m_download->cancel();
  a.shell().status("Scarico annullato");
}

// Only the draws that are missing or differ come into the grid: the history holds thousands that agree.
void UpdateTab::ConfrontaConStorico() {
  const auto file = a.shell().chooseOpen(
      {.title = "Storico pubblicato delle estrazioni", .folder = a.program.folder, .filter = "*.txt *.gz *.zip"});
  if (!file) return;
  std::vector<DrawRow> rows, unlike;
  for (const Draw& draw : readHistoryFile(*file)) rows.push_back(rowOf(draw));
  const UpdateCheck found = checkUpdate(archiveToRead(a.program), rows, BlankCell::NotDrawn);
  std::vector<UpdateMark> marks;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (!found.marks[i].missing && !found.marks[i].wrong) continue;
    unlike.push_back(std::move(rows[i]));
    marks.push_back(found.marks[i]);
  }
  m_blank = BlankCell::NotDrawn;
  m_origin = BackupReason::Importazione;
  fillUpdateGrid(unlike, a.FgImporta);
  markUpdateGrid(marks, a.FgImporta);
  a.List4.clear();
  for (const std::string& line : found.lines) a.List4.add(line);
  const std::size_t agree = rows.size() - unlike.size();
  a.List4.add(agree == 1 ? "1 estrazione concorda" : fmt::format("{} estrazioni concordano", agree));
}

}  // namespace

void MostraServer(Archivio& archivio) {
  archivio.Lbl_Server.setText(serverText(archivio.program));
}

void connectUpdateTab(Archivio& a, BeginTransfer begin) {
  if (!begin) begin = [](const std::string& address) { return beginTransfer(address); };
  const auto tab = std::make_shared<UpdateTab>(a, std::move(begin));
  tab->enableButtons();
  a.Command18.onEvent([tab] { tab->ControllaAggiornamenti(); });
  a.Command21.onEvent([tab] { tab->AggiornaDaFile(); });
  a.Command28.onEvent([tab] { tab->EseguiAggiornamento(); });
  a.Command27.onEvent([tab] { tab->ScaricaFile(); });
  a.Command19.onEvent([tab] { tab->ScaricaDaFtp(); });
  a.Command20.onEvent([&a] { a.shell().openAddress(webAddress(a.program)); });
  a.Command26.onEvent([tab] { tab->AnnullaScarico(); });
  a.Cmd_Storico.onEvent([tab] { tab->ConfrontaConStorico(); });
}

}  // namespace trv5
