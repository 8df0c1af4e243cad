#include "screens/kit/grid_export.h"

#include <archive.h>
#include <archive_entry.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QRegularExpression>
#include <memory>

#include "core/errors.h"
#include "core/grid_text.h"
#include "screens/kit/workbook_reader.h"
#include "support/broken_world.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

Grid table(int rows, int columns) {
  std::string heading = "Prog";
  for (int column = 1; column < columns; ++column) heading += "|Data esito";
  Grid grid(heading);
  grid.setRows(rows + 1);
  for (int row = 1; row <= rows; ++row)
    for (int column = 0; column < columns; ++column)
      grid.setText(row, column, std::to_string(row * 100 + column) + "a");
  return grid;
}

std::string failure(const std::filesystem::path& file, const Grid& grid) {
  try {
    writeXlsx(file, grid);
    return "";
  } catch (const UserError& error) {
    return error.what();
  }
}

// A part of the workbook as it lies in its file.
QString partOf(const std::filesystem::path& file, const std::string& part) {
  const std::unique_ptr<archive, int (*)(archive*)> reader(archive_read_new(), archive_read_free);
  archive_read_support_format_zip(reader.get());
  if (archive_read_open_filename(reader.get(), file.c_str(), 65536) != ARCHIVE_OK) return {};
  for (archive_entry* entry = nullptr; archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK;) {
    if (archive_entry_pathname(entry) != part) continue;
    QByteArray bytes(static_cast<qsizetype>(archive_entry_size(entry)), '\0');
    archive_read_data(reader.get(), bytes.data(), static_cast<std::size_t>(bytes.size()));
    return QString::fromUtf8(bytes);
  }
  return {};
}

// The name of the sheet where the table was exported as `name`.
QString sheetOf(const std::string& name) {
  const TempFolder folder;
  writeXlsx(folder / "a.xlsx", table(1, 1), name);
  static const QRegularExpression kSheet(QStringLiteral("<sheet name=\"([^\"]*)\""));
  return kSheet.match(partOf(folder / "a.xlsx", "xl/workbook.xml")).captured(1);
}

// How the cell in `place` ("A2") shows its number; empty where it holds a text or nothing.
QString numberFormat(const std::filesystem::path& file, const QString& place) {
  const QRegularExpression cell(QStringLiteral("<c r=\"%1\" s=\"(\\d+)\"><v>").arg(place));
  const QRegularExpressionMatch found = cell.match(partOf(file, "xl/worksheets/sheet1.xml"));
  if (!found.hasMatch()) return {};
  const QString styles = partOf(file, "xl/styles.xml");
  static const QRegularExpression kStyle(QStringLiteral("<xf numFmtId=\"(\\d+)\""));
  const QString id = [&] {
    QRegularExpressionMatchIterator all = kStyle.globalMatch(styles, styles.indexOf(QStringLiteral("<cellXfs")));
    for (int skipped = found.captured(1).toInt(); skipped > 0 && all.hasNext(); --skipped) all.next();
    return all.hasNext() ? all.next().captured(1) : QString();
  }();
  if (id == QStringLiteral("0")) return QStringLiteral("General");
  const QRegularExpression format(QStringLiteral("<numFmt numFmtId=\"%1\" formatCode=\"([^\"]*)\"").arg(id));
  return format.match(styles).captured(1);
}

// A cell of one column written and read again.
std::string readBack(const std::string& text) {
  const TempFolder folder;
  Grid grid("Testo");
  grid.setRows(2);
  grid.setText(1, 0, text);
  writeXlsx(folder / "a.xlsx", grid);
  return readWorkbook(folder / "a.xlsx").at(1).at(0);
}

TEST(GridExport, WritesAWorkbookOverTheFormerOneAsAWhole) {
  const TempFolder folder;
  writeBytes(folder / "a.xlsx", "prima");
  Grid grid = table(2, 4);
  grid.setBack(1, 1, 0x80FF80);
  grid.setFore(1, 2, 0xFF0000);
  grid.setBold(1, 3);
  grid.setText(2, 1, "07");
  grid.setText(2, 2, "123456789012345");
  grid.setText(2, 3, "");
  writeXlsx(folder / "a.xlsx", grid);
  EXPECT_THAT(
      readWorkbook(folder / "a.xlsx"),
      ElementsAre(ElementsAre("Prog", "Data esito", "Data esito", "Data esito"),
                  ElementsAre("100a", "101a", "102a", "103a"), ElementsAre("200a", "07", "123456789012345", "")));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1) << "nothing is left beside it";
}

