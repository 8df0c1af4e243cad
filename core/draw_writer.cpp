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

void DrawWriter::put(const DrawRow& row, const Registration& registered) {
  const std::string date = isoOf(row.date);
  const auto write = [&](const char* sql) {
    Statement statement = m_archive.prepare(sql);
    statement.bind(1, date);
    for (int wheel = 0; wheel < kWheels; ++wheel)
      statement.bindOrNull(wheel + 2, row.wheels[static_cast<std::size_t>(wheel)]);
    statement.bindOrNull(kWheels + 2, registered.datareg.empty() ? "" : isoOf(registered.datareg));
    return statement.bindOrNull(kWheels + 3, registered.orareg).run();
  };
  if (write(kUpdate) == 0) write(kInsert);
  m_archive.prepare(kPutSum).bind(1, date).bind(2, sumOfDraw(row)).run();
}

bool DrawWriter::remove(std::string_view date) {
  const std::string iso = isoOf(date);
  m_archive.prepare("DELETE FROM VerificaEstrazioni WHERE DataEstrazione = ?").bind(1, iso).run();
  return m_archive.prepare("DELETE FROM EstrazioniLotto WHERE DataEstrazione = ?").bind(1, iso).run() > 0;
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
