#include "cases/print_header.h"

#include <fmt/format.h>

#include "cases/formula_rows.h"
#include "core/text.h"
#include "core/wheels.h"
#include "method/detection.h"

namespace trv5 {
namespace {

std::string wheelsText(WheelSet set) {
  std::string text;
  for (int wheel = 0; wheel < kWheels; ++wheel)
    if (holds(set, wheel))
      text += (text.empty() ? "" : " ") + std::string(CodiciRuote[static_cast<std::size_t>(wheel)]);
  return text.empty() ? "nessuna ruota" : text;
}

std::string positionsText(const PositionFlags& chosen) {
  std::string text;
  for (int p = 1; p <= kPositions; ++p)
    if (chosen[static_cast<std::size_t>(p)]) text += (text.empty() ? "" : " ") + std::to_string(p);
  return text.empty() ? "nessuna" : text;
}

// The kind with its value.
std::string kindText(const Workbench& w, const std::string& numbers) {
  const SituationKind kind = situationKindOf(w.TipoRilevazione).value_or(SituationKind::Mensile);
  const bool period = kind == SituationKind::Mensile || kind == SituationKind::Ciclo || kind == SituationKind::NumPari;
  return w.TipoRilevazione + " " + (!period ? numbers : w.ValoreMensile == 0 ? "U" : std::to_string(w.ValoreMensile));
}

// What narrows the situation beside its value, as far as its kind goes by it.
std::string conditionsText(const Workbench& w, SituationKind kind, bool two) {
  const bool numbers = kind == SituationKind::Numeri;
  const bool pairs =
      kind == SituationKind::Distanza || kind == SituationKind::Differenza || kind == SituationKind::Somma;
  std::string text;
  if (!two && (numbers || pairs) && w.QuantiNumeri > 1) text += fmt::format(", QN {}", w.QuantiNumeri);
  if (two && numbers) text += fmt::format(", QN {} e {}", w.QNR1, w.QNR2);
  if ((two ? numbers || pairs : numbers) && w.Retro > 0) text += fmt::format(", retro {}", w.Retro);
  if (two && pairs && w.ChDDS.checked()) text += ", rapporto 1:1";
  if (two && (numbers || pairs) && w.Ch_ISO.checked()) text += ", isotopi";
  return text;
}

// The situation of the cases that are listed: the fields that the user may have changed since then play no part.
std::string situationText(const Workbench& w) {
  const SituationKind kind = situationKindOf(w.TipoRilevazione).value_or(SituationKind::Mensile);
  const bool two = w.Ch_analisi2ruote.checked();
  std::string text = "Situazione: " + kindText(w, w.TestoNumeri);
  text += two ? ", ruote " + wheelsText(w.RuoteRilevazione)
              : ", ruota " + std::string(CodiciRuote[static_cast<std::size_t>(w.RuotaRilevazione)]);
  if (kind != SituationKind::Mensile && kind != SituationKind::Ciclo)
    text += ", posizioni " + positionsText(w.PosizioniScelte);
  return text + conditionsText(w, kind, two) + fmt::format("; casi: {}", w.FgEv.dataRows());
}

std::string formulaText(const Grid& table, int row) {
  using namespace formula_column;
  if (table.text(row, kNr) == "0") return "numero " + table.text(row, kFix);
  std::string text;
  for (const int element : {kR1, kR2, kR3})
    if (!table.text(row, element + 1).empty())
      text += (text.empty() ? "" : " ") + table.text(row, element + 1) + table.text(row, element + 2);
  if (!table.text(row, kOperator).empty()) text += " " + table.text(row, kOperator);
  if (!table.text(row, kFix).empty()) text += " fix " + table.text(row, kFix);
  if (!table.text(row, kAlteration).empty()) text += " " + table.text(row, kAlteration);
  return text;
}

}  // namespace

std::string methodName(const Workbench& w) {
  std::string name(trimmed(w.Txt_Denominazione.text()));
  if (!name.empty() || !w.FgEv.hasData()) return name;
  name = kindText(w, w.TestoNumeri);
  if (w.Ch_analisi2ruote.checked()) return name + " su 2 ruote";
  return name + " " + std::string(CodiciRuote[static_cast<std::size_t>(w.RuotaRilevazione)]);
}

std::vector<std::string> methodHeader(const Workbench& w, const DateTime& now) {
  std::vector<std::string> lines;
  if (!w.TipoRilevazione.empty()) lines.push_back(situationText(w));
  lines.push_back(fmt::format("Gioco: {}; colpi: {}; estrazione di riferimento: {} del {}", wheelsText(w.RuoteGioco),
                              w.Colpi, w.EstrazioneRiferimento, w.archive.DateEstrazioni(w.EstrazioneRiferimento)));
  for (const TableTraits& traits : kTables) {
    const Grid& table = w.formulas(traits.table);
    if (!table.hasData()) continue;
    std::string line(traits.caption);
    for (int row = 1; row < table.rows(); ++row) line += (row == 1 ? ": " : "; ") + formulaText(table, row);
    lines.push_back(line);
  }
  lines.push_back(fmt::format("Stampato il {:02}/{:02}/{:04}", now.day, now.month, now.year));
  return lines;
}

}  // namespace trv5
