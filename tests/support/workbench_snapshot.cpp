#include "support/workbench_snapshot.h"

#include <fmt/format.h>

#include <set>

#include "support/plain_evaluation.h"

namespace trv5 {
namespace {

// Where sets of numbers are sorted on the way: what stands there is no result.
const std::set<std::string> kScratch = {"FgS1", "FgS2", "FgS3", "FgS4", "FgS5", "FgS6", "FgSort", "FgDett"};

// What tells how results stand follows from what their operations note beside what they leave.
bool tellsOfResults(const std::string& name) {
  return name.starts_with("LblStato_") || name == "LblOrigine" || name == "LblRigaProvata" || name == "LblVisti" ||
         name == "LblAttesi" || name == "LblBilancio";
}

std::string looks(const Control& control) {
  std::string text = control.enabled() ? " on" : " off";
  if (control.back()) text += fmt::format(" back {:06X}", *control.back());
  if (control.fore()) text += fmt::format(" fore {:06X}", *control.fore());
  return text;
}

std::string valueOf(const Control& control) {
  if (const auto* c = dynamic_cast<const Button*>(&control)) return c->caption();
  if (const auto* c = dynamic_cast<const Label*>(&control)) return c->text();
  if (const auto* c = dynamic_cast<const Combo*>(&control)) return fmt::format("{} {}", c->index(), c->text());
  if (const auto* c = dynamic_cast<const Check*>(&control)) return c->checked() ? "checked" : "clear";
  if (const auto* c = dynamic_cast<const Text*>(&control)) return c->text();
  if (const auto* c = dynamic_cast<const Scroll*>(&control)) return fmt::format("{} of {}", c->value(), c->maximum());
  if (const auto* c = dynamic_cast<const Tabs*>(&control)) return std::to_string(c->index());
  std::string lines;
  if (const auto* c = dynamic_cast<const LineList*>(&control))
    for (const std::string& line : c->lines()) lines += line + '\n';
  return lines;
}

std::string cellText(const Cell& cell) {
  return fmt::format("'{}' on {:06X} in {:06X}{}", cell.text, cell.back, cell.fore, cell.bold ? " bold" : "");
}

std::string setText(const std::set<int>& set) {
  std::string text;
  for (int value : set) text += std::to_string(value) + ' ';
  return text;
}

class StateComparison {
 public:
  template <class Value>
  void field(const char* name, const Value& expected, const Value& actual) {
    if (m_text.empty() && expected != actual) m_text = name;
  }
  void number(const char* name, int expected, int actual) {
    if (m_text.empty() && expected != actual) m_text = fmt::format("{}: {} expected, {} found", name, expected, actual);
  }
  void formula(const ParametriFormula& expected, const ParametriFormula& actual) {
    if (const std::string name = differentField(expected, actual); m_text.empty() && !name.empty())
      m_text = fmt::format("Formula.{}; NumeroOttenuto {} expected, {} found", name, expected.NumeroOttenuto,
                           actual.NumeroOttenuto);
  }
  const std::string& text() const { return m_text; }