TEST(GridExport, DatesAreDatesAndNumbersAreNumbers) {
  const TempFolder folder;
  Grid grid("21/08/2026|Testo|Num");
  const char* const dates[] = {"21/08/2026", "01/01/1901", "31/12/1900", "29/02/2025", "1/8/2026", "07"};
  grid.setRows(7);
  for (int row = 1; row < 7; ++row) grid.setText(row, 0, dates[row - 1]);
  grid.setText(1, 2, "90");
  grid.setBack(1, 0, GialloChiaro);
  writeXlsx(folder / "a.xlsx", grid);
  // A sheet counts days from the end of 1899: 01/01/2000 is the day 36526.
  const std::vector<std::string> wanted = {"21/08/2026", "46255", "367", "31/12/1900", "29/02/2025", "1/8/2026", "07"};
  std::vector<std::string> column;
  for (const std::vector<std::string>& row : readWorkbook(folder / "a.xlsx")) column.push_back(row.at(0));
  EXPECT_EQ(column, wanted);
  EXPECT_EQ(numberFormat(folder / "a.xlsx", QStringLiteral("A2")), QStringLiteral("dd/mm/yyyy"));
  EXPECT_EQ(numberFormat(folder / "a.xlsx", QStringLiteral("A3")), QStringLiteral("dd/mm/yyyy"));
  EXPECT_EQ(numberFormat(folder / "a.xlsx", QStringLiteral("C2")), QStringLiteral("General"));
  for (const char* text : {"A1", "A4", "A5", "A6", "A7"})
    EXPECT_EQ(numberFormat(folder / "a.xlsx", QLatin1String(text)), QString()) << text << " is a text";
}

TEST(GridExport, TheSheetHasTheNameOfTheTable) {
  EXPECT_EQ(sheetOf("Esiti ambate"), QStringLiteral("Esiti ambate"));
  EXPECT_EQ(sheetOf("Esiti: ambate"), QStringLiteral("Esiti ambate")) << "no sheet may have a colon";
  EXPECT_EQ(sheetOf(""), QStringLiteral("Sheet1"));
  EXPECT_EQ(sheetOf(std::string(30, 'x') + "àà"), QString(30, u'x') + u'à') << "31 characters at most";
}

TEST(GridExport, AFolderThatIsNotThereIsTold) {
  const TempFolder folder;
  EXPECT_THROW(writeXlsx(folder / "manca" / "a.xlsx", table(1, 1)), UserError);
}

// The sheet on its way is larger than the packed workbook: it is cut off where the workbook itself finds room.
TEST(GridExport, AFullFolderOfTemporaryFilesLeavesTheOldWorkbook) {
  const TempFolder folder;
  const Grid grid = table(2000, 12);
  writeXlsx(folder / "a.xlsx", grid);
  const std::string before = readBytes(folder / "a.xlsx");
  int failures = 0;
  for (const std::size_t room : {4096, 100000, 200000, 400000, 700000}) {
    SCOPED_TRACE(room);
    std::string told;
    {
      const FullDisk full(room);
      told = failure(folder / "a.xlsx", grid);
    }
    if (!told.empty()) {
      EXPECT_THAT(told, HasSubstr("a.xlsx\" non può essere scritto"));
      ++failures;
    }
    EXPECT_EQ(readWorkbook(folder / "a.xlsx").size(), 2001U);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
  }
  EXPECT_GE(failures, 4);
  EXPECT_EQ(readBytes(folder / "a.xlsx").size(), before.size());
}

TEST(GridExport, TextsThatNoWorkbookHoldsAreMended) {
  EXPECT_EQ(readBack("già"), "già");
  EXPECT_EQ(readBack("<a & b>"), "<a & b>");
  EXPECT_EQ(readBack("_x0041_"), "_x0041_");
  EXPECT_EQ(readBack("a\xFF\xC3(b"), "a\xEF\xBF\xBD\xEF\xBF\xBD(b");
  EXPECT_EQ(readBack(std::string("a\0b\x01\x1F\x7F", 6)),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(readBack("una\r\ndue"), "una\ndue");
  EXPECT_EQ(readBack("\xEF\xBF\xBF"), "\xEF\xBF\xBD");
}

TEST(GridExport, ATextLongerThanACellIsCutAndSaysSo) {
  EXPECT_EQ(readBack(std::string(32767, 'x')), std::string(32767, 'x'));
  EXPECT_EQ(readBack(std::string(32768, 'x')), std::string(32766, 'x') + "…");
  std::string clefs;
  for (int i = 0; i < 20000; ++i) clefs += "𝄞";  // two units of UTF-16 each
  const std::string cut = readBack(clefs);
  EXPECT_EQ(cut.size(), 16383U * 4 + 3);
}

TEST(GridExport, ACsvIsUtf8WhateverTheCellsHold) {
  Grid grid("Testo");
  grid.setRows(2);
  grid.setText(1, 0, std::string("a\xFF;\0", 4));
  EXPECT_EQ(csvText(grid), "\xEF\xBB\xBFTesto\r\n\"a\xEF\xBF\xBD;\xEF\xBF\xBD\"\r\n");
}

TEST(WorkbookReader, ADamagedWorkbookIsToldWhereverTheDamageIs) {
  const TempFolder folder;
  writeXlsx(folder / "a.xlsx", table(50, 5));
  const std::string whole = readBytes(folder / "a.xlsx");
  const auto good = readWorkbook(folder / "a.xlsx");
  for (std::size_t at = 0; at < whole.size(); at += 37) {
    SCOPED_TRACE(at);
    writeBytes(folder / "b.xlsx", whole.substr(0, at));
    EXPECT_THROW(readWorkbook(folder / "b.xlsx"), UserError);
    std::string bytes = whole;
    bytes[at] = static_cast<char>(~bytes[at]);
    writeBytes(folder / "b.xlsx", bytes);
    try {
      EXPECT_EQ(readWorkbook(folder / "b.xlsx"), good);  // dates of the zip's members don't matter
    } catch (const UserError&) {
    }
  }
}

}  // namespace
}  // namespace trv5
