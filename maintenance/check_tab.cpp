#include "maintenance/check_tab.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>

#include "core/archive_load.h"
#include "core/container.h"
#include "core/draw_writer.h"
#include "core/errors.h"
#include "core/figures.h"
#include "core/grid_text.h"
#include "core/text.h"
#include "core/verifica_archivio.h"
#include "maintenance/archive_state.h"
#include "maintenance/archivio.h"
#include "maintenance/copy_first.h"
#include "maintenance/draw_entry.h"
#include "maintenance/update_server.h"

namespace trv5 {
namespace {

constexpr std::string_view kClean = "in ordine";

// A load of the same draws leaves the stamp.
bool isSame(const Archive& inMemory, const std::vector<DrawRow>& rows) {
  Archive read = inMemory;
  read.loadNumbers(rows);
  return read.loadStamp() == inMemory.loadStamp();
}

// The wheels in which two versions of a draw differ, where they are few: "FI ", "FI MI ".
std::string wheelsApart(const DrawRow& one, const DrawRow& other) {
  constexpr int kMostNamed = 3;
  std::string names;
  int count = 0;
  for (std::size_t wheel = 0; wheel < one.wheels.size(); ++wheel) {
    if (one.wheels[wheel] == other.wheels[wheel]) continue;
    names += fmt::format("{} ", CodiciRuote[wheel]);
    ++count;
  }
  return count <= kMostNamed ? names : "";
}

}  // namespace

struct CheckTab::Look {
  std::vector<DrawRow> rows;
  std::vector<ArchiveFinding> findings;
  std::vector<std::optional<Mend>> mends;
  bool damaged = false;  // nothing is known of the draws then
};

CheckTab::CheckTab(Archivio& archivio, std::function<void()> reload)
    : a(archivio),
      m_reload(std::move(reload)),
      m_reloads(a.program.archiveReloaded.subscribe([this] { m_stale = true; })) {
  a.Lbl_EsitoControllo.setText("Integrità, somme di controllo, testi delle ruote, date, numeri ripetuti, calendario.");
  a.Fg_Controllo.setEmptyText("Premi Verifica archivio");
  enableButtons();
}

void CheckTab::connect(const std::shared_ptr<CheckTab>& self) {
  a.Cmd_VerificaArchivio.onEvent([self] { self->ControllaArchivio(); });
  a.Fg_Controllo.onMove([self] { self->enableButtons(); });
  a.Fg_Controllo.onCellClick([self](int row, int) { self->MostraRilievo(row); });
  a.Fg_Controllo.onCellDoubleClick([self](int row, int) { self->MostraRilievo(row); });
  a.Cmd_Accetta.onEvent([self] { self->Accetta(); });
  a.Cmd_RipristinaEstrazione.onEvent([self] { self->RipristinaEstrazione(); });
  a.Copia_Fg_Controllo.onEvent([this] {
    a.shell().setClipboard(tableText(a.Fg_Controllo));
    a.shell().status("Tabella copiata: " + counted(a.Fg_Controllo.dataRows(), "riga", "righe"));
  });
}

CheckTab::Look CheckTab::look() const {
  const Database& archive = archiveToRead(a.program);
  Look look;
  try {
    archive.checkIntegrity();
  } catch (const DatabaseError& error) {
    if (error.reason() != DatabaseError::Reason::Damaged) throw;
    look.damaged = true;
    look.findings.push_back({ArchiveCheck::Integrity, 0, "", "il file è danneggiato: ripristina una copia"});
    return look;
  }
  look.rows = readDraws(archive);
  const std::vector<DrawDifference> differences = differencesFromSums(archive, look.rows);
  const DateTime now = a.shell().now();
  look.findings = findingsOf(look.rows, differences, dayOf(now.year, now.month, now.day).value_or(Day{}));
  look.mends = mendsOf(look.findings, archive, look.rows, backupsOf(archive.path(), now));
  for (std::size_t i = 0; i < look.findings.size(); ++i) {
    ArchiveFinding& finding = look.findings[i];
    if (finding.check != ArchiveCheck::Sums || !look.mends[i] || finding.draw == 0) continue;
    finding.text =
        wheelsApart(look.mends[i]->draw, look.rows[static_cast<std::size_t>(finding.draw) - 1]) + finding.text;
  }
  if (a.program.otherArchiveChosen()) return look;
  takeDifferences(a.program, differences);
  a.program.differencesSeen = true;
  if (a.program.container != nullptr) a.program.container->MostraVerifica();
  return look;
}

void CheckTab::show(const Look& look, double seconds) {
  m_findings.clear();
  m_mends.clear();
  auto next = look.findings.begin();
  for (const ArchiveCheck check : kArchiveChecks) {
    if (next == look.findings.end() || next->check != check) {
      m_findings.push_back({check, 0, "", look.damaged ? "non si può dire" : std::string(kClean)});
      m_mends.emplace_back();
    }
    for (; next != look.findings.end() && next->check == check; ++next) {
      m_findings.push_back(*next);
      m_mends.push_back(look.damaged ? std::nullopt
                                     : look.mends[static_cast<std::size_t>(next - look.findings.begin())]);
    }
  }
  Grid& list = a.Fg_Controllo.grid();
  const Grid::Batch batch(a.Fg_Controllo);
  list.cutToHeading();
  for (const ArchiveFinding& finding : m_findings) {
    const int row = list.appendRow();
    const std::string draw = finding.draw > 0 ? std::to_string(finding.draw) : "";
    int column = 0;
    for (const std::string_view text : {nameOf(finding.check), std::string_view(draw), std::string_view(finding.date),
                                        std::string_view(finding.text)}) {
      list.setText(row, column, text);
      list.setBold(row, column++, finding.text != kClean);
    }
  }
  const std::string what = found() == 0
                               ? "niente da guardare."
                               : fmt::format("{} da guardare. Un clic su una riga mostra l'estrazione.", found());
  a.Lbl_EsitoControllo.setText(look.damaged ? "L'archivio non si lascia leggere per intero."
                                            : fmt::format("{} estrazioni controllate in {} s: {}",
                                                          figureText(static_cast<double>(look.rows.size())),
                                                          figureText(std::max(seconds, 0.1), 1), what));
}

std::size_t CheckTab::found() const {
  return static_cast<std::size_t>(
      std::count_if(m_findings.begin(), m_findings.end(), [](const auto& finding) { return finding.text != kClean; }));
}

void CheckTab::ControllaArchivio() {
  using Clock = std::chrono::steady_clock;
  const auto start = Clock::now();
  const Look now = look();
  const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
  if (!now.damaged && !a.program.otherArchiveChosen() && !isSame(a.program.archive, now.rows)) m_reload();
  show(now, seconds);
  m_stale = false;
  enableButtons();
  a.shell().status(now.damaged    ? "Verifica archivio: il file è danneggiato"
                   : found() == 0 ? "Verifica archivio: niente da guardare"
                                  : fmt::format("Verifica archivio: {} da guardare", found()));
}

void CheckTab::refresh() {
  if (m_stale && a.Fg_Controllo.hasData()) ControllaArchivio();
}

// Where the draw stands in memory; 0 where it doesn't.
int CheckTab::drawOf(const ArchiveFinding& finding) const {
  if (finding.draw == 0) return 0;
  const Archive& archive = a.program.archive;
  for (int draw = 1; draw <= archive.NumEstrazioni(); ++draw)
    if (archive.DateEstrazioni(draw) == finding.date) return draw;
  return 0;
}

void CheckTab::MostraRilievo(int row) {
  if (row < 1 || row > static_cast<int>(m_findings.size())) return;
  const ArchiveFinding& finding = m_findings[static_cast<std::size_t>(row) - 1];
  if (const int draw = drawOf(finding); draw > 0) {
    VaiEstrazione(a, draw);
    a.SSTab1.set(Archivio::kGestione);
  } else if (!finding.date.empty()) {
    a.shell().status(fmt::format("L'estrazione del {} non è nell'archivio", finding.date));
  }
}

void CheckTab::Accetta() {
  AccettaEstrazioni(a.program);
  ControllaArchivio();
  a.shell().status("Le estrazioni sono state accettate come stanno nell'archivio");
}

const Mend* CheckTab::chosenMend() const {
  const int row = a.Fg_Controllo.current();
  if (row < 1 || row > static_cast<int>(m_mends.size())) return nullptr;
  const std::optional<Mend>& mend = m_mends[static_cast<std::size_t>(row) - 1];
  return mend ? &*mend : nullptr;
}

void CheckTab::RipristinaEstrazione() {
  const Mend* const chosen = chosenMend();
  if (chosen == nullptr) return a.shell().status("Scegli prima una riga che una copia può rimettere a posto");
  const Mend mend = *chosen;
  if (!a.shell().confirm({.text = fmt::format("Riprendere dalla copia l'estrazione del {} ?", mend.draw.date),
                          .title = "Ripristino di un'estrazione",
                          .icon = Icon::Question,
                          .reason = mend.copy.filename().string()}))
    return;
  if (!CopiaPrima(a, BackupReason::Ripristino, mend.copy)) return;
  {
    DrawWriter writer(a.program.archiveToWrite());
    if (!writer.correct(mend.draw, registrationNow(a.shell()))) writer.add(mend.draw, registrationNow(a.shell()));
    writer.commit();
  }
  m_reload();
  ControllaArchivio();
  a.shell().status(fmt::format("Ripresa dalla copia l'estrazione del {}", mend.draw.date));
}

void CheckTab::enableButtons() {
  const bool looked = a.Fg_Controllo.hasData();
  const bool unlike = std::any_of(m_findings.begin(), m_findings.end(), [](const ArchiveFinding& finding) {
    return finding.check == ArchiveCheck::Sums && !finding.date.empty();
  });
  a.Cmd_Accetta.setEnabled(unlike);
  a.Cmd_Accetta.setToolTip(unlike   ? "Da ora in poi l'archivio è giusto così com'è"
                           : looked ? "Le somme di controllo sono in ordine: non c'è niente da accettare"
                                    : "Prima premi Verifica archivio");
  const bool mendable = chosenMend() != nullptr;
  a.Cmd_RipristinaEstrazione.setEnabled(mendable);
  a.Cmd_RipristinaEstrazione.setToolTip(
      mendable                       ? "Riprende l'estrazione della riga dalla copia più recente che la ha giusta"
      : !looked                      ? "Prima premi Verifica archivio"
      : a.Fg_Controllo.current() < 1 ? "Prima scegli una riga del controllo"
                                     : "Nessuna copia può rimettere a posto questa riga");
}

}  // namespace trv5
