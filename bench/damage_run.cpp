// What becomes of archives that are damaged, hostile, or replaced beside what a killed program left: 1,200 damaged
// copies of an archive of 7,370 draws, files made to hang the program, 600 replacements. Tells the figures; fails when
// another draw is loaded in silence, a file takes more than two seconds, or a replacement shows other draws than its
// own. The argument is the seed.
#include <fmt/format.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <functional>

#include "core/archive_load.h"
#include "core/database_files.h"
#include "support/damage.h"
#include "support/left_journal.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

constexpr int kDamagedCopies = 1200, kReplacements = 600, kDraws = 7370;
constexpr double kMostSeconds = 2.5;  // a statement's two seconds, and what opens and closes the file

bool sameDraws(const std::vector<DrawRow>& a, const std::vector<DrawRow>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const DrawRow& x, const DrawRow& y) { return x.date == y.date && x.wheels == y.wheels; });
}

double secondsFor(const std::function<void()>& call) {
  const auto begin = std::chrono::steady_clock::now();
  call();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

bool damagedCopies(unsigned seed) {
  constexpr std::array<const char*, kDamages> kNames = {"bits turned", "zeroed ranges", "cut off", "pages swapped"};
  struct Count {
    int refused = 0, told = 0, right = 0, silent = 0;
  };
  std::array<Count, kDamages> counts;
  std::mt19937 rng(seed);
  ProgramWorld world;
  const fs::path file = world.makeArchive(randomRows(rng, kDraws));
  world.makeMainFor(file);
  world.start();
  const std::vector<DrawRow> whole = loadArchive(*world.program);
  const std::string bytes = readBytes(file);
  double slowest = 0;
  for (int i = 0; i < kDamagedCopies; ++i) {
    Count& count = counts[static_cast<std::size_t>(i % kDamages)];
    writeBytes(file, damaged(bytes, i % kDamages, rng));
    slowest = std::max(slowest, secondsFor([&] {
                         try {
                           const std::vector<DrawRow> rows = loadArchive(*world.program);
                           const bool same = sameDraws(rows, whole);
                           ++(!world.program->drawDifferences.empty() ? count.told : same ? count.right : count.silent);
                         } catch (const std::exception&) {
                           ++count.refused;
                         }
                       }));
  }
  fmt::print("{} damaged copies of {} draws   refused  told  right  SILENT\n", kDamagedCopies, kDraws);
  int silent = 0;
  for (std::size_t kind = 0; kind < kDamages; ++kind) {
    const Count& count = counts[kind];
    silent += count.silent;
    fmt::print("  {:<33}{:>8}{:>6}{:>7}{:>8}\n", kNames[kind], count.refused, count.told, count.right, count.silent);
  }
  fmt::print("  the slowest took {:.0f} ms\n", 1000 * slowest);
  return silent == 0 && slowest < kMostSeconds;
}

// Statements that make a small file heavy, each on an archive of its own.
std::vector<std::string> hostileStatements() {
  const std::string endless =
      "(WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 10000000000) SELECT sum(i) FROM n)";
  std::string wheels = "1 AS DataEstrazione";
  for (const char* wheel : {"Ba", "Ca", "Fi", "Ge", "Mi", "Na", "Pa", "Ro", "\"To\"", "Ve", "Nz"})
    wheels += fmt::format(", {} AS {}", endless, wheel);
  const auto view = [&](const std::string& name, const std::string& columns) {
    return fmt::format("DROP TABLE IF EXISTS {0}; CREATE VIEW {0} AS SELECT {1}", name, columns);
  };
  const auto schema = [](const std::string& name, std::string sql) {
    for (std::size_t at = 0; (at = sql.find('\'', at)) != std::string::npos; at += 2) sql.insert(at, 1, '\'');
    return fmt::format("PRAGMA writable_schema = ON; UPDATE sqlite_schema SET sql = '{}' WHERE name = '{}'", sql, name);
  };
  std::string doubled = "Ba";
  for (int i = 0; i < 30; ++i) doubled = "replace(" + doubled + ", '0', '00')";
  return {
      "DROP VIEW Query_AAMMGG; " + view("EstrazioniLotto", wheels),
      view("VerificaEstrazioni", endless + " AS DataEstrazione, 1 AS Somma"),
      view("Protezione", endless + " AS Impronta"),
      "DROP VIEW Query_AAMMGG; DROP TABLE EstrazioniLotto; CREATE VIRTUAL TABLE EstrazioniLotto USING fts4(Ba)",
      schema("EstrazioniLotto", "CREATE VIEW EstrazioniLotto AS SELECT " + wheels),
      schema("EstrazioniLotto", "CREATE TABLE EstrazioniLotto (DataEstrazione TEXT, Ba TEXT AS (" + doubled + "))"),
      "CREATE INDEX Pesante ON EstrazioniLotto (length(Ba)); " +
          schema("Pesante", "CREATE INDEX Pesante ON EstrazioniLotto (length(" + doubled + "))"),
      "CREATE TRIGGER Ruba AFTER INSERT ON EstrazioniLotto BEGIN SELECT " + endless + "; END",
      "UPDATE EstrazioniLotto SET Ba = zeroblob(0) || printf('%.*c', 50000000, '1')",
      "CREATE TABLE Tante (t TEXT); WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 200000) "
      "INSERT INTO Tante SELECT printf('%.*c', 200, 'x') FROM n"};
}

bool hostileFiles() {
  TempFolder folder;
  double slowest = 0;
  int refused = 0, loaded = 0;
  for (const std::string& sql : hostileStatements()) {
    const fs::path file = folder / "a.mdb";
    createArchive(file, {drawOf("07/01/1939", {{"BA", {10, 20, 30, 40, 50}}})}, Existing::Replace, "");
    { const OtherProgram other(file, sql); }
    slowest = std::max(slowest, secondsFor([&] {
                         try {
                           const Database archive(file, FileKind::Archive);
                           archive.checkIntegrity();
                           differencesFromSums(archive, readDraws(archive));
                           ++loaded;
                         } catch (const UserError&) {
                           ++refused;
                         }
                       }));
  }
  fmt::print("{} hostile files: {} refused, {} harmless; the slowest took {:.0f} ms\n", refused + loaded, refused,
             loaded, 1000 * slowest);
  return slowest < kMostSeconds;
}

bool replacements(unsigned seed) {
  TempFolder folder;
  std::mt19937 rng(seed);
  const std::vector<DrawRow> before = randomRows(rng, 600), after = randomRows(rng, 600);
  createArchive(folder / "vecchio.mdb", before, Existing::Replace);
  int right = 0, refused = 0, wrong = 0;
  for (int i = 0; i < kReplacements; ++i) {
    const fs::path file = folder / "a.mdb";
    for (const char* end : {"", "-journal", "-wal"}) fs::remove(file.string() + end);
    leaveJournal(folder / "vecchio.mdb", file, i % 2 == 0 ? LeftBehind::Journal : LeftBehind::WriteAhead);
    const int kind = i / 2 % 3;  // whole, the database gone, a text in its place
    if (kind == 1) fs::remove(file);
    if (kind == 2) writeBytes(file, "una lettera");
    try {
      createArchive(file, after, Existing::Replace);
      ++(sameDraws(readDraws(Database(file, FileKind::Archive)), after) ? right : wrong);
    } catch (const UserError&) {
      ++refused;
    }
  }
  fmt::print("{} replacements beside a leftover journal or log: {} right, {} refused, {} WRONG\n", kReplacements, right,
             refused, wrong);
  return wrong == 0 && right > 0;
}

}  // namespace
}  // namespace trv5

int main(int argc, char** argv) {
  const unsigned seed = argc > 1 ? static_cast<unsigned>(std::strtoul(argv[1], nullptr, 10)) : 1;
  const bool copies = trv5::damagedCopies(seed), hostile = trv5::hostileFiles(), replaced = trv5::replacements(seed);
  return copies && hostile && replaced ? 0 : 1;
}
