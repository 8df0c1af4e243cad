#include "screens/archive/copies_page.h"

#include "screens/kit/kit.h"
#include "screens/kit/state_mark.h"

namespace trv5 {
namespace {

QWidget* copiesPanel(Kit& kit) {
  auto* const panel = new Panel(QStringLiteral("Copie dell'archivio"));
  panel->head()->addWidget(kit.button("Cmd_EsportaStato", {.kind = ButtonKind::Quiet, .icon = "upload"}));
  auto* const when = new SmallNote(Qt::ElideRight, Qt::AlignLeft);
  when->setText(QStringLiteral("Prima di ogni modifica dell'archivio: restano le ultime dieci e una al mese."));
  panel->body()->addWidget(when);
  panel->body()->addWidget(
      kit.grid("Fg_Copie", {.name = QStringLiteral("Copie dell'archivio"),
                            .samples = {QStringLiteral("88/88/8888 88:88"), QStringLiteral("aggiornamento"),
                                        QStringLiteral("Estrazioni"), QStringLiteral("88/88/8888"),
                                        QStringLiteral("mancano 88, 8 diverse")}}),
      1);
  panel->body()->addLayout(row({kit.button("Cmd_Ripristina", {.icon = "restore"}),
                                kit.button("Cmd_VerificaCopia", {.icon = "shield"}),
                                {kit.note("Lbl_CartellaCopie", Qt::ElideMiddle, Qt::AlignRight), 1}}));
  return panel;
}

QWidget* checkPanel(Kit& kit) {
  auto* const panel = new Panel(QStringLiteral("Controllo dell'archivio"));
  panel->head()->addWidget(kit.button("Cmd_VerificaArchivio", {.kind = ButtonKind::Primary, .icon = "shield"}));
  panel->body()->addWidget(kit.note("Lbl_EsitoControllo", Qt::ElideRight));
  panel->body()->addWidget(kit.grid("Fg_Controllo", {.name = QStringLiteral("Controllo dell'archivio"),
                                                     .samples = {QStringLiteral("Somme di controllo"),
                                                                 QStringLiteral("88888"), QStringLiteral("88/88/8888"),
                                                                 QStringLiteral("FI: cambiata fuori dal programma")}}),
                           1);
  panel->body()->addLayout(
      row({kit.button("Cmd_Accetta"), kit.button("Cmd_RipristinaEstrazione", {.icon = "restore"}), Piece::gap(),
           kit.button("Copia_Fg_Controllo", {.kind = ButtonKind::Quiet, .icon = "copy"})}));
  return panel;
}

}  // namespace

QWidget* archiveCopiesPage(Archivio& form) {
  Kit kit(form);
  QWidget* const page = holding(row({{copiesPanel(kit), 8}, {checkPanel(kit), 7}}));
  padAsPage(*page);
  return page;
}

}  // namespace trv5
