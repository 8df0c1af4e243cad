#include "core/parameters.h"

#include "core/database.h"
#include "core/grid.h"

namespace trv5 {

std::optional<std::string> Parameters::Valore1(std::string_view parameter) const {
  Statement seek = m_database.prepare("SELECT Valore1 FROM ParametriProgramma WHERE Parametro = ? COLLATE NOCASE");
  if (!seek.bind(1, parameter).step()) return std::nullopt;
  return seek.text(0);
}

void Parameters::put(std::string_view parameter, std::string_view value) {
  const char* const sql = Valore1(parameter)
                              ? "UPDATE ParametriProgramma SET Valore1 = ?1 WHERE Parametro = ?2 COLLATE NOCASE"
                              : "INSERT INTO ParametriProgramma (Valore1, Parametro) VALUES (?1, ?2)";
  m_database.prepare(sql).bind(1, value).bind(2, parameter).run();
}

bool Parameters::setValore1(std::string_view parameter, std::string_view value) {
  if (!Valore1(parameter)) return false;
  Database::Transaction transaction(m_database);
  const int changed = m_database.prepare("UPDATE ParametriProgramma SET Valore1 = ? WHERE Parametro = ? COLLATE NOCASE")
                          .bind(1, value)
                          .bind(2, parameter)
                          .run();
  transaction.commit();
  return changed > 0;
}

void fillParameters(const Database& database, Grid& FgP) {
  Statement rows = database.prepare(
      "SELECT ParametriProgramma.Parametro, ParametriProgramma.Valore1, ParametriProgramma.Valore2 "
      "FROM ParametriProgramma ORDER BY ParametriProgramma.Parametro");
  const Grid::Batch batch(FgP);
  FgP.cutToHeading();
  while (rows.step()) {
    const int row = FgP.appendRow();
    for (int column = 1; column <= 3; ++column) FgP.setText(row, column, rows.view(column - 1));
  }
}

std::optional<std::string> exactParameter(const Grid& FgP, std::string_view parameter) {
  for (int row = FgP.headingRows(); row < FgP.rows(); ++row)
    if (FgP.text(row, 1) == parameter) return FgP.text(row, 2);
  return std::nullopt;
}

}  // namespace trv5
