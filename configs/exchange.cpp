#include "configs/exchange.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <charconv>
#include <limits>

#include "configs/configuration_store.h"
#include "configs/workbench_configuration.h"
#include "core/errors.h"
#include "core/text.h"

namespace trv5 {
namespace {

// An export holds one configuration of at most some hundred rows, whose cells are short.
constexpr std::size_t kMostHeads = 100, kMostRows = 10'000, kLongestText = 32'767;

void refuseLongTexts(const QueryRows& answer) {
  for (const auto& row : answer.rows)
    for (const std::string& text : row)
      if (text.size() > kLongestText) throw UserError("Un campo del file è troppo lungo.");
}

std::int64_t wholeNumber(std::string_view field, const std::string& text, std::int64_t lowest, std::int64_t highest) {
  std::int64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [read, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || read != end || number < lowest || number > highest)
    throw UserError(fmt::format("Il campo {} del file contiene \"{}\".", field, text.substr(0, 20)));
  return number;
}

void requireMarks(std::string_view field, const std::string& text, int length) {
  if (characterCount(text) != length)
    throw UserError(fmt::format("Il campo {} del file non è lungo {}.", field, length));
}

FieldValue importedValue(const ConfigurationField& field, const std::string& text) {
  using Integer = std::numeric_limits<std::int32_t>;
  if (field.isNumber) return wholeNumber(field.name, text, Integer::min(), Integer::max());
  if (field.step == ReloadStep::Marks) requireMarks(field.name, text, field.name == "Posizioni" ? 5 : kWheels);
  return text;
}

std::vector<ConfigurationRow> importedRows(const QueryRows& answer) {
  std::vector<ConfigurationRow> rows = rowsOf(answer);
  const std::size_t grid = answer.column("Grid"), place = answer.column("Riga");
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rows[i].grid = wholeNumber("Grid", answer.rows[i][grid], 0, std::numeric_limits<std::int16_t>::max());
    rows[i].row = wholeNumber("Riga", answer.rows[i][place], 1, std::numeric_limits<std::int16_t>::max());
  }
  return rows;
}

// INSERT .. SELECT from one file into the other: the rows for which `owner` is the key, every field by its name.
int copyRows(const Database& from, Database& to, std::string_view table, std::string_view owner, std::int64_t key) {
  Statement fields = from.prepare("SELECT name FROM pragma_table_info(?)");
  fields.bind(1, table);
  std::vector<std::string> names, sources, marks;
  while (fields.step()) names.push_back(fields.text(0));
  for (const std::string& name : names) {
    sources.push_back(fmt::format("typeof({0}), {0}", name));
    marks.emplace_back("?");
  }
  Statement read =
      from.prepare(fmt::format("SELECT {} FROM {} WHERE {} = ? ORDER BY 2", fmt::join(sources, ", "), table, owner));
  Statement write =
      to.prepare(fmt::format("INSERT INTO {} ({}) VALUES ({})", table, fmt::join(names, ", "), fmt::join(marks, ", ")));
  int copied = 0;
  for (read.bind(1, key); read.step(); ++copied) {
    for (int i = 0; i < static_cast<int>(names.size()); ++i) {
      const int value = i * 2 + 1;
      if (read.isNull(value))
        write.bindNull(i + 1);
      else if (read.view(i * 2) == "integer")
        write.bind(i + 1, read.number(value));
      else
        write.bind(i + 1, read.view(value));
    }
    write.run();
  }
  return copied;
}

}  // namespace

std::unique_ptr<Database> openExportFile(const std::filesystem::path& file) {
  auto opened = std::make_unique<Database>(file, FileKind::Export);
  std::vector<std::string_view> head = {"Id_Config"}, rows = {"Id_Dett", "Rif_Memo", "Grid", "Riga"};
  for (const std::string_view name : configurationFieldNames())
    if (name != "DDS") head.push_back(name);
  rows.insert(rows.end(), kDetailFields.begin(), kDetailFields.end());
  opened->requireTable("Elenco_Memo", head);
  opened->requireTable("Elenco_Dett", rows);
  opened->checkIntegrity();
  return opened;
}

ExportedRows readExportFile(const Database& file) {
  ExportedRows texts = {readRows(file.prepare("SELECT Elenco_Memo.* FROM Elenco_Memo"), kMostHeads),
                        readRows(file.prepare("SELECT Elenco_Dett.* FROM Elenco_Dett"), kMostRows)};
  refuseLongTexts(texts.head);
  refuseLongTexts(texts.rows);
  return texts;
}

Configuration importedConfiguration(const ExportedRows& texts, const std::string& name) {
  if (texts.head.rows.empty()) throw UserError("Il file non contiene una configurazione.");
  Configuration configuration;
  for (const ConfigurationField& field : configurationFields()) {
    const bool isName = field.name == "Denominazione";
    const std::string& text = isName ? name : texts.head.rows.front()[texts.head.column(field.name)];
    configuration.head.push_back({field.name, importedValue(field, text)});
  }
  configuration.rows = importedRows(texts.rows);
  return configuration;
}

bool exportConfiguration(const Database& from, std::int64_t key, Database& file,
                         const std::function<void(ExportStep)>& done) {
  const auto step = [&](ExportStep made, const auto& work) {
    Database::Transaction transaction(file);
    const int rows = work();
    transaction.commit();
    done(made);
    return rows;
  };
  step(ExportStep::Emptied, [&] {
    // The rows go with their head; those that a stranger's file keeps without one would be imported with the new one.
    file.prepare("DELETE FROM Elenco_Memo").run();
    return file.prepare("DELETE FROM Elenco_Dett").run();
  });
  const int heads =
      step(ExportStep::HeadWritten, [&] { return copyRows(from, file, "Elenco_Memo", "Id_Config", key); });
  step(ExportStep::RowsWritten, [&] { return copyRows(from, file, "Elenco_Dett", "Rif_Memo", key); });
  return heads > 0;
}

}  // namespace trv5
