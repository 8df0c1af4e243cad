#include "maintenance/update_check.h"

#include <string_view>
#include <unordered_map>

#include "core/database.h"
#include "core/dates.h"

namespace trv5 {
namespace {

// All rows of the update that have the date, by its text in the archive.
using RowsOfDate = std::unordered_multimap<std::string, std::size_t>;

void compare(const Statement& draw, const DrawRow& row, BlankCell blank, UpdateMark& mark) {
  mark = {};
  for (int wheel = 0; wheel < kWheels; ++wheel) {
    const auto w = static_cast<std::size_t>(wheel);
    const bool alike = draw.view(wheel + 1) == row.wheels[w];
    mark.agrees[w] = alike && (blank == BlankCell::NotDrawn || !draw.isNull(wheel + 1));
    mark.wrong = mark.wrong || !mark.agrees[w];
  }
}

// One pass over the archive instead of a search for each row.
void compareAll(const Database& archive, const std::vector<DrawRow>& rows, const RowsOfDate& rowsOfDate,
                BlankCell blank, std::vector<UpdateMark>& marks) {
  archive.requireTable("EstrazioniLotto",
                       {"DataEstrazione", "Ba", "Ca", "Fi", "Ge", "Mi", "Na", "Pa", "Ro", "To", "Ve", "Nz"});
  Statement draw = archive.prepare(
      "SELECT DataEstrazione, Ba, Ca, Fi, Ge, Mi, Na, Pa, Ro, \"To\", Ve, Nz FROM EstrazioniLotto "
      "ORDER BY DataEstrazione");
  while (draw.step()) {
    const auto [first, last] = rowsOfDate.equal_range(draw.text(0));
    for (auto found = first; found != last; ++found) compare(draw, rows[found->second], blank, marks[found->second]);
  }
}

}  // namespace

UpdateCheck checkUpdate(const Database& archive, const std::vector<DrawRow>& rows, BlankCell blank,
                        const std::function<void(int row, int rows)>& onRow) {
  UpdateCheck check;
  check.marks.resize(rows.size());
  if (rows.empty()) return check;
  RowsOfDate rowsOfDate;
  rowsOfDate.reserve(rows.size());
  std::size_t first = rows.size();  // of the rows that are checked
  while (first > 0 && !check.stoppedAt) {
    if (const std::optional<Day> day = dayOfText(rows[first - 1].date)) {
      --first;
      check.marks[first].missing = true;
      rowsOfDate.emplace(isoText(*day), first);
    } else {
      check.stoppedAt = first - 1;
    }
  }
  compareAll(archive, rows, rowsOfDate, blank, check.marks);
  bool errors = false;
  for (std::size_t i = rows.size(); i-- > first;) {
    const UpdateMark& mark = check.marks[i];
    if (mark.missing) check.lines.push_back("Manca estrazione del: " + rows[i].date);
    if (mark.wrong) check.lines.push_back("Errori Estrazione del " + rows[i].date);
    errors = errors || mark.wrong;
    if (onRow) onRow(static_cast<int>(rows.size() - i), static_cast<int>(rows.size()));
  }
  if (!check.stoppedAt && !errors) check.lines.emplace_back("Nessuna anomalia rilevata");
  return check;
}

}  // namespace trv5
