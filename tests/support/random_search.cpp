#include "support/random_search.h"

#include <algorithm>

#include "support/archive_builder.h"

namespace trv5 {
namespace {

constexpr std::array<int, 6> kLengths = {1, 3, 20, 50, 100, 400};

NumberFlags randomFixes(std::mt19937& rng) {
  NumberFlags fixes = everyFix();
  switch (below(rng, 4)) {
    case 0:
      fixes.fill(false);
      fixes[static_cast<std::size_t>(1 + below(rng, 90))] = true;
      break;
    case 1:
      for (std::size_t fix = 1; fix <= 90; ++fix) fixes[fix] = below(rng, 3) == 0;
      break;
    default:
      break;
  }
  return fixes;
}

int randomLength(std::mt19937& rng) {
  return below(rng, 20) == 0 ? below(rng, 2) * 5000 : kLengths[static_cast<std::size_t>(below(rng, 6))];
}

}  // namespace

int below(std::mt19937& rng, int limit) {
  return static_cast<int>(rng() % static_cast<unsigned>(limit));
}

Archive randomSearchArchive(std::mt19937& rng) {
  const int draws = 2 + below(rng, 40);
  const int missing = below(rng, 3) == 0 ? 2 : 15;   // one wheel in so many isn't drawn
  const int numbers = below(rng, 4) == 0 ? 12 : 90;  // different numbers, the highest always 90
  std::vector<DrawRow> rows;
  for (int i = 0; i < draws; ++i) {
    DrawRow row;
    for (std::string& wheel : row.wheels)
      if (below(rng, missing) != 0)
        wheel = wheelText({91 - (1 + below(rng, numbers)), 1 + below(rng, 90), 91 - (1 + below(rng, numbers)),
                           1 + below(rng, 90), 91 - (1 + below(rng, numbers))});
    rows.push_back(row);
  }
  Archive archive;
  archive.loadNumbers(rows);
  return archive;
}

PlainFormula randomFormula(std::mt19937& rng, Shape shape) {
  PlainFormula formula{
      shape, below(rng, 10), {below(rng, 100), below(rng, 100), below(rng, 100)}, below(rng, 6), ascendingTriples()};
  if (below(rng, 3) == 0)
    for (auto& first : formula.triples)
      for (auto& second : first)
        for (bool& third : second) third = below(rng, 8) == 0;
  return formula;
}

WheelSet randomWheelSet(std::mt19937& rng) {
  switch (below(rng, 4)) {
    case 0:
      return (1U << kWheels) - 1U;
    case 1:
      return 1U << below(rng, kWheels);
    default:
      return static_cast<WheelSet>(below(rng, 1 << kWheels));
  }
}

AmbataRequest randomAmbataRequest(std::mt19937& rng, const Archive& archive) {
  AmbataRequest request;
  request.archive = &archive;
  const int count = below(rng, 40) == 0 ? 50 : below(rng, 7);
  for (int i = 0; i < count; ++i) request.cases.push_back(1 + below(rng, archive.NumEstrazioni()));
  request.colpi = below(rng, 20) == 0 ? 60 : below(rng, 6);
  request.lastDraw = below(rng, 3) == 0 ? 1 + below(rng, archive.NumEstrazioni()) : archive.NumEstrazioni();
  request.allowedFix = randomFixes(rng);
  request.withFix = below(rng, 4) != 0;
  request.keep = randomLength(rng);
  return request;
}

CompanionRequest randomCompanionRequest(std::mt19937& rng, const Archive& archive) {
  CompanionRequest request;
  request.archive = &archive;
  request.wheels = randomWheelSet(rng);
  switch (below(rng, 3)) {
    case 0:
      break;
    case 1:
      request.least = request.most = 2;
      break;
    default:
      request.least = 1 + below(rng, 3);
      break;
  }
  request.guarded = below(rng, 2) == 0;
  const int count = below(rng, 40) == 0 ? 300 : below(rng, 12);
  for (int i = 0; i < count; ++i) {
    CompanionRow row;
    row.hitDraw = 1 + below(rng, archive.NumEstrazioni());
    row.caseDraw = std::max(1, row.hitDraw - below(rng, 3));
    const std::uint8_t* wheel = archive.wheelOf(row.hitDraw, below(rng, kWheels));
    const int numbers = 1 + below(rng, 5);
    for (int k = 0; k < numbers; ++k)
      if (wheel[k] != 0) row.numbers.push_back(below(rng, 10) == 0 ? 1 + below(rng, 90) : wheel[k]);
    request.rows.push_back(row);
  }
  request.allowedFix = randomFixes(rng);
  request.withFix = below(rng, 4) != 0;
  request.keep = randomLength(rng);
  return request;
}

}  // namespace trv5