 private:
  std::string m_text;
};

std::string stateDifference(const WorkbenchState& e, const WorkbenchState& a) {
  StateComparison c;
  c.field("TipoRilevazione", e.TipoRilevazione, a.TipoRilevazione);
  c.number("RuotaRilevazione", e.RuotaRilevazione, a.RuotaRilevazione);
  c.field("RuoteRilevazione", e.RuoteRilevazione, a.RuoteRilevazione);
  c.number("RuoteGioco", static_cast<int>(e.RuoteGioco), static_cast<int>(a.RuoteGioco));
  c.field("PosizioniScelte", e.PosizioniScelte, a.PosizioniScelte);
  c.field("PosizioniColpite", e.PosizioniColpite, a.PosizioniColpite);
  c.field("NumeriScelti", e.NumeriScelti, a.NumeriScelti);
  c.field("TestoNumeri", e.TestoNumeri, a.TestoNumeri);
  c.number("Elenco", e.Elenco, a.Elenco);
  c.number("Retro", e.Retro, a.Retro);
  c.number("Colpi", e.Colpi, a.Colpi);
  c.number("ValoreMensile", e.ValoreMensile, a.ValoreMensile);
  c.number("MaxCasi", e.MaxCasi, a.MaxCasi);
  c.number("NumeroCasi", e.NumeroCasi, a.NumeroCasi);
  c.number("EstrazioneRiferimento", e.EstrazioneRiferimento, a.EstrazioneRiferimento);
  c.formula(e.Formula, a.Formula);
  c.field("FixAmmessi", e.FixAmmessi, a.FixAmmessi);
  c.field("TerzineAmmesse", e.TerzineAmmesse, a.TerzineAmmesse);
  c.number("Sorte", e.Sorte, a.Sorte);
  c.field("OperazioneCorrente", e.OperazioneCorrente, a.OperazioneCorrente);
  c.number("TipoVerifica", e.TipoVerifica, a.TipoVerifica);
  c.field("EsitiPerSorte", e.EsitiPerSorte, a.EsitiPerSorte);
  c.number("CasiInCorso", e.CasiInCorso, a.CasiInCorso);
  c.field("NumeriInGioco", e.NumeriInGioco, a.NumeriInGioco);
  c.field("CasiEsclusi", e.CasiEsclusi, a.CasiEsclusi);
  c.field("CasiVerificati", e.CasiVerificati, a.CasiVerificati);
  c.field("CasiCoperti", e.CasiCoperti, a.CasiCoperti);
  c.field("CasiQuasi", e.CasiQuasi, a.CasiQuasi);
  return c.text();
}

std::string gridDifference(const std::string& name, const Grid& expected, const Grid& actual) {
  const std::string text = difference(expected, actual);
  return text.empty() ? text : name + ' ' + text;
}

std::string valueDifference(const std::string& name, const std::string& expected, const std::string& actual) {
  return expected == actual ? "" : fmt::format("{}: {} expected, {} found", name, expected, actual);
}

}  // namespace

WorkbenchSnapshot::WorkbenchSnapshot(const Workbench& w) : state(w) {
  for (const Control* control : w.controls())
    if (const auto* grid = dynamic_cast<const GridControl*>(control)) {
      if (!kScratch.contains(grid->name())) grids.emplace(grid->name(), grid->grid());
    } else if (control->partOfState() && !tellsOfResults(control->name())) {
      controls[control->name()] = valueOf(*control) + looks(*control);
    }
}

std::string difference(const Grid& expected, const Grid& actual) {
  if (expected == actual) return {};
  if (expected.rows() != actual.rows() || expected.columns() != actual.columns())
    return fmt::format("{} x {} expected, {} x {} found", expected.rows(), expected.columns(), actual.rows(),
                       actual.columns());
  for (int row = 0; row < expected.rows(); ++row)
    for (int column = 0; column < expected.columns(); ++column)
      if (!(expected.at(row, column) == actual.at(row, column)))
        return fmt::format("({}, {}): {} expected, {} found", row, column, cellText(expected.at(row, column)),
                           cellText(actual.at(row, column)));
  if (expected.current() != actual.current())
    return fmt::format("current row {} expected, {} found", expected.current(), actual.current());
  if (expected.mergedColumns() != actual.mergedColumns())
    return fmt::format("merged columns {}expected, {}found", setText(expected.mergedColumns()),
                       setText(actual.mergedColumns()));
  if (expected.bars() != actual.bars())
    return fmt::format("{} bars expected, {} found, or others", expected.bars().size(), actual.bars().size());
  return "something besides the cells";
}

std::string difference(const WorkbenchSnapshot& expected, const Workbench& actual) {
  for (const Control* control : actual.controls())
    if (const auto* grid = dynamic_cast<const GridControl*>(control)) {
      if (kScratch.contains(grid->name())) continue;
      if (const std::string text = gridDifference(grid->name(), expected.grids.at(grid->name()), *grid); !text.empty())
        return text;
    } else if (control->partOfState() && !tellsOfResults(control->name())) {
      const std::string text =
          valueDifference(control->name(), expected.controls.at(control->name()), valueOf(*control) + looks(*control));
      if (!text.empty()) return text;
    }
  return stateDifference(expected.state, actual);
}

std::string difference(const WorkbenchSnapshot& expected, const WorkbenchSnapshot& actual) {
  for (const auto& [name, grid] : expected.grids)
    if (const std::string text = gridDifference(name, grid, actual.grids.at(name)); !text.empty()) return text;
  for (const auto& [name, value] : expected.controls)
    if (const std::string text = valueDifference(name, value, actual.controls.at(name)); !text.empty()) return text;
  return stateDifference(expected.state, actual.state);
}

}  // namespace trv5
