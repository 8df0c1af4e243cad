#include "cases/case_list.h"

#include <optional>
#include <string>

#include "cases/case_rows.h"
#include "cases/selections.h"
#include "cases/status_texts.h"
#include "core/errors.h"
#include "core/text.h"

namespace trv5 {
namespace {

void tellReference(Workbench& w) {
  w.shell().status("Estrazione di riferimento: " + std::to_string(w.EstrazioneRiferimento) + " del " +
                   w.archive.DateEstrazioni(w.EstrazioneRiferimento));
}

// The archive may have grown since the reference draw was last moved.
void moveReference(Workbench& w, int draw) {
  if (w.hs1.maximum() < w.archive.UltimaEstrazione()) w.hs1.setMaximum(w.archive.UltimaEstrazione());
  w.hs1.set(draw);
  tellReference(w);
}

// An element of the case in a row of the list, from the columns where it stands; without marks where no wheel is told.
FoundElement elementOf(const Grid& cases, int row, int drawColumn) {
  FoundElement element;
  element.draw = cases.number(row, drawColumn);
  const int wheel = wheelOfCode(std::string_view(cases.text(row, drawColumn + 2)).substr(0, 2));
  if (wheel < 0) return element;
  element.wheel = wheel;
  for (int p = 1; p <= kPositions; ++p)
    element.marks[static_cast<std::size_t>(p)] = cases.back(row, drawColumn + 2 + p) == VerdeMedio;
  return element;
}

}  // namespace

void AggiornaEstrazioneRiferimento(Workbench& w) {
  CambiaEstrazioneRiferimento(w);
  tellReference(w);
}

void MostraCaso(Workbench& w, int row) {
  if (row >= 1 && row < w.FgEv.rows()) w.hs1.set(caseDraw(w, row));
}

void VisualizzaEstrazione(Workbench& w) {
  const int row = w.FgEv.current();
  if (row < 1) {
    w.shell().status(chooseRowFirst("dell'elenco estrazioni"));
    return;
  }
  try {
    std::optional<FoundElement> second;
    if (w.FgEv.number(row, case_column::kDraw2) > 0) second = elementOf(w.FgEv, row, case_column::kDraw2);
    w.hooks.showDraws(elementOf(w.FgEv, row, case_column::kDraw), second);
  } catch (const UserError&) {
    // Looking at a case is no work that could be lost: no box for it.
    w.shell().status("Le estrazioni del caso non si possono mostrare");
  }
}

void CancellaSegniVerifica(Workbench& w) {
  const Grid::Batch batch(w.FgEv);
  for (int row = 1; row < w.FgEv.rows(); ++row) {
    for (int column = case_column::kHits; column <= case_column::kLunghetta; ++column) {
      w.FgEv.setBack(row, column, kWhite);
      w.FgEv.setText(row, column, "");
    }
  }
  w.FgSSS.clearTexts();
  w.origins.marks = {};
  w.shell().status(w.FgEv.hasData() ? "Segni delle verifiche cancellati" : kNoCases);
}

void RicercaPerData(Workbench& w) {
  const std::optional<std::string> date =
      w.shell().input({.text = "Ricerca per data GG/MM/AAAA", .title = "Data ?", .placeholder = "GG/MM/AAAA"});
  if (!date) return;
  if (date->empty()) {
    w.shell().status("Nessuna data indicata");
    return;
  }
  for (int draw = 1; draw <= w.archive.UltimaEstrazione(); ++draw)
    if (w.archive.DateEstrazioni(draw) == *date) return moveReference(w, draw);
  w.shell().message({.text = "Data non trovata", .title = "Cerca data", .icon = Icon::Information});
}

void RicercaPerIndice(Workbench& w) {
  constexpr int kLowest = 20;
  const std::optional<std::string> answer =
      w.shell().input({.text = "Inserire il n° indice dell'archivio modello.", .title = "Scelta estrazione"});
  if (!answer) return;
  const int draw = numberOf(*answer);
  if (draw >= kLowest && draw <= w.archive.UltimaEstrazione()) return moveReference(w, draw);
  w.shell().status("Si può indicare un'estrazione da " + std::to_string(kLowest) + " a " +
                   std::to_string(w.archive.UltimaEstrazione()));
}

void VaiUltimaEstrazione(Workbench& w) {
  moveReference(w, w.archive.UltimaEstrazione());
}

}  // namespace trv5
