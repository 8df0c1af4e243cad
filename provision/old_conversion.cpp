#include "provision/old_conversion.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "core/dates.h"
#include "core/errors.h"
#include "core/text.h"
#include "core/wheels.h"
#include "provision/shipped_contents.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

// A cell's text; "" for NULL and for a column that the table doesn't have.
class Cells {
 public:
  Cells(const OldTable& table, std::string_view column) : m_table(table), m_column(table.column(column)) {}
  std::string operator[](std::size_t row) const {
    return m_column ? m_table.rows[row][*m_column].value_or("") : std::string();
  }

 private:
  const OldTable& m_table;
  std::optional<std::size_t> m_column;
};

std::size_t needed(const OldTable& table, std::string_view column) {
  if (const auto position = table.column(column)) return *position;
  throw UserError(fmt::format("Nella tabella manca il campo {}.", column));
}

// Dates and times are one type in the old format.
std::string datePart(const std::string& moment) {
  const auto day = dayOfIso(std::string_view(moment).substr(0, 10));
  return day ? dateText(*day) : std::string();
}

std::string timePart(const std::string& moment) {
  return moment.size() == 19 ? moment.substr(11) : std::string();
}

ConfigurationRows::Fields known(const OldTable& table, std::size_t row, const std::vector<std::string_view>& names) {
  ConfigurationRows::Fields fields;
  for (const std::string_view name : names)
    if (const auto column = table.column(name)) fields.emplace_back(name, table.rows[row][*column]);
  return fields;
}

const std::vector<std::string_view> kHeadFields = {"Id_Config",
                                                   "Denominazione",
                                                   "Estrazione",
                                                   "NumCasi",
                                                   "RuotaP",
                                                   "Mensile",
                                                   "Tiporilevazione",
                                                   "Parametro",
                                                   "Qn",
                                                   "Colpi",
                                                   "Elenco",
                                                   "DDS",
                                                   "Posizioni",
                                                   "RuoteGioco",
                                                   "Analisi",
                                                   "Ruoterilevazione",
                                                   "Retro",
                                                   "Isotopi",
                                                   "QNR1",
                                                   "QNR2",
                                                   "Sorte",
                                                   "Fg0",
                                                   "Fg1",
                                                   "fG2",
                                                   "fG3"};
const std::vector<std::string_view> kDetailFields = {
    "Rif_Memo",  "Grid", "Riga", "R1", "Ru1", "P1", "R2",      "Ru2",         "P2",    "R3",    "Ru3",    "P3",
    "Operatore", "Fix",  "Pres", "CC", "Nr",  "Qn", "Formula", "Alterazione", "Ruota", "Ruote", "Ritardo"};

// The name that the file itself gives to a table; nothing when it has none like it.
std::optional<std::string> nameOf(const std::vector<std::string>& tables, std::string_view wanted) {
  const auto found = std::find_if(tables.begin(), tables.end(),
                                  [&](const std::string& name) { return equalIgnoringCase(name, wanted); });
  return found == tables.end() ? std::nullopt : std::optional(*found);
}

bool holdsFiveNumbers(const std::string& text) {
  std::set<int> numbers;
  for (const std::size_t at : {0U, 3U, 6U, 9U, 12U}) {
    const auto digit = [&](std::size_t i) { return i < text.size() && text[i] >= '0' && text[i] <= '9'; };
    if (!digit(at) || !digit(at + 1)) return false;
    numbers.insert(numberOf(text.substr(at, 2)));
  }
  return text.size() == 14 && numbers.size() == 5 && *numbers.begin() >= 1 && *numbers.rbegin() <= 90;
}

std::vector<std::string> doubtfulWheels(const std::vector<RegisteredDraw>& draws) {
  std::vector<std::string> found;
  for (const RegisteredDraw& draw : draws) {
    for (std::size_t wheel = 0; wheel < draw.row.wheels.size(); ++wheel) {
      const std::string& text = draw.row.wheels[wheel];
      if (!text.empty() && !holdsFiveNumbers(text))
        found.push_back(fmt::format("{}, {}: \"{}\"", draw.row.date, NomiRuote[wheel], text));
    }
  }
  return found;
}

void appendList(std::string& text, std::string_view title, const std::vector<std::string>& lines) {
  constexpr std::size_t kMost = 100;
  if (lines.empty()) return;
  text += fmt::format("{}:\n", title);
  for (std::size_t i = 0; i < std::min(lines.size(), kMost); ++i) text += fmt::format("  {}\n", lines[i]);
  if (lines.size() > kMost) text += fmt::format("  .. e altre {}\n", lines.size() - kMost);
}

Converted convertArchive(const OldTable& table, const fs::path& fresh, Existing existing) {
  const std::vector<RegisteredDraw> draws = oldDraws(table);
  if (draws.empty()) throw UserError("Il file del formato precedente non contiene estrazioni.");
  if (draws.size() > Archive::kMaxDraws)
    throw UserError(fmt::format("Il file contiene {} estrazioni: un archivio ne tiene al massimo {}.", draws.size(),
                                Archive::kMaxDraws));
  createRegisteredArchive(fresh, draws, existing);
  return {.draws = draws.size(),
          .first = draws.front().row.date,
          .last = draws.back().row.date,
          .doubtful = doubtfulWheels(draws)};
}

// Tables that the old file lacks are empty.
OldTable tableOrNone(const fs::path& old, const std::vector<std::string>& tables, std::string_view name,
                     const ProcessLimits& limits) {
  const auto found = nameOf(tables, name);
  return found ? readOldTable(old, *found, limits) : OldTable();
}

