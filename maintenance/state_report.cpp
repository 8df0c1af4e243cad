#include "maintenance/state_report.h"

#include <fmt/format.h>

#include "maintenance/archivio.h"

namespace trv5 {
namespace {

void appendRows(std::string& text, const Grid& grid) {
  for (int row = 1; row < grid.rows(); ++row) {
    std::string line;
    for (int column = 0; column < grid.columns(); ++column)
      if (!grid.text(row, column).empty())
        line += fmt::format("{}{}", line.empty() ? "  " : "; ", grid.text(row, column));
    text += line + "\r\n";
  }
}

}  // namespace

std::string stateReport(const Archivio& a) {
  const Archive& archive = a.program.archive;
  const DateTime now = a.shell().now();
  std::string text = fmt::format("TRV5 {}\r\nScritto il {:02}/{:02}/{:04} alle {}\r\n", programVersion(), now.day,
                                 now.month, now.year, timeText(now));
  text += fmt::format("Archivio: {}\r\n", a.program.loadedArchive.filename().string());
  text += fmt::format("Estrazioni: {}, dal {} al {}\r\n", archive.NumEstrazioni(),
                      archive.DateEstrazioni(archive.NumEstrazioni() > 0 ? 1 : 0),
                      archive.DateEstrazioni(archive.NumEstrazioni()));
  text += fmt::format("\r\nControllo: {}\r\n", a.Lbl_EsitoControllo.text());
  appendRows(text, a.Fg_Controllo.grid());
  text += "\r\nCopie:\r\n";
  appendRows(text, a.Fg_Copie.grid());
  return text;
}

}  // namespace trv5
