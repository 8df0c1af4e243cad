#include "maintenance/draw_list.h"

#include <string>

#include "core/dates.h"
#include "maintenance/archivio.h"

namespace trv5 {

void EvidenziaRiga(Archivio& a, int row) {
  if (row < 1) return;
  const Grid::Batch batch(a.FgDB);
  for (int r = 1; r < a.FgDB.rows(); ++r)
    for (int column = 0; column < a.FgDB.columns(); ++column) a.FgDB.setBack(r, column, r == row ? Giallo : kWhite);
}

void SelezionaEstrazione(Archivio& a) {
  const int row = a.FgDB.current();
  if (row < 1) return;
  const std::string date = a.FgDB.text(row, 1);
  a.HScrestrazione.set(row);
  if (dayOfText(date)) a.MonthView1.show(date);
  a.Text1.set(date);
  a.SSTab1.set(Archivio::kGestione);
}

}  // namespace trv5
