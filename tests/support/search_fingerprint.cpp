#include "support/search_fingerprint.h"

#include <algorithm>

#include "support/plain_search.h"

namespace trv5 {
namespace {

constexpr WheelSet kEveryWheel = (1U << kWheels) - 1U;
constexpr std::array<Shape, 4> kShapes = {Shape::OneNumber, Shape::TwoOneWheel, Shape::ThreeOneWheel,
                                          Shape::TwoTwoWheels};

// FNV-1a, number by number.
class Hash {
 public:
  void add(int value) {
    for (unsigned shift = 0; shift < 32; shift += 8) {
      m_value ^= static_cast<unsigned>(value) >> shift & 0xFFU;
      m_value *= 0x100000001B3U;
    }
  }
  void add(const std::vector<Candidate>& rows) {
    add(static_cast<int>(rows.size()));
    for (const Candidate& row : rows) {
      for (std::size_t i = 0; i < 3; ++i) {
        add(row.elements.wheels[i]);
        add(row.elements.positions[i]);
      }
      for (const int value : {row.fix, row.cc, row.pres, row.wheelSet}) add(value);
    }
  }
  void add(const NumberCounts& counts) {
    for (const NumberCount& count : counts) {
      add(count.cc);
      add(count.pres);
    }
  }
  std::uint64_t value() const { return m_value; }

 private:
  std::uint64_t m_value = 0xCBF29CE484222325U;
};

AmbataRequest requestOn(const Archive& archive) {
  AmbataRequest request;
  request.archive = &archive;
  for (int i = 1; i <= 50; ++i) request.cases.push_back(archive.NumEstrazioni() * i / 50);
  request.colpi = 10;
  request.lastDraw = archive.NumEstrazioni();
  request.allowedFix = everyFix();
  request.withFix = true;
  request.keep = 100;
  return request;
}

void addAmbate(const Archive& archive, Hash& hash) {
  AmbataRequest request = requestOn(archive);
  for (const Shape shape : kShapes)
    for (int alteration = 0; alteration < 9; ++alteration) {
      request.formula = formulaInput({shape, alteration, {}, alteration % 6, ascendingTriples()});
      for (const WheelSet wheels : {WheelSet{1}, kEveryWheel})
        for (const bool withFix : {false, true}) {
          request.wheelSets = {wheels};
          request.withFix = withFix;
          hash.add(searchAmbate(request));
        }
    }
}

void addBestWheels(const Archive& archive, Hash& hash) {
  AmbataRequest request = requestOn(archive);
  for (const Shape shape : {Shape::OneNumber, Shape::TwoOneWheel, Shape::TwoTwoWheels})
    for (const int wheels : {1, 2, 3}) {
      if (shape == Shape::TwoTwoWheels && wheels == 3) continue;
      request.formula = formulaInput({shape, wheels, {}, wheels, ascendingTriples()});
      request.wheelSets = plainWheelSets(wheels);
      request.repeatsAtZeroGetLost = shape == Shape::OneNumber;
      hash.add(searchAmbate(request));
    }
}

void addCompanions(const Archive& archive, Hash& hash) {
  CompanionRequest request;
  request.archive = &archive;
  request.rows = hitsOfAmbate(requestOn(archive), {9, 27, 45, 63, 81}, kEveryWheel);
  request.wheels = kEveryWheel;
  request.allowedFix = everyFix();
  request.withFix = true;
  request.keep = 100;
  for (const Shape shape : kShapes) {
    request.formula = formulaInput({shape, 0, {}, 0, ascendingTriples()});
    request.least = 1;
    request.most = 5;
    request.guarded = false;
    hash.add(searchCompanions(request));
    // A terno and a lunghetta of the first number of the wheel beside the ambata.
    CompanionRequest more = request;
    for (CompanionRow& row : more.rows) row.numbers.push_back(archive.number(row.hitDraw, row.hitDraw % kWheels, 1));
    more.least = more.most = 2;
    more.guarded = shape != Shape::OneNumber;
    hash.add(searchCompanions(more));
    more.most = 5;
    more.guarded = false;
    hash.add(searchCompanions(more));
  }
}

void addPureNumbers(const Archive& archive, Hash& hash) {
  const AmbataRequest request = requestOn(archive);
  for (const int wheels : {1, 2, 3})
    for (const NumberCounts& counts :
         countNumbers(archive, request.cases, request.colpi, request.lastDraw, plainWheelSets(wheels)))
      hash.add(counts);
  std::vector<PureNumberRow> rows;
  for (const CompanionRow& row : hitsOfAmbate(request, {9, 27}, kEveryWheel))
    rows.push_back({row.caseDraw, row.hitDraw, row.numbers});
  hash.add(countNumbersAtHits(archive, rows, kEveryWheel));
}

}  // namespace

std::uint64_t searchFingerprint(const Archive& archive) {
  Hash hash;
  addAmbate(archive, hash);
  addBestWheels(archive, hash);
  addCompanions(archive, hash);
  addPureNumbers(archive, hash);
  return hash.value();
}

std::vector<CompanionRow> hitsOfAmbate(const AmbataRequest& played, const std::vector<int>& ambate, WheelSet wheels) {
  std::vector<CompanionRow> rows;
  for (const int caseDraw : played.cases)
    for (int draw = caseDraw + 1; draw <= std::min(caseDraw + played.colpi, played.lastDraw); ++draw)
      for (int w = 0; w < kWheels; ++w)
        if (holds(wheels, w))
          for (int k = 1; k <= kPositions; ++k)
            for (const int ambata : ambate)
              if (played.archive->number(draw, w, k) == ambata) rows.push_back({caseDraw, draw, {ambata}});
  return rows;
}

}  // namespace trv5
