#include "core/archive_load.h"

#include <fmt/format.h>

#include <utility>

#include "core/container.h"
#include "core/database.h"
#include "core/dates.h"
#include "core/errors.h"
#include "core/grid.h"
#include "core/program.h"

namespace trv5 {
namespace {

struct ReadArchive {
  std::vector<DrawRow> rows;
  std::vector<DrawDifference> differences;
};

ReadArchive readChosenArchive(const Program& program, const std::function<void(int row, int rows)>& onRow = {}) {
  const Database database(program.PercorsoDbArchivio, FileKind::Archive);
  database.checkIntegrity();
  ReadArchive read;
  read.rows = readDraws(database, onRow);
  read.differences = differencesFromSums(database, read.rows);
  return read;
}

}  // namespace

std::vector<DrawRow> readDraws(const Database& archive, const std::function<void(int row, int rows)>& onRow) {
  archive.requireTable("EstrazioniLotto",
                       {"DataEstrazione", "Ba", "Ca", "Fi", "Ge", "Mi", "Na", "Pa", "Ro", "To", "Ve", "Nz"});
  Statement count = archive.prepare("SELECT count(*) FROM EstrazioniLotto");
  count.step();
  const int all = static_cast<int>(count.number(0));
  if (all > Archive::kMaxDraws) throw UserError("L'archivio ha più di 9999 estrazioni.");
  std::vector<DrawRow> rows;
  rows.reserve(static_cast<std::size_t>(all));
  Statement query = archive.prepare(
      "SELECT EstrazioniLotto.DataEstrazione, EstrazioniLotto.Ba, EstrazioniLotto.Ca, EstrazioniLotto.Fi, "
      "EstrazioniLotto.Ge, EstrazioniLotto.Mi, EstrazioniLotto.Na, EstrazioniLotto.Pa, EstrazioniLotto.Ro, "
      "EstrazioniLotto.\"To\", EstrazioniLotto.Ve, EstrazioniLotto.Nz "
      "FROM EstrazioniLotto ORDER BY EstrazioniLotto.DataEstrazione");
  while (query.step()) {
    DrawRow& row = rows.emplace_back();
    row.date = dateTextOfIso(query.view(0));
    for (int wheel = 0; wheel < kWheels; ++wheel) row.wheels[static_cast<std::size_t>(wheel)] = query.view(wheel + 1);
    if (onRow) onRow(static_cast<int>(rows.size()), all);
  }
  return rows;
}

void fillFgDB(const std::vector<DrawRow>& rows, Grid& FgDB) {
  const Grid::Batch batch(FgDB);
  FgDB.setRows(FgDB.headingRows() + static_cast<int>(rows.size()));
  int at = FgDB.headingRows();
  for (const DrawRow& row : rows) {
    FgDB.setText(at, 1, row.date);
    for (int wheel = 0; wheel < kWheels; ++wheel)
      FgDB.setText(at, wheel + 2, row.wheels[static_cast<std::size_t>(wheel)]);
    ++at;
  }
}

void takeDifferences(Program& program, std::vector<DrawDifference> differences) {
  if (differences != program.drawDifferences) program.differencesSeen = false;
  program.drawDifferences = std::move(differences);
  if (program.container != nullptr) program.container->MostraVerifica();
}

std::vector<DrawRow> loadArchive(Program& program, const std::function<void(int row, int rows)>& onRow) {
  auto [rows, differences] = readChosenArchive(program, onRow);
  Archive archive;
  archive.loadNumbers(rows);
  archive.countProgressives();
  archive.setModelFrom(program.EstrazioneIniziale);
  program.archive = std::move(archive);
  program.loadedArchive = program.PercorsoDbArchivio;
  takeDifferences(program, std::move(differences));
  return std::move(rows);
}

std::vector<DrawRow> CaricaArchivioExNovo(Program& program) {
  // The bar of the shell moves at every fiftieth row only.
  auto [rows, differences] = readChosenArchive(program, [&](int row, int all) {
    if (row % 50 == 0) program.shell.progress(row, all + 1);
  });
  program.archive.loadNumbers(rows);
  program.archive.countProgressives();
  program.archive.blankModel();
  program.loadedArchive = program.PercorsoDbArchivio;
  // The status block is written from the model archive while that is still blank: after a reload it reads an empty
  // date, the indices 0 and 0 and the count 1 until the next start. Wanted.
  if (program.container != nullptr) program.container->ImpostazioniArchivioModello();
  program.archive.setWholeModel();
  if (program.container != nullptr) program.container->CaricaFG5();
  takeDifferences(program, std::move(differences));
  program.archiveReloaded.send();
  return std::move(rows);
}

std::string describeArchive(const Program& program, const std::vector<DrawRow>& rows) {
  std::string text = fmt::format("{} estrazioni", rows.size());
  if (const std::size_t count = program.drawDifferences.size(); count > 0)
    text += count == 1 ? "; una non è come fu registrata" : fmt::format("; {} non sono come furono registrate", count);
  if (const IrregularWheels wheels = irregularWheels(rows); wheels.count > 0)
    text += fmt::format("; {} senza cinque numeri diversi da 1 a 90 ({}il {})",
                        wheels.count == 1 ? "una ruota" : fmt::format("{} ruote", wheels.count),
                        wheels.count == 1 ? "" : "la prima ", wheels.firstDate);
  return text;
}

void CaricaTabellaArchivio(Program& program, Grid& FgDB) {
  auto [rows, differences] = readChosenArchive(program);
  program.archive.loadNumbers(rows);
  fillFgDB(rows, FgDB);
  takeDifferences(program, std::move(differences));
}

}  // namespace trv5
