#include "maintenance/archive_state.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/archive_load.h"
#include "core/container.h"
#include "core/text.h"
#include "maintenance/archivio.h"

namespace trv5 {
namespace {

void refreshShell(const Program& program) {
  if (program.container == nullptr) return;
  const Archive& archive = program.archive;
  Container& shell = *program.container;
  shell.LblInizio.setText(archive.DateEstrazioni(std::min(1, archive.NumEstrazioni())));
  shell.Lbl_inizioNE.setText("1");
  shell.LblFine.setText(archive.DateEstrazioni(archive.NumEstrazioni()));
  shell.Lbl_fineNE.setText(std::to_string(archive.NumEstrazioni()));
}

}  // namespace

void RicaricaArchivio(Archivio& a) {
  const std::vector<DrawRow> rows = CaricaArchivioExNovo(a.program);
  const Grid::Batch batch(a.FgDB);
  a.FgDB.cutToHeading();
  fillFgDB(rows, a.FgDB);
  a.Label9.setText(std::to_string(rows.size()));
  a.shell().progress(0, 0);
  a.shell().status("Archivio caricato: " + describeArchive(a.program, rows));
}

void AggiornaMaschera(Archivio& a) {
  const Archive& archive = a.program.archive;
  const int last = archive.NumEstrazioni();
  a.Label2.setText(std::to_string(last));
  a.LBLAGGIORNATO.setText(archive.DateEstrazioni(last));
  a.HScrestrazione.setMaximum(last);
  VaiEstrazione(a, last);
  refreshShell(a.program);
}

void MostraEstrazione(Archivio& a) {
  const Archive& archive = a.program.archive;
  const int draw = std::min(a.HScrestrazione.value(), archive.NumEstrazioni());
  a.pAN_DC.setText(std::to_string(draw));
  a.LBLESTRAZIONE.setText(archive.DateEstrazioni(draw));
  for (int box = 1; box <= 50; ++box) a.txtin[box].set("");  // those of the national wheel are written over
  int box = 0;
  for (int wheel = 0; wheel < kWheels; ++wheel)
    for (int p = 1; p <= kPositions; ++p) a.txtin[++box].set(twoDigits(archive.NumeriEstratti(draw, wheel, p)));
  a.LabelPM.setText(std::to_string(archive.ProgMese(draw)));
  a.LabelPA.setText(std::to_string(archive.ProgAnno(draw)));
  a.Lbl_Controllo.setText("");  // what stands in the archive isn't being written
}

void VaiEstrazione(Archivio& a, int draw) {
  a.HScrestrazione.set(draw);
  MostraEstrazione(a);
}

}  // namespace trv5
