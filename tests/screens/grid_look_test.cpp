// What the layout of a screen tells about a grid.
#include <QHeaderView>

#include "grid_world.h"
#include "screens/kit/theme.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

using GridLookTest = GridViewTest;

TEST_F(GridLookTest, AlikeColumnsKeepOneWidthWhateverIsDoneToOneOfThem) {
  GridControl grid(world.form, "FgEv", "a|Data|S1|S2|LU");
  fill(grid, 3);
  const QString date = QStringLiteral("88/88/8888"), total = QStringLiteral("8888");
  GridView view(
      grid,
      {.samples = {QStringLiteral("88"), date, total, total, total}, .alike = {2, 3, 4}, .restTo = 1, .tight = true});
  const auto expectAlike = [&](const char* when) {
    EXPECT_EQ(view.columnWidth(2), view.columnWidth(3)) << when;
    EXPECT_EQ(view.columnWidth(3), view.columnWidth(4)) << when;
    EXPECT_GT(view.columnWidth(4), QFontMetrics(view.cellFont(false)).horizontalAdvance(total)) << when;
  };
  shown(view, 900, 300);
  expectAlike("with much room");
  EXPECT_EQ(view.horizontalHeader()->length(), view.viewport()->width());
  view.horizontalHeader()->resizeSection(3, 90);
  EXPECT_EQ(view.columnWidth(2), 90);
  expectAlike("drawn wider");
  view.horizontalHeader()->resizeSection(4, 5);
  expectAlike("drawn too narrow");
  view.fitColumns();
  expectAlike("fitted");
}

TEST_F(GridLookTest, TheGridAsksOnceForItsColumnsToBeFitted) {
  GridControl grid(world.form, "Fg15", "|||");
  fill(grid, 3);
  GridView view(grid, {.samples = {QStringLiteral("88"), QStringLiteral("88"), QStringLiteral("88")}});
  shown(view, 900, 300);
  const int before = view.columnWidth(1);
  const QString longer = QStringLiteral("01-02-03-04-05-06-07-08-09-10-11-12-13-14-15-16-17-18-19-20");
  grid.setText(2, 1, longer.toStdString());
  settle();
  EXPECT_EQ(view.columnWidth(1), before) << "no fitting mode";
  grid.fitColumns();
  settle();
  const int fitted = view.columnWidth(1);
  EXPECT_GT(fitted, QFontMetrics(view.cellFont(false)).horizontalAdvance(longer));
  grid.setText(2, 1, "01");
  settle();
  EXPECT_EQ(view.columnWidth(1), fitted) << "once";
}

TEST_F(GridLookTest, TheFreePlacesDoNotCrossTheMessage) {
  GridControl grid(world.form, "Fg11", "a|b");
  grid.setEmptyText("Nessuna formula: scegli una riga della ricerca e premi 1");
  GridView view(grid, {.freePlaces = 5});
  shown(view, 600, 26 + 5 * Theme::current().row() + 12);  // no room below the places
  const QImage picture = view.viewport()->grab().toImage();
  const int middle = picture.height() / 2;
  int lines = 0;
  for (int y = 0; y < picture.height(); ++y) {
    if (pixel(picture, 2, y) != kLightColours.line) continue;
    ++lines;
    const int lineHeight = QFontMetrics(view.cellFont(false)).height();
    const bool behindText = std::abs(y - middle) <= lineHeight / 2;
    EXPECT_NE(behindText ? pixel(picture, picture.width() / 2, y) : kWhite, kLightColours.line) << y;
  }
  EXPECT_EQ(lines, 5);
}

TEST_F(GridLookTest, WholeGridsAreAsHighAsTheirRowsMayBe) {
  GridControl grid(world.form, "Fg_Stat", 11, 2);
  const int line = QFontMetrics(Theme::current().base()).height();
  GridView view(grid, {.minRow = line, .maxRow = line + 5, .whole = true});
  EXPECT_EQ(view.minimumSizeHint().height(), 11 * line + 2 * view.frameWidth());
  EXPECT_EQ(view.maximumHeight(), 11 * (line + 5) + 2 * view.frameWidth());
}

TEST(GridActions, SayWhatTheyDidWhereItIsOutOfSight) {
  const TempFolder folder;
  FakeShell shell;
  Form form(shell, "Prova", "Prova");
  GridControl grid(form, "FgZ1", "a|b");
  GridView view(grid);
  view.copySelection();
  EXPECT_EQ(shell.statusTexts.back(), "Nessuna cella scelta da copiare");
  fill(grid, 3);
  grid.setRowHidden(2, true);
  settle();
  view.selectRow(0);
  view.copySelection();
  EXPECT_EQ(shell.statusTexts.back(), "Copiate: 2 celle");
  view.copyTable();
  EXPECT_EQ(shell.statusTexts.back(), "Tabella copiata: 3 righe") << "hidden ones are copied too";
  shell.answerFile(folder / "a.csv");
  view.exportCsv();
  EXPECT_EQ(shell.statusTexts.back(), "Esportato a.csv: 2 righe");
  shell.answerFile(folder / "a.xlsx");
  view.exportXlsx();
  EXPECT_EQ(shell.statusTexts.back(), "Esportato a.xlsx: 2 righe");
  const std::size_t told = shell.statusTexts.size();
  shell.answerCancel();
  view.exportCsv();
  EXPECT_EQ(shell.statusTexts.size(), told) << "a cancelled export has done nothing";
}

TEST(GridActions, PrintTheColumnsThatAreInSight) {
  FakeShell shell;
  Form form(shell, "Prova", "Prova");
  GridControl grid(form, "FgEv", "a|b|c");
  fill(grid, 2);
  GridView view(grid, {.folded = {1, 2}});
  grid.setText(2, 2, "FI");
  view.printTable();
  ASSERT_EQ(shell.prints.size(), 1U);
  EXPECT_TRUE(shell.prints[0].grid.columnHidden(1)) << "empty, and folded away on screen";
  EXPECT_FALSE(shell.prints[0].grid.columnHidden(2));
}

// Keeps what a box for a file to save was asked with.
class SavingShell : public FakeShell {
 public:
  std::optional<std::filesystem::path> chooseSave(const FileBox& box) override {
    asked = box;
    return std::nullopt;
  }
  FileBox asked;
};

TEST(GridExportBox, OffersTheNameOfTheGridAndTheDay) {
  SavingShell shell;
  Form form(shell, "Prova", "Prova");
  GridControl grid(form, "FgZ1", "a|b");
  fill(grid, 1);
  GridView view(grid, {.name = QStringLiteral("Esiti: ambate")});
  view.exportCsv();
  EXPECT_EQ(shell.asked.name, "Esiti ambate 2026-08-22.csv");
  view.exportXlsx();
  EXPECT_EQ(shell.asked.name, "Esiti ambate 2026-08-22.xlsx");
}

}  // namespace
}  // namespace trv5
