#pragma once

#include <random>
#include <vector>

#include "chance/fair_draws.h"
#include "support/archive_builder.h"
#include "support/plain_search.h"

namespace trv5 {

/// An archive of its own with these outcomes.
inline Archive archiveOfOutcomes(const Outcomes& outcomes, int draws) {
  std::vector<DrawRow> rows;
  for (int draw = 1; draw <= draws; ++draw) {
    DrawRow& row = rows.emplace_back();
    row.date = dateOfDraw(draw);
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      const std::uint8_t* const n = outcomes.wheelOf(draw, wheel);
      row.wheels[static_cast<std::size_t>(wheel)] = wheelText({n[0], n[1], n[2], n[3], n[4]});
    }
  }
  return archiveOfRows(rows);
}

/// Random draws in which every wheel was drawn.
inline Archive fullArchive(std::mt19937& rng, int draws) {
  std::vector<DrawRow> rows(static_cast<std::size_t>(draws));
  for (std::size_t draw = 0; draw < rows.size(); ++draw) {
    rows[draw].date = dateOfDraw(static_cast<int>(draw) + 1);
    for (std::string& wheel : rows[draw].wheels) wheel = wheelText(randomWheel(rng));
  }
  return archiveOfRows(rows);
}

/// The same without NZ in the older half and without GE now and then: wheel sets with other chances than the rest.
inline Archive archiveWithGaps(std::mt19937& rng, int draws) {
  std::vector<DrawRow> rows(static_cast<std::size_t>(draws));
  for (std::size_t draw = 0; draw < rows.size(); ++draw) {
    rows[draw].date = dateOfDraw(static_cast<int>(draw) + 1);
    for (std::size_t wheel = 0; wheel < rows[draw].wheels.size(); ++wheel)
      if ((wheel != kNational || 2 * draw > rows.size()) && (wheel != 3 || rng() % 4 != 0))
        rows[draw].wheels[wheel] = wheelText(randomWheel(rng));
  }
  return archiveOfRows(rows);
}

/// A search of one number, or of two of one wheel, on one wheel of play: `count` cases, `step` draws from each to the
/// next, whose colpi are over at the end of the archive.
inline AmbataRequest searchOn(const Archive& archive, int count, int step, int colpi,
                              Shape shape = Shape::TwoOneWheel) {
  AmbataRequest request;
  request.archive = &archive;
  request.formula = formulaInput({shape, 0, {}, 0, ascendingTriples()});
  for (int i = 0; i < count; ++i) request.cases.push_back(archive.NumEstrazioni() - colpi - i * step);
  request.colpi = colpi;
  request.lastDraw = archive.NumEstrazioni();
  request.wheelSets = {1U};
  request.allowedFix = everyFix();
  request.withFix = true;
  request.keep = 20;
  return request;
}

}  // namespace trv5
