#include "cases/print_header.h"

#include <fmt/format.h>

#include "core/wheels.h"

namespace trv5 {
namespace {

// Columns of the tables of formulas.
constexpr int kElements[] = {2, 5, 8};  // the wheel of each, its position behind it
constexpr int kOperator = 10, kFix = 11, kAlteration = 17;

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

std::string situationText(const Workbench& w) {
  const std::string& kind = w.TipoRilevazione;
  std::string text = "Situazione: " + kind;
  if (kind == "Mensile" || kind == "Ciclo" || kind == "Num Pari")
    text += w.ValoreMensile == 0 ? " U" : " " + std::to_string(w.ValoreMensile);
  else
    text += " " + w.TxtNumeri.text();
  const bool two = w.Ch_analisi2ruote.checked();
  text += two ? ", ruote " + wheelsText(w.RuoteRilevazione)
              : ", ruota " + std::string(CodiciRuote[static_cast<std::size_t>(w.RuotaRilevazione)]);
  if (kind != "Mensile" && kind != "Ciclo") text += ", posizioni " + positionsText(w.PosizioniScelte);
  return text + fmt::format("; casi: {}", w.FgEv.dataRows());
}

std::string formulaText(const Grid& table, int row) {
  std::string text;
  for (const int wheel : kElements)
    if (!table.text(row, wheel).empty())
      text += (text.empty() ? "" : " ") + table.text(row, wheel) + table.text(row, wheel + 1);
  if (!table.text(row, kOperator).empty()) text += " " + table.text(row, kOperator);
  if (!table.text(row, kFix).empty()) text += " fix " + table.text(row, kFix);
  if (!table.text(row, kAlteration).empty()) text += " " + table.text(row, kAlteration);
  return text;
}

}  // namespace

std::vector<std::string> methodHeader(const Workbench& w, const DateTime& now) {
  std::vector<std::string> lines;
  if (!w.TipoRilevazione.empty()) lines.push_back(situationText(w));
  lines.push_back(fmt::format("Gioco: {}; colpi: {}; estrazione di riferimento: {} del {}", wheelsText(w.RuoteGioco),
                              w.Colpi, w.EstrazioneRiferimento, w.archive.DateEstrazioni(w.EstrazioneRiferimento)));
  for (const auto& [table, caption] : {std::pair(&w.Fg11, "Ambate"), std::pair(&w.Fg22, "Ambi"),
                                       std::pair(&w.Fg33, "Terni"), std::pair(&w.Fg00, "Lunghetta")}) {
    if (!table->hasData()) continue;
    std::string line = caption;
    for (int row = 1; row < table->rows(); ++row) line += (row == 1 ? ": " : "; ") + formulaText(*table, row);
    lines.push_back(line);
  }
  lines.push_back(fmt::format("Stampato il {:02}/{:02}/{:04}", now.day, now.month, now.year));
  return lines;
}

}  // namespace trv5
