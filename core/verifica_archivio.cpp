#include "core/verifica_archivio.h"

#include <fmt/format.h>

#include "core/archive_load.h"
#include "core/container.h"

namespace trv5 {
namespace {

std::string_view nameOf(DrawDifference::Kind kind) {
  switch (kind) {
    case DrawDifference::Kind::Missing:
      return "mancante";
    case DrawDifference::Kind::Added:
      return "aggiunta";
    case DrawDifference::Kind::Changed:
      return "cambiata";
  }
  return "";
}

}  // namespace

void AccettaEstrazioni(Program& program) {
  Database& archive = program.archiveToWrite();
  if (!acceptDraws(archive, program.drawDifferences)) {
    takeDifferences(program, differencesFromSums(archive, readDraws(archive)));
    throw UserError("L'archivio è cambiato da quando è stato caricato: guardare di nuovo l'elenco.");
  }
  takeDifferences(program, {});
  program.shell.status("Le estrazioni sono state accettate come stanno nell'archivio");
}

VerificaArchivio::VerificaArchivio(Program& program)
    : Form(program.shell, "VerificaArchivio", "Estrazioni da verificare", Container::kHelpContext),
      Fg_Differenze(*this, "Fg_Differenze", "Data|Che cosa|Ba|Ca|Fi|Ge|Mi|Na|Pa|Ro|To|Ve|Nz"),
      LblSpiegazione(
          *this, "LblSpiegazione",
          "Queste estrazioni non sono come TRV5 le aveva registrate: un altro programma le ha cambiate, o il "
          "file si è danneggiato. Le ruote sono quelle che stanno ora nell'archivio."),
      Cmd_Accetta(*this, "Cmd_Accetta", "Accetta", "Da ora in poi l'archivio è giusto così com'è"),
      m_program(program) {
  Cmd_Accetta.onEvent([this] { Accetta(); });
}

void VerificaArchivio::load() {
  const std::vector<DrawDifference>& differences = m_program.drawDifferences;
  {
    const Grid::Batch batch(Fg_Differenze);
    Fg_Differenze.cutToHeading();
    for (const DrawDifference& difference : differences) {
      const int row = Fg_Differenze.appendRow();
      Fg_Differenze.setText(row, 0, difference.now.date);
      Fg_Differenze.setText(row, 1, nameOf(difference.kind));
      for (int wheel = 0; wheel < kWheels; ++wheel)
        Fg_Differenze.setText(row, wheel + 2, difference.now.wheels[static_cast<std::size_t>(wheel)]);
    }
  }
  Cmd_Accetta.setEnabled(!differences.empty());
}

void VerificaArchivio::Accetta() {
  try {
    AccettaEstrazioni(m_program);
  } catch (...) {
    load();
    throw;
  }
  load();
  shell().close(name());
}

}  // namespace trv5