Converted convertMain(const fs::path& old, const std::vector<std::string>& tables, const fs::path& fresh,
                      Existing existing, const ProcessLimits& limits) {
  const OldTable heads = tableOrNone(old, tables, "Elenco_Memo", limits);
  const OldTable details = tableOrNone(old, tables, "Elenco_Dett", limits);
  MainContents contents = shippedContents("");
  contents.parameters = oldParameters(tableOrNone(old, tables, "ParametriProgramma", limits), contents.parameters);
  contents.configurations = oldConfigurations(heads, details);
  Converted converted{.kind = FileKind::Main};
  converted.refused = createMainDatabase(fresh, contents, existing);
  converted.configurations = contents.configurations.size() - converted.refused.size();
  return converted;
}

}  // namespace

std::string Converted::description() const {
  if (kind == FileKind::Archive) return fmt::format("archivio con {} estrazioni, dal {} al {}", draws, first, last);
  return configurations == 1 ? "database principale con una configurazione"
                             : fmt::format("database principale con {} configurazioni", configurations);
}

std::string Converted::notes() const {
  std::string text;
  appendList(text, "Configurazioni che non possono essere riprese", refused);
  appendList(text, "Ruote da controllare, riprese come sono", doubtful);
  return text;
}

std::vector<RegisteredDraw> oldDraws(const OldTable& table) {
  needed(table, "DataEstrazione");
  const Cells dates(table, "DataEstrazione"), datareg(table, "datareg"), orareg(table, "orareg");
  std::vector<Cells> wheels;
  for (const std::string_view name : SigleRuote) wheels.emplace_back(table, name);
  std::vector<std::pair<std::string, RegisteredDraw>> byDay;
  for (std::size_t row = 0; row < table.rows.size(); ++row) {
    const std::string moment = dates[row];
    RegisteredDraw draw{.row = {.date = datePart(moment), .wheels = {}}, .registered = {}};
    if (draw.row.date.empty()) throw UserError(fmt::format("Riga {}: \"{}\" non è una data.", row + 1, moment));
    for (std::size_t wheel = 0; wheel < wheels.size(); ++wheel) draw.row.wheels[wheel] = wheels[wheel][row];
    draw.registered = {.datareg = datePart(datareg[row]), .orareg = timePart(orareg[row])};
    byDay.emplace_back(moment.substr(0, 10), std::move(draw));
  }
  std::stable_sort(byDay.begin(), byDay.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<RegisteredDraw> draws;
  for (auto& [day, draw] : byDay) {
    if (!draws.empty() && draws.back().row.date == draw.row.date)
      throw UserError(fmt::format("L'estrazione del {} compare due volte.", draw.row.date));
    draws.push_back(std::move(draw));
  }
  return draws;
}

std::vector<ConfigurationRows> oldConfigurations(const OldTable& heads, const OldTable& details) {
  std::vector<ConfigurationRows> configurations;
  const Cells keys(heads, "Id_Config"), names(heads, "Denominazione"), owners(details, "Rif_Memo");
  for (std::size_t head = 0; head < heads.rows.size(); ++head) {
    ConfigurationRows rows{.name = names[head], .head = known(heads, head, kHeadFields), .details = {}};
    for (std::size_t detail = 0; detail < details.rows.size(); ++detail)
      if (owners[detail] == keys[head]) rows.details.push_back(known(details, detail, kDetailFields));
    configurations.push_back(std::move(rows));
  }
  return configurations;
}

std::vector<ParameterRow> oldParameters(const OldTable& table, std::vector<ParameterRow> shipped) {
  const Cells names(table, "Parametro"), first(table, "Valore1"), second(table, "Valore2");
  for (std::size_t row = 0; row < table.rows.size(); ++row) {
    const std::string name = names[row];
    const auto same = std::find_if(shipped.begin(), shipped.end(), [&](const ParameterRow& parameter) {
      return equalIgnoringCase(parameter.Parametro, name);
    });
    if (same == shipped.end() || equalIgnoringCase(name, "PercorsoArchivio")) continue;
    same->Valore1 = first[row];
    same->Valore2 = second[row];
  }
  return shipped;
}

Converted convertOldFile(const fs::path& old, const fs::path& fresh, Existing existing, std::optional<FileKind> wanted,
                         const ProcessLimits& limits) {
  std::error_code unknown;
  if (fs::equivalent(old, fresh, unknown))
    throw UserError(fmt::format("La sorgente e il file da creare sono lo stesso: \"{}\".", old.string()));
  const std::vector<std::string> tables = oldTableNames(old, limits);
  const auto draws = nameOf(tables, "EstrazioniLotto");
  const bool isMain = nameOf(tables, "Elenco_Memo") || nameOf(tables, "ParametriProgramma");
  if (!draws && !isMain)
    throw UserError(fmt::format("Il file \"{}\" non contiene né estrazioni né configurazioni.", old.string()));
  const FileKind kind = draws ? FileKind::Archive : FileKind::Main;
  if (wanted && kind != *wanted)
    throw UserError(kind == FileKind::Main
                        ? fmt::format("Il file \"{}\" non contiene estrazioni ma configurazioni: diventa un database "
                                      "principale con il comando trv5-data converti.",
                                      old.string())
                        : fmt::format("Il file \"{}\" è un archivio di estrazioni.", old.string()));
  if (draws) return convertArchive(readOldTable(old, *draws, limits), fresh, existing);
  return convertMain(old, tables, fresh, existing, limits);
}

OldFiles oldFilesReader() {
  return {.recognised = isOldFile, .convertArchive = [](const fs::path& old, const fs::path& fresh) {
            const Converted converted = convertOldFile(old, fresh, Existing::Replace, FileKind::Archive);
            return OldFiles::Outcome{converted.description(), converted.notes()};
          }};
}

}  // namespace trv5
