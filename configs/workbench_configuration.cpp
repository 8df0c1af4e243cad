#include "configs/workbench_configuration.h"

#include <fmt/format.h>

#include <utility>

#include "core/errors.h"
#include "core/palette.h"

namespace trv5 {
namespace {

// More rows than any table of formulas takes; a file may ask for more.
constexpr std::int64_t kMostGridRows = 10'000;

std::int64_t numberIn(const FieldValue& value) {
  if (const auto* const number = std::get_if<std::int64_t>(&value)) return *number;
  throw UserError("Il campo non contiene un numero.");
}

int numberIn(const FieldValue& value, std::int64_t lowest, std::int64_t highest) {
  const std::int64_t number = numberIn(value);
  if (number < lowest || number > highest) throw UserError(fmt::format("Il valore {} è fuori dai limiti.", number));
  return static_cast<int>(number);
}

std::string textIn(const FieldValue& value) {
  if (const auto* const number = std::get_if<std::int64_t>(&value)) return std::to_string(*number);
  return std::get<std::string>(value);
}

// A list is kept by the position of its item. A typed text has none: it is kept as -1 and comes back as no text.
template <auto combo>
constexpr ConfigurationField list(std::string_view name) {
  return {name, ReloadStep::Values, true, [](const Workbench& w) -> FieldValue { return (w.*combo).index(); },
          [](Workbench& w, const FieldValue& value) {
            Combo& control = w.*combo;
            const auto items = static_cast<std::int64_t>(control.items().size());
            control.select(numberIn(value, control.editable() ? -1 : 0, items - 1));
          }};
}

template <auto check>
constexpr ConfigurationField box(std::string_view name) {
  return {name, ReloadStep::Values, true, [](const Workbench& w) -> FieldValue { return (w.*check).checked() ? 1 : 0; },
          [](Workbench& w, const FieldValue& value) { (w.*check).set(numberIn(value, 0, 1) == 1); }};
}

template <auto text>
constexpr ConfigurationField line(std::string_view name) {
  return {name, ReloadStep::Values, false, [](const Workbench& w) -> FieldValue { return (w.*text).text(); },
          [](Workbench& w, const FieldValue& value) { (w.*text).set(textIn(value)); }};
}

// A row of wheels: one character a wheel, "1" for a green one; whatever else means that it isn't chosen.
template <auto grid>
constexpr ConfigurationField wheels(std::string_view name) {
  return {name, ReloadStep::Marks, false,
          [](const Workbench& w) -> FieldValue {
            std::string chosen(kWheels, '0');
            for (int wheel = 0; wheel < kWheels; ++wheel)
              if ((w.*grid).back(0, wheel) == Verde) chosen[static_cast<std::size_t>(wheel)] = '1';
            return chosen;
          },
          [](Workbench& w, const FieldValue& value) {
            const std::string chosen = textIn(value);
            for (int wheel = 0; wheel < kWheels; ++wheel) {
              const auto at = static_cast<std::size_t>(wheel);
              (w.*grid).setBack(0, wheel, at < chosen.size() && chosen[at] == '1' ? Verde : kWhite);
            }
          }};
}

// A table of formulas: its row count, the heading included.
template <auto grid>
constexpr ConfigurationField rowCount(std::string_view name) {
  return {name, ReloadStep::RowCounts, true, [](const Workbench& w) -> FieldValue { return (w.*grid).rows(); },
          [](Workbench& w, const FieldValue& value) { (w.*grid).setRows(numberIn(value, 1, kMostGridRows)); }};
}

FieldValue readDraw(const Workbench& w) {
  return w.EstrazioneRiferimento;
}

void writeDraw(Workbench& w, const FieldValue& value) {
  const int draw = numberIn(value, 1, w.archive.UltimaEstrazione());
  if (draw > w.hs1.maximum()) w.hs1.setMaximum(w.archive.UltimaEstrazione());
  w.hs1.set(draw);
}

FieldValue readPositions(const Workbench& w) {
  std::string chosen;
  for (const auto& [position, label] : w.LblPN) chosen += label->back() == Verde ? '1' : '0';
  return chosen;
}

// Positions are lit unless they hold a "0", wheels only by a "1": on purpose.
void writePositions(Workbench& w, const FieldValue& value) {
  const std::string chosen = textIn(value);
  for (const auto& [position, label] : w.LblPN) {
    const auto at = static_cast<std::size_t>(position) - 1;
    label->setBack(at < chosen.size() && chosen[at] == '0' ? kWhite : Verde);
  }
}

using W = Workbench;

constexpr ConfigurationField kFields[] = {
    line<&W::Txt_Denominazione>("Denominazione"),
    {"Estrazione", ReloadStep::Values, true, readDraw, writeDraw},
    list<&W::ComboNC>("NumCasi"),
    list<&W::ComboR1>("RuotaP"),
    list<&W::ComboPar>("Mensile"),
    list<&W::ComboFiltro>("Tiporilevazione"),
    line<&W::TxtNumeri>("Parametro"),
    list<&W::ComboQNu>("Qn"),
    list<&W::ComboColpi>("Colpi"),
    list<&W::ComboEle>("Elenco"),
    box<&W::ChDDS>("DDS"),
    box<&W::Ch_analisi2ruote>("Analisi"),
    list<&W::ComboRetro>("Retro"),
    box<&W::Ch_ISO>("Isotopi"),
    list<&W::ComboQNR1>("QNR1"),
    list<&W::ComboQNR2>("QNR2"),
    list<&W::ComboSorte>("Sorte"),
    {"Posizioni", ReloadStep::Marks, false, readPositions, writePositions},
    wheels<&W::FgRG>("RuoteGioco"),
    wheels<&W::FgRR>("Ruoterilevazione"),
    rowCount<&W::Fg00>("Fg0"),
    rowCount<&W::Fg11>("Fg1"),
    rowCount<&W::Fg22>("fG2"),
    rowCount<&W::Fg33>("fG3"),
};

}  // namespace

std::span<const ConfigurationField> configurationFields() {
  return kFields;
}

std::vector<std::string_view> configurationFieldNames() {
  std::vector<std::string_view> names;
  for (const ConfigurationField& field : kFields) names.push_back(field.name);
  return names;
}

Configuration captureConfiguration(const Workbench& w) {
  Configuration configuration;
  for (const ConfigurationField& field : kFields) configuration.head.push_back({field.name, field.read(w)});
  for (const TableTraits& table : kTables) {
    const Grid& formulas = w.formulas(table.table);
    for (int row = 1; row < formulas.rows(); ++row) {
      ConfigurationRow& stored = configuration.rows.emplace_back();
      stored.grid = table.code;
      stored.row = row;
      for (std::size_t i = 0; i < stored.cells.size(); ++i)
        stored.cells[i] = formulas.text(row, static_cast<int>(i) + 1);
    }
  }
  return configuration;
}

void layFields(Workbench& w, const std::vector<Field>& head, ReloadStep step) {
  for (const ConfigurationField& field : kFields) {
    if (field.step != step) continue;
    for (const Field& stored : head)
      if (stored.name == field.name) field.write(w, stored.value);
  }
}

void layRows(Workbench& w, const std::vector<ConfigurationRow>& rows) {
  for (const ConfigurationRow& stored : rows) {
    const auto table = tableOfCode(static_cast<int>(stored.grid));
    if (!table) continue;
    Grid& formulas = w.formulas(*table);
    if (stored.row < 1 || stored.row >= formulas.rows())
      throw UserError(fmt::format("La riga {} della tabella non esiste.", stored.row));
    for (std::size_t i = 0; i < stored.cells.size(); ++i)
      formulas.setText(static_cast<int>(stored.row), static_cast<int>(i) + 1, stored.cells[i]);
  }
}

}  // namespace trv5
