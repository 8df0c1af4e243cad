#include "provision/old_file.h"

#include <fmt/format.h>

#include <fstream>

#include "core/errors.h"
#include "core/text.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

// One cell after the other; the end of each row is told by the cell before it.
class CellReader {
 public:
  explicit CellReader(std::string_view text) : m_text(text) {}
  bool atEnd() const { return m_at >= m_text.size(); }

  /// The cells of the next row.
  OldTable::Row row() {
    OldTable::Row cells;
    do cells.push_back(cell());
    while (take(','));
    take('\r');
    if (!take('\n') && !atEnd()) broken();
    return cells;
  }

 private:
  [[noreturn]] static void broken() {
    throw UserError("Il file del formato precedente non è leggibile fino in fondo.");
  }

  bool take(char wanted) {
    if (atEnd() || m_text[m_at] != wanted) return false;
    ++m_at;
    return true;
  }

  std::optional<std::string> cell() {
    if (take('"')) return quoted();
    const std::size_t end = std::min(m_text.find_first_of(",\r\n", m_at), m_text.size());
    const std::string_view plain = m_text.substr(m_at, end - m_at);
    m_at = end;
    return plain.empty() ? std::nullopt : std::optional(std::string(plain));
  }

  std::string quoted() {
    std::string text;
    for (;;) {
      const std::size_t end = m_text.find('"', m_at);
      if (end == std::string_view::npos) broken();
      text += m_text.substr(m_at, end - m_at);
      m_at = end + 1;
      if (!take('"')) return text;
      text += '"';
    }
  }

  std::string_view m_text;
  std::size_t m_at = 0;
};

[[noreturn]] void unreadable(const fs::path& file, std::string_view reason, const std::string& details = {}) {
  throw UserError(fmt::format("Il file \"{}\" non può essere letto: {}.", file.string(), reason), "Avviso", details);
}

std::string printed(const std::string& reader, const fs::path& file, const std::vector<std::string>& arguments,
                    const ProcessLimits& limits) {
  ProcessEnd end = runBounded(reader, arguments, limits);
  switch (end.way) {
    case ProcessEnd::Way::Missing:
      throw UserError(
          "Per leggere i file delle versioni precedenti serve il pacchetto mdbtools (apt install mdbtools): "
          "installarlo "
          "e riprovare.");
    case ProcessEnd::Way::TooLate:
      unreadable(file, "la lettura non finisce in tempo");
    case ProcessEnd::Way::TooMuch:
      unreadable(file, "contiene più dati di quanti ne tenga un archivio");
    case ProcessEnd::Way::BySignal:
      unreadable(file, "il file è danneggiato", end.errors);
    case ProcessEnd::Way::Exited:
      break;
  }
  // The reader goes on over what it can't make out, and says so.
  if (end.status != 0 || !end.errors.empty())
    unreadable(file, "il file è danneggiato o di una versione sconosciuta", end.errors);
  return std::move(end.output);
}

// Absolute, so that no name is taken for an option.
std::string argumentOf(const fs::path& file) {
  return fs::absolute(file).string();
}

}  // namespace

bool isOldFile(const fs::path& file) {
  std::error_code unknown;
  if (!fs::is_regular_file(file, unknown)) return false;
  std::ifstream stream(file, std::ios::binary);
  std::string start(19, '\0');
  if (!stream.read(start.data(), static_cast<std::streamsize>(start.size()))) return false;
  const std::string_view kind = std::string_view(start).substr(4);
  return kind == "Standard Jet DB" || kind == "Standard ACE DB";
}

std::optional<std::size_t> OldTable::column(std::string_view name) const {
  for (std::size_t i = 0; i < columns.size(); ++i)
    if (equalIgnoringCase(columns[i], name)) return i;
  return std::nullopt;
}

OldTable parseOldTable(std::string_view text) {
  CellReader reader(text);
  OldTable table;
  if (reader.atEnd()) throw UserError("La tabella non ha colonne.");
  for (std::optional<std::string>& name : reader.row()) table.columns.push_back(name.value_or(""));
  while (!reader.atEnd()) {
    table.rows.push_back(reader.row());
    if (table.rows.back().size() != table.columns.size())
      throw UserError(fmt::format("La riga {} ha {} celle invece di {}.", table.rows.size(), table.rows.back().size(),
                                  table.columns.size()));
  }
  return table;
}

std::vector<std::string> oldTableNames(const fs::path& file, const ProcessLimits& limits) {
  if (!isOldFile(file)) unreadable(file, "non è un database delle versioni precedenti");
  std::vector<std::string> names;
  std::string_view text;
  const std::string output = printed("mdb-tables", file, {"-1", argumentOf(file)}, limits);
  for (text = output; !text.empty();) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    if (end > 0) names.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return names;
}

OldTable readOldTable(const fs::path& file, const std::string& table, const ProcessLimits& limits) {
  const std::string when = "%Y-%m-%d %H:%M:%S";
  try {
    OldTable read =
        parseOldTable(printed("mdb-export", file, {"-D", when, "-T", when, argumentOf(file), table}, limits));
    const std::string counted = printed("mdb-count", file, {argumentOf(file), table}, limits);
    if (numberOf(counted) != static_cast<int>(read.rows.size()))
      unreadable(file, fmt::format("righe annunciate {}, trovate {}", numberOf(counted), read.rows.size()));
    return read;
  } catch (const UserError& error) {
    throw UserError(error.what(), error.title(), fmt::format("tabella {}. {}", table, error.details()));
  }
}

}  // namespace trv5
