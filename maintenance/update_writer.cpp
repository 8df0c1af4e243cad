#include "maintenance/update_writer.h"

#include <fmt/format.h>

#include <algorithm>

#include "core/database.h"

namespace trv5 {

UpdateReport writeUpdate(Database& archive, const std::vector<DrawRow>& rows, const std::vector<UpdateOrder>& orders,
                         const Registration& registered, EmptyWheel empty) {
  UpdateReport report;
  if (std::none_of(orders.begin(), orders.end(), [](const UpdateOrder& order) { return order.add || order.correct; }))
    return report;
  DrawWriter writer(archive);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const DrawRow& row = rows[i];
    if (orders[i].add && !writer.has(row.date)) {
      writer.add(row, registered, empty);
      ++report.added;
      report.lines.push_back("Aggiunta estrazione del" + row.date);  // no blank between, as users know it
    }
    if (orders[i].correct && writer.correct(row, registered, empty))
      report.lines.push_back("Modificata estrazione del" + row.date);
  }
  if (report.added > 0) report.lines.push_back(fmt::format("aggiunti N° {} record", report.added));
  writer.commit();
  return report;
}

}  // namespace trv5
