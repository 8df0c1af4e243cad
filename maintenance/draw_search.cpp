#include "maintenance/draw_search.h"

#include <algorithm>
#include <optional>
#include <string>

#include "core/text.h"
#include "maintenance/archivio.h"

namespace trv5 {
namespace {

void moveTo(Archivio& a, int draw) {
  a.HScrestrazione.set(draw);
  a.HScrestrazione.focus();
}

}  // namespace

void RicercaPerData(Archivio& a) {
  const std::optional<std::string> date =
      a.shell().input({.text = "Data ?", .title = "Ricerca per data GG/MM/AAAA", .placeholder = "GG/MM/AAAA"});
  if (!date || date->empty()) return;
  const Archive& archive = a.program.archive;
  const int entries = std::min(archive.UltimaEstrazione(), archive.NumModello());
  for (int i = 1; i <= entries; ++i)
    if (archive.DateEstrazioni(archive.IndiciModello(i)) == *date) return moveTo(a, i);
  a.shell().message({.text = "Data non trovata", .title = "Cerca data"});
}

void RicercaPerIndice(Archivio& a) {
  constexpr int kLowest = 20;
  const std::optional<std::string> answer =
      a.shell().input({.text = "Inserire il n° indice dell'archivio modello.", .title = "Scelta estrazione"});
  if (!answer) return;
  const int draw = numberOf(*answer);
  if (draw >= kLowest && draw <= a.program.archive.UltimaEstrazione()) moveTo(a, draw);
}

void ChiediIndice(Archivio& a) {
  const std::optional<std::string> answer =
      a.shell().input({.text = "Digitare il numero indice", .title = "Indice estrazione", .initial = "3894"});
  if (!answer) return;
  const int draw = numberOf(*answer);
  if (draw >= a.HScrestrazione.minimum() && draw <= a.HScrestrazione.maximum()) moveTo(a, draw);
}

void VaiUltimaEstrazione(Archivio& a) {
  a.HScrestrazione.set(a.program.archive.NumEstrazioni());
}

}  // namespace trv5
