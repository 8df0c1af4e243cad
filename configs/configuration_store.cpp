#include "configs/configuration_store.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <limits>

#include "core/errors.h"
#include "core/text.h"

namespace trv5 {
namespace {

std::string denominationOf(const Configuration& configuration) {
  const auto* const name = std::get_if<std::string>(&configuration.value("Denominazione"));
  if (name == nullptr || name->empty()) throw UserError("La denominazione è vuota.");
  if (characterCount(*name) > kLongestDenomination) throw UserError("La denominazione è troppo lunga.");
  return *name;
}

std::string marks(std::size_t count) {
  return fmt::format("{}", fmt::join(std::vector<std::string_view>(count, "?"), ", "));
}

void bindValue(Statement& statement, int parameter, const FieldValue& value) {
  std::visit([&](const auto& plain) { statement.bind(parameter, plain); }, value);
}

std::int64_t insertHead(Database& database, const std::vector<Field>& head) {
  std::vector<std::string_view> names;
  for (const Field& field : head) names.push_back(field.name);
  Statement insert = database.prepare(
      fmt::format("INSERT INTO Elenco_Memo ({}) VALUES ({})", fmt::join(names, ", "), marks(names.size())));
  for (std::size_t i = 0; i < head.size(); ++i) bindValue(insert, static_cast<int>(i) + 1, head[i].value);
  insert.run();
  const std::int64_t key = database.lastInsertedKey();
  if (key > std::numeric_limits<std::int32_t>::max()) throw UserError("Le chiavi delle configurazioni sono finite.");
  return key;
}

void insertRows(Database& database, std::int64_t key, const std::vector<ConfigurationRow>& rows) {
  Statement insert =
      database.prepare(fmt::format("INSERT INTO Elenco_Dett (Rif_Memo, Riga, Grid, {}) VALUES (?, ?, ?, {})",
                                   fmt::join(kDetailFields, ", "), marks(kDetailFields.size())));
  for (const ConfigurationRow& row : rows) {
    insert.bind(1, key).bind(2, row.row).bind(3, row.grid);
    for (std::size_t i = 0; i < row.cells.size(); ++i) insert.bind(static_cast<int>(i) + 4, row.cells[i]);
    insert.run();
  }
}

}  // namespace

const FieldValue& Configuration::value(std::string_view field) const {
  for (const Field& known : head)
    if (equalIgnoringCase(known.name, field)) return known.value;
  throw UserError(fmt::format("Manca il campo {}.", field));
}

std::int64_t saveConfiguration(Database& database, const Configuration& configuration,
                               const std::function<void()>& headWritten) {
  const std::string name = denominationOf(configuration);
  Database::Transaction transaction(database);
  if (hasDenomination(database, name)) throw UserError("La denominazione esiste già.");
  const std::int64_t key = insertHead(database, configuration.head);
  headWritten();
  insertRows(database, key, configuration.rows);
  transaction.commit();
  return key;
}

QueryRows listConfigurations(const Database& database) {
  return readRows(database.prepare(
      "SELECT Elenco_Memo.Id_Config as Cod, Elenco_Memo.Denominazione, Elenco_Memo.Estrazione as Estraz, "
      "Elenco_Memo.NumCasi, Elenco_Memo.RuotaP, Elenco_Memo.Mensile, Elenco_Memo.TipoRilevazione, "
      "Elenco_Memo.Parametro, Elenco_Memo.QN, Elenco_Memo.Colpi, "
      "Elenco_Memo.Elenco, Elenco_Memo.Posizioni, Elenco_Memo.RuoteGioco, Elenco_Memo.Analisi, "
      "Elenco_Memo.Ruoterilevazione, Elenco_Memo.retro, Elenco_Memo.isotopi, Elenco_Memo.qnr1, Elenco_Memo.qnr2, "
      "Elenco_Memo.Sorte, Elenco_Memo.fg0, Elenco_Memo.fg1, Elenco_Memo.fg2, Elenco_Memo.fg3, Elenco_Memo.DDS "
      "From Elenco_Memo ORDER BY Elenco_Memo.Denominazione"));
}

std::optional<std::vector<Field>> loadHead(const Database& database, std::int64_t key,
                                           const std::vector<std::string_view>& fields) {
  std::vector<std::string> sources;
  for (const std::string_view field : fields) sources.push_back(fmt::format("typeof({0}), {0}", field));
  Statement seek =
      database.prepare(fmt::format("SELECT {} FROM Elenco_Memo WHERE Id_Config = ?", fmt::join(sources, ", ")));
  if (!seek.bind(1, key).step()) return std::nullopt;
  std::vector<Field> head;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const int column = static_cast<int>(i) * 2;
    const bool number = seek.view(column) == "integer";
    head.push_back({fields[i], number ? FieldValue(seek.number(column + 1)) : FieldValue(seek.text(column + 1))});
  }
  return head;
}

QueryRows loadRows(const Database& database, std::int64_t key) {
  return readRows(database.prepare(fmt::format(
      "SELECT Elenco_Dett.Id_Dett, Elenco_Dett.Rif_Memo, Elenco_Dett.Grid, Elenco_Dett.Riga, Elenco_Dett.R1, "
      "Elenco_Dett.Ru1, Elenco_Dett.P1, Elenco_Dett.R2, Elenco_Dett.Ru2, Elenco_Dett.P2, Elenco_Dett.R3, "
      "Elenco_Dett.Ru3, Elenco_Dett.P3, Elenco_Dett.Operatore, Elenco_Dett.Fix, Elenco_Dett.Pres, Elenco_Dett.CC, "
      "Elenco_Dett.Nr, Elenco_Dett.Qn, Elenco_Dett.Formula, Elenco_Dett.Alterazione, Elenco_Dett.Ruota, "
      "Elenco_Dett.Ruote, Elenco_Dett.Ritardo "
      "From Elenco_Dett "
      "Where (((Elenco_Dett.Rif_Memo) = {})) "
      "ORDER BY Elenco_Dett.Grid, Elenco_Dett.Riga",
      key)));
}

std::vector<ConfigurationRow> rowsOf(const QueryRows& answer) {
  const std::size_t grid = answer.column("Grid"), place = answer.column("Riga");
  std::array<std::size_t, kDetailFields.size()> cells{};
  for (std::size_t i = 0; i < cells.size(); ++i) cells[i] = answer.column(kDetailFields[i]);
  std::vector<ConfigurationRow> rows;
  for (const auto& texts : answer.rows) {
    ConfigurationRow& row = rows.emplace_back();
    row.grid = numberOf(texts[grid]);
    row.row = numberOf(texts[place]);
    for (std::size_t i = 0; i < cells.size(); ++i) row.cells[i] = texts[cells[i]];
  }
  return rows;
}

bool eraseConfiguration(Database& database, std::int64_t key) {
  Database::Transaction transaction(database);
  const int erased = database.prepare("DELETE FROM Elenco_Memo WHERE Id_Config = ?").bind(1, key).run();
  transaction.commit();
  return erased > 0;
}

bool hasDenomination(const Database& database, std::string_view name) {
  const std::string wanted = foldedCase(name);
  Statement names = database.prepare("SELECT Denominazione FROM Elenco_Memo");
  while (names.step())
    if (foldedCase(names.view(0)) == wanted) return true;
  return false;
}

}  // namespace trv5
