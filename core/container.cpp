#include "core/container.h"

#include <fmt/format.h>

#include <utility>

#include "core/verifica_archivio.h"

namespace trv5 {

Container::Container(Program& program)
    : Form(program.shell, "Container", "TRV 5", kHelpContext),
      Command4(*this, "Command4", "TRV5"),
      Command1(*this, "Command1", "Gestione archivio"),
      Command5(*this, "Command5", "Mini elenco estrazioni"),
      Command6(*this, "Command6", "Sistemi ortogonali"),
      Command2(*this, "Command2", "Esporta e importa configurazioni"),
      Command3(*this, "Command3", "Funzioni aggiuntive"),
      Command7(*this, "Command7", "Rileva caratteristiche estrazione"),
      Command33(*this, "Command33", "Help in linea"),
      Command45(*this, "Command45", "FINE"),
      LblTitoloInizio(*this, "LblTitoloInizio", "Inizio"),
      LblTitoloFine(*this, "LblTitoloFine", "Fine"),
      LblTitoloNE(*this, "LblTitoloNE", "N° estr"),
      LblDataInizio(*this, "LblDataInizio", "Data inizio"),
      LblDataFine(*this, "LblDataFine", "Data fine"),
      LblIndiceInizio(*this, "LblIndiceInizio", "Indice inizio"),
      LblIndiceFine(*this, "LblIndiceFine", "Indice fine"),
      LblModello(*this, "LblModello", "Estrazioni archivio modello"),
      LblInizio(*this, "LblInizio"),
      LblFine(*this, "LblFine"),
      Lbl_inizioNE(*this, "Lbl_inizioNE"),
      Lbl_fineNE(*this, "Lbl_fineNE"),
      Lbl_Ev(*this, "Lbl_Ev"),
      Cmd_Verifica(*this, "Cmd_Verifica", "", "Mostra le estrazioni che non sono come furono registrate"),
      Lbl_Verifica(*this, "Lbl_Verifica"),
      Pb1(*this, "Pb1"),
      FG5(*this, "FG5", "|N° estr|Data|PA|PM"),
      m_program(program) {
  connectButtons();
  m_program.container = this;
}

void Container::connectButtons() {
  opens(Command4, "Sommativi1");
  opens(Command1, "archivio");
  opens(Command5, "Estrazioni_minielenco");
  opens(Command6, "SistemiOrtogonali");
  opens(Command2, "ImportExport");
  opens(Command3, "FunzioniAggiuntive");
  opens(Command7, "DiDiSO");
  Cmd_Verifica.onEvent([this] {
    // Opened before, it may show the differences of an earlier load.
    static_cast<VerificaArchivio&>(shell().show("VerificaArchivio")).load();
    m_program.differencesSeen = true;
    MostraVerifica();
  });
  Command33.onEvent([this] {
    setHelpContext(kHelpContext);
    shell().help(kHelpContext);
  });
  Command45.onEvent([this] {
    m_program.closeDatabases();
    shell().quit();
  });
}

Container::~Container() {
  if (m_program.container == this) m_program.container = nullptr;
}

void Container::opens(Button& button, std::string screen) {
  if (m_program.screenExists && !m_program.screenExists(screen)) {
    button.setEnabled(false);
    button.setToolTip("Questa schermata non esiste ancora in questa versione del programma");
  }
  button.onEvent([this, name = std::move(screen)] { shell().show(name); });
}

void Container::load() {
  Lbl_Ev.setFore(VerdeBuio);
  CaricaFG5();
  ImpostazioniArchivioModello();
  MostraVerifica();
}

void Container::MostraVerifica() {
  const std::size_t count = m_program.drawDifferences.size();
  const std::string text = count == 0   ? ""
                           : count == 1 ? "1 estrazione da verificare"
                                        : fmt::format("{} estrazioni da verificare", count);
  Cmd_Verifica.setCaption(text);
  Lbl_Verifica.setText(m_program.differencesSeen ? "" : text);
}

void Container::CaricaFG5() {
  const Archive& archive = m_program.archive;
  const Grid::Batch batch(FG5);
  FG5.setRows(1);
  FG5.setRows(archive.NumEstrazioni() + 1);
  for (int draw = 1; draw <= archive.NumEstrazioni(); ++draw) {
    FG5.setNumber(draw, 1, draw);
    FG5.setText(draw, 2, archive.DateEstrazioni(draw));
    FG5.setNumber(draw, 3, archive.ProgAnno(draw));
    FG5.setNumber(draw, 4, archive.ProgMese(draw));
  }
}

void Container::ImpostazioniArchivioModello() {
  const Archive& archive = m_program.archive;
  const int entries = archive.NumModello();
  const int first = entries > 0 ? archive.IndiciModello(1) : 0;
  const int last = entries > 0 ? archive.IndiciModello(entries) : 0;
  LblInizio.setText(archive.DateEstrazioni(first));
  Lbl_inizioNE.setText(std::to_string(first));
  LblFine.setText(archive.DateEstrazioni(last));
  Lbl_fineNE.setText(std::to_string(last));
  Lbl_Ev.setText(std::to_string(last - first + 1));
}

}  // namespace trv5
