#include "screens/kit/workbook_reader.h"

#include <archive.h>
#include <archive_entry.h>
#include <fmt/format.h>

#include <QRegularExpression>
#include <QXmlStreamReader>
#include <map>
#include <memory>

#include "core/errors.h"

namespace trv5 {
namespace {

using Parts = std::map<std::string, QByteArray>;
using Rows = std::vector<std::vector<std::string>>;

[[noreturn]] void fail(const std::filesystem::path& file, const std::string& details) {
  throw UserError(fmt::format("Il file \"{}\" non è una cartella di lavoro intera.", file.string()), "Avviso", details);
}

// All members of the zip, unpacked: the check sum of each is looked at here.
Parts unpack(const std::filesystem::path& file) {
  const std::unique_ptr<archive, int (*)(archive*)> reader(archive_read_new(), archive_read_free);
  if (!reader) throw std::bad_alloc();
  const auto check = [&](la_ssize_t outcome) {
    if (outcome >= ARCHIVE_OK) return;
    const char* const text = archive_error_string(reader.get());
    fail(file, text == nullptr ? "" : text);
  };
  archive_read_support_format_zip_seekable(reader.get());  // by the directory at the end, as spreadsheets read it
  constexpr std::size_t kBlock = 64 * 1024;
  check(archive_read_open_filename(reader.get(), file.c_str(), kBlock));
  Parts parts;
  QByteArray piece(kBlock, Qt::Uninitialized);
  for (;;) {
    archive_entry* entry = nullptr;
    const int outcome = archive_read_next_header(reader.get(), &entry);
    if (outcome == ARCHIVE_EOF) return parts;
    check(outcome);
    const char* const name = archive_entry_pathname(entry);
    QByteArray& part = parts[name == nullptr ? "" : name];
    for (;;) {
      const la_ssize_t got = archive_read_data(reader.get(), piece.data(), static_cast<std::size_t>(piece.size()));
      check(got);
      if (got == 0) break;
      part.append(piece.constData(), static_cast<qsizetype>(got));
    }
  }
}

// A literal "_x0041_" is written with its underline escaped, or it would be read as a code.
QString unescaped(QString text) {
  static const QRegularExpression escape(QStringLiteral("_x005F_(?=x[0-9A-Fa-f]{4}_)"));
  return text.replace(escape, QStringLiteral("_"));
}

std::vector<std::string> sharedStrings(const QByteArray& part) {
  std::vector<std::string> texts;
  for (QXmlStreamReader xml(part); !xml.atEnd();) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QLatin1String("si")) texts.emplace_back();
    if (xml.name() == QLatin1String("t") && !texts.empty())
      texts.back() = unescaped(xml.readElementText()).toStdString();
  }
  return texts;
}

Rows sheetRows(const QByteArray& part, const std::vector<std::string>& shared) {
  Rows rows;
  bool isShared = false;
  for (QXmlStreamReader xml(part); !xml.atEnd();) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QLatin1String("row")) rows.emplace_back();
    if (rows.empty()) continue;
    if (xml.name() == QLatin1String("c")) {
      isShared = xml.attributes().value(QLatin1String("t")) == QLatin1String("s");
      rows.back().emplace_back();
    } else if (xml.name() == QLatin1String("v") && !rows.back().empty()) {
      const QString value = xml.readElementText();
      const auto index = static_cast<std::size_t>(value.toUInt());
      rows.back().back() = !isShared ? value.toStdString() : index < shared.size() ? shared[index] : "";
    }
  }
  return rows;
}

}  // namespace

Rows readWorkbook(const std::filesystem::path& file) {
  const Parts parts = unpack(file);
  for (const auto& [name, bytes] : parts) {
    QXmlStreamReader xml(bytes);
    while (!xml.atEnd()) xml.readNext();
    if (xml.hasError()) fail(file, name + ": " + xml.errorString().toStdString());
  }
  constexpr char kSheet[] = "xl/worksheets/sheet1.xml", kShared[] = "xl/sharedStrings.xml";
  for (const char* const name : {"[Content_Types].xml", "_rels/.rels", "xl/workbook.xml", "xl/styles.xml", kSheet})
    if (!parts.contains(name)) fail(file, name);
  const auto shared = parts.find(kShared);
  return sheetRows(parts.at(kSheet),
                   shared == parts.end() ? std::vector<std::string>() : sharedStrings(shared->second));
}

}  // namespace trv5
