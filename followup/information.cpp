#include "followup/information.h"

#include <fmt/format.h>

#include "cases/case_rows.h"
#include "cases/method_codec.h"
#include "cases/result_states.h"
#include "cases/selections.h"
#include "core/text.h"
#include "followup/delays.h"

namespace trv5 {
namespace {

constexpr int kSelColumn = kWheels + 1;

// The table afresh, hidden rows and all, with the columns of the wheels of play in their colour.
void writeTable(Workbench& w, const NumbersByWheel& values) {
  Grid& grid = w.FgRit;
  grid.cutToHeading();
  grid.setRows(1 + kMostNumber);
  for (int number = 1; number <= kMostNumber; ++number) {
    grid.setNumber(number, 0, number);
    grid.setBold(number, 0);
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      grid.setNumber(number, wheel + 1, values[static_cast<std::size_t>(number)][static_cast<std::size_t>(wheel)]);
      if (holds(w.RuoteGioco, wheel)) grid.setBack(number, wheel + 1, GialloMedio);
    }
  }
}

void writeCoverage(Workbench& w, const Coverage& covered) {
  writeTable(w, covered.cases);
  for (int number = 1; number <= kMostNumber; ++number) {
    w.FgRit.setNumber(number, kSelColumn, covered.onAnyWheel[static_cast<std::size_t>(number)]);
    w.FgRit.setBack(number, kSelColumn, AranciaMedio);
    w.FgRit.setBold(number, kSelColumn);
    w.FgRit.setFore(number, kSelColumn, Blu);
  }
}

// Returns the delays that it has shown.
NumbersByWheel showDelays(Workbench& w) {
  RicavaRuoteGioco(w);
  const NumbersByWheel values = delays(w.archive, w.EstrazioneRiferimento);
  writeTable(w, values);
  noteDelays(w, false);
  return values;
}

int chosenSpan(const Workbench& w) {
  for (const auto& [index, option] : w.OptionRit)
    if (option->checked()) return numberOf(option->caption());
  return 0;
}

}  // namespace

void connectInformation(Workbench& w) {
  for (const auto& [index, option] : w.OptionRit)
    option->onEvent([&w, &own = *option] {
      bool other = false;
      for (const auto& [i, each] : w.OptionRit) {
        if (each.get() == &own) continue;
        if (own.checked()) each->set(false);
        other = other || each->checked();
      }
      if (!own.checked() && !other) own.set(true);
    });
}

void CalcolaRitardi(Workbench& w) {
  const Grid::Batch batch(w.FgRit);
  showDelays(w);
  w.shell().status(fmt::format("Ritardi all'estrazione {}", w.EstrazioneRiferimento));
}

void CalcolaPresenze(Workbench& w) {
  const Grid::Batch batch(w.FgRit);
  RicavaRuoteGioco(w);
  const int span = chosenSpan(w);
  writeTable(w, presences(w.archive, w.EstrazioneRiferimento, span));
  noteDelays(w, false);
  w.shell().status("Presenze " + (span > w.EstrazioneRiferimento
                                      ? "in tutte le " + std::to_string(w.EstrazioneRiferimento) + " estrazioni"
                                      : "nelle ultime " + std::to_string(span) + " estrazioni"));
}

void CalcolaPresenzeNeiColpi(Workbench& w) {
  const Grid::Batch batch(w.FgRit);
  RicavaRuoteGioco(w);
  const std::string cases = counted(w.FgEv.dataRows(), "caso", "casi");
  if (w.Ch_coperture.checked()) {
    writeCoverage(w, coverage(w.archive, caseDraws(w), playWindow(w)));
    w.shell().status("Coperture: " + cases + ", " + counted(w.Colpi, "colpo", "colpi"));
  } else {
    writeTable(w, presencesInColpi(w.archive, caseDraws(w), playWindow(w)));
    w.shell().status("Presenze nei colpi di gioco: " + cases + ", " + counted(w.Colpi, "colpo", "colpi"));
  }
  noteDelays(w, true);
}

void CercaRitardiVicini(Workbench& w, int wheels) {
  const Grid::Batch batch(w.FgRit);
  const int delta = w.ComboDelta.index();
  const auto close = closeDelays(showDelays(w), wheels, delta);
  int found = 0;
  for (int number = 1; number <= kMostNumber; ++number) {
    const WheelSet set = close[static_cast<std::size_t>(number)];
    found += set != 0;
    for (int wheel = 0; wheel < kWheels; ++wheel)
      if (holds(set, wheel)) w.FgRit.setBack(number, wheel + 1, AranciaMedio);
    w.shell().progress(number, kMostNumber);
  }
  w.shell().status(fmt::format("Ricerca su {} ruote: ritardi con distanza {}, {}", wheels, delta,
                               counted(found, "numero", "numeri")));
}

void FiltraNumeriInGioco(Workbench& w) {
  if (!w.FgGioco.hasData()) return w.shell().status("Nessun numero in gioco: fai prima clic su un caso");
  if (!w.FgRit.hasData()) return w.shell().status("Nessuna tabella da filtrare: premi prima RITARDI o PRESENZE");
  NumberFlags inPlay{};
  for (int row = 1; row < w.FgGioco.rows(); ++row)
    for (int column = 1; column < w.FgGioco.columns(); ++column)
      if (const int number = w.FgGioco.number(row, column); number <= kMostNumber)
        inPlay[static_cast<std::size_t>(number)] = true;
  const Grid::Batch batch(w.FgRit);
  int shown = 0;
  for (int number = 1; number < w.FgRit.rows(); ++number) {
    const bool show = inPlay[static_cast<std::size_t>(number)];
    w.FgRit.setRowHidden(number, !show);
    shown += show;
  }
  w.shell().status("Filtra selezionati: " + counted(shown, "numero", "numeri"));
}

}  // namespace trv5
