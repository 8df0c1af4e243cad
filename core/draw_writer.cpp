#include "core/draw_writer.h"

#include <fmt/format.h>

#include "core/archive_load.h"
#include "core/dates.h"
#include "core/draw_sums.h"
#include "schema.h"

namespace trv5 {
namespace {

constexpr const char* kUpdate =
    "UPDATE EstrazioniLotto SET Ba = ?2, Ca = ?3, Fi = ?4, Ge = ?5, Mi = ?6, Na = ?7, Pa = ?8, Ro = ?9, \"To\" = ?10, "
    "Ve = ?11, Nz = ?12, datareg = ?13, orareg = ?14 WHERE DataEstrazione = ?1";
constexpr const char* kInsert =
    "INSERT INTO EstrazioniLotto (DataEstrazione, Ba, Ca, Fi, Ge, Mi, Na, Pa, Ro, \"To\", Ve, Nz, datareg, orareg) "
    "VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14)";
constexpr const char* kPutSum = "INSERT OR REPLACE INTO VerificaEstrazioni (DataEstrazione, Somma) VALUES (?, ?)";

std::string isoOf(std::string_view date) {
  const std::optional<Day> day = dayOfText(date);
  if (!day) throw UserError(fmt::format("\"{}\" non è una data nella forma GG/MM/AAAA.", date));
  return isoText(*day);
}

}  // namespace

DrawWriter::DrawWriter(Database& archive) : m_archive(archive), m_transaction(archive) {
  if (archive.hasTable("VerificaEstrazioni")) return;
  archive.execute(kDrawSumsSchema);
  writeAllSums();
}

Statement& DrawWriter::ready(Kept& statement, const char* sql) {
  if (!statement) statement.emplace(m_archive.prepare(sql));
  return *statement;
}

int DrawWriter::writeRow(Statement& statement, const DrawRow& row, const Registration& registered, EmptyWheel empty) {
  statement.bind(1, isoOf(row.date));
  for (int wheel = 0; wheel < kWheels; ++wheel) {
    const std::string& text = row.wheels[static_cast<std::size_t>(wheel)];
    empty == EmptyWheel::Null ? statement.bindOrNull(wheel + 2, text) : statement.bind(wheel + 2, text);
  }
  statement.bindOrNull(kWheels + 2, registered.datareg.empty() ? "" : isoOf(registered.datareg));
  return statement.bindOrNull(kWheels + 3, registered.orareg).run();
}

void DrawWriter::writeSum(const DrawRow& row) {
  ready(m_putSum, kPutSum).bind(1, isoOf(row.date)).bind(2, sumOfDraw(row)).run();
}

void DrawWriter::put(const DrawRow& row, const Registration& registered) {
  if (!correct(row, registered)) add(row, registered);
}

void DrawWriter::add(const DrawRow& row, const Registration& registered, EmptyWheel empty) {
  if (!m_draws) {
    Statement count = m_archive.prepare("SELECT count(*) FROM EstrazioniLotto");
    count.step();
    m_draws = static_cast<int>(count.number(0));
  }
  // One more and the archive couldn't be loaded again.
  if (*m_draws >= Archive::kMaxDraws) throw UserError("L'archivio ha già 9999 estrazioni e non può averne altre.");
  writeRow(ready(m_insert, kInsert), row, registered, empty);
  writeSum(row);
  ++*m_draws;
}

bool DrawWriter::correct(const DrawRow& row, const Registration& registered, EmptyWheel empty) {
  if (writeRow(ready(m_update, kUpdate), row, registered, empty) == 0) return false;
  writeSum(row);
  return true;
}

bool DrawWriter::has(std::string_view date) {
  Statement& seek = ready(m_seek, "SELECT 1 FROM EstrazioniLotto WHERE DataEstrazione = ?");
  const bool there = seek.bind(1, isoOf(date)).step();
  seek.reset();
  return there;
}

bool DrawWriter::remove(std::string_view date) {
  const std::string iso = isoOf(date);
  m_archive.prepare("DELETE FROM VerificaEstrazioni WHERE DataEstrazione = ?").bind(1, iso).run();
  const bool there = m_archive.prepare("DELETE FROM EstrazioniLotto WHERE DataEstrazione = ?").bind(1, iso).run() > 0;
  if (there && m_draws) --*m_draws;
  return there;
}

void DrawWriter::writeAllSums() {
  m_archive.execute("DELETE FROM VerificaEstrazioni");
  Statement put = m_archive.prepare(kPutSum);
  for (const DrawRow& row : readDraws(m_archive)) put.bind(1, isoOf(row.date)).bind(2, sumOfDraw(row)).run();
}

void writeDraw(Database& archive, const DrawRow& row, const Registration& registered) {
  DrawWriter writer(archive);
  writer.put(row, registered);
  writer.commit();
}

bool deleteDraw(Database& archive, std::string_view date) {
  DrawWriter writer(archive);
  const bool there = writer.remove(date);
  writer.commit();
  return there;
}

}  // namespace trv5
