#include "maintenance/formats/history_file.h"

#include <fmt/format.h>

#include <utility>

#include "core/errors.h"
#include "maintenance/formats/compressed_text.h"
#include "maintenance/formats/published_history.h"

namespace trv5 {

std::vector<Draw> readHistoryFile(const std::filesystem::path& file) {
  PublishedHistory history = readPublishedHistory(readCompressedText(file));
  if (history.faultCount > 0) {
    const LineFault& first = history.faults.front();
    const std::string which = fmt::format("alla riga {} {}", first.line, first.reason);
    throw UserError(history.faultCount == 1
                        ? fmt::format("Il file \"{}\" ha una riga errata: {}.", file.string(), which)
                        : fmt::format("Il file \"{}\" ha {} righe errate; la prima: {}.", file.string(),
                                      history.faultCount, which));
  }
  if (history.draws.empty()) throw UserError(fmt::format("Il file \"{}\" non contiene estrazioni.", file.string()));
  return std::move(history.draws);
}

}  // namespace trv5
