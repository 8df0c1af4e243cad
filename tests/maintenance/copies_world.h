#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/draw_writer.h"
#include "maintenance/archivio_world.h"
#include "maintenance/backups.h"
#include "maintenance/update_samples.h"
#include "support/archive_acts.h"

namespace trv5 {

/// The archive's screen on an archive of three draws, and the acts that write draws.
class CopiesWorld : public testing::Test {
 protected:
  using Names = std::vector<std::string>;

  CopiesWorld() {
    std::vector<DrawRow> rows;
    for (const char* const date : {"07/01/1939", "14/01/1939", "21/01/1939"})
      rows.push_back(drawOf(date, {{"BA", {58, 22, 47, 49, 69}}, {"RO", {1, 2, 3, 4, 5}}}));
    a = &world.openOn(rows);
  }
  const std::filesystem::path& archive() const { return world.program->loadedArchive; }
  std::filesystem::path folder() const { return backupFolder(archive()); }
  static Names column(const Grid& grid, int column) {
    Names texts;
    for (int row = 1; row < grid.rows(); ++row) texts.push_back(grid.text(row, column));
    return texts;
  }
  /// Of the copies, the newest first.
  Names reasons() {
    Names all;
    for (const Backup& backup : backupsOf(archive(), world.shell.clock)) all.push_back(backup.reason);
    return all;
  }
  /// The draws of the file as they stand, date and wheels.
  std::string stored() {
    std::string all;
    for (const DrawRow& row : world.stored()) {
      all += row.date;
      for (const std::string& wheel : row.wheels) all += "|" + wheel;
      all += "\n";
    }
    return all;
  }
  /// Behind the program's back, as another program would.
  void writeOutside(const std::string& sql) { Database(archive(), FileKind::Archive).execute(sql); }
  /// Comes to the tab from another one.
  void enter() {
    a->SSTab1.set(Archivio::kGestione);
    a->SSTab1.set(Archivio::kCopie);
  }

  void save(const std::string& date) { saveDraw(*a, world.shell, date); }
  void correct(int draw) {
    a->HScrestrazione.set(draw);
    a->txtin[1].set(a->txtin[1].text() == "90" ? "89" : "90");
    world.shell.answerYes();
    a->Command3.press();
  }
  void deleteShown() {
    world.shell.answerYes();
    a->Command2.press();
  }
  /// The first step of an update from a file.
  void offer(const std::string& date) {
    const auto file = world.folder / "agg.txt";
    DrawRow row{date, {}};
    row.wheels.fill("06-07-08-09-10");
    writeBytes(file, updateLine(row) + "\r\n");
    world.shell.answerFile(file);
    a->Command21.press();
  }
  void update(const std::string& date) {
    offer(date);
    a->Command28.press();
  }

  ArchivioWorld world;
  Archivio* a = nullptr;
};

}  // namespace trv5
