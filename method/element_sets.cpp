#include "method/search.h"

namespace trv5 {
namespace {

ElementSet setOf(int w1, int p1, int w2 = 0, int p2 = 0, int w3 = 0, int p3 = 0) {
  const auto byte = [](int value) { return static_cast<std::uint8_t>(value); };
  return {{byte(w1), byte(w2), byte(w3)}, {byte(p1), byte(p2), byte(p3)}};
}

std::vector<ElementSet> onOneWheel(Shape shape, const TripleFlags& triples) {
  std::vector<ElementSet> sets;
  for (int w = 0; w < kWheels; ++w)
    for (int p1 = 1; p1 <= kPositions; ++p1) {
      if (shape == Shape::OneNumber) sets.push_back(setOf(w, p1));
      if (shape == Shape::TwoOneWheel)
        for (int p2 = p1 + 1; p2 <= kPositions; ++p2) sets.push_back(setOf(w, p1, w, p2));
      if (shape == Shape::ThreeOneWheel)
        for (std::size_t p2 = 1; p2 <= kPositions; ++p2)
          for (std::size_t p3 = 1; p3 <= kPositions; ++p3)
            if (triples[static_cast<std::size_t>(p1)][p2][p3])
              sets.push_back(setOf(w, p1, w, static_cast<int>(p2), w, static_cast<int>(p3)));
    }
  return sets;
}

std::vector<ElementSet> onTwoWheels(SetOrder order) {
  std::vector<ElementSet> sets;
  sets.reserve(1375);
  if (order == SetOrder::WheelsFirst) {
    for (int w1 = 0; w1 < kWheels; ++w1)
      for (int w2 = w1 + 1; w2 < kWheels; ++w2)
        for (int p1 = 1; p1 <= kPositions; ++p1)
          for (int p2 = 1; p2 <= kPositions; ++p2) sets.push_back(setOf(w1, p1, w2, p2));
  } else {
    for (int w1 = 0; w1 < kWheels; ++w1)
      for (int p1 = 1; p1 <= kPositions; ++p1)
        for (int w2 = w1 + 1; w2 < kWheels; ++w2)
          for (int p2 = 1; p2 <= kPositions; ++p2) sets.push_back(setOf(w1, p1, w2, p2));
  }
  return sets;
}

}  // namespace

std::vector<ElementSet> elementSets(Shape shape, SetOrder order, const TripleFlags& triples) {
  return shape == Shape::TwoTwoWheels ? onTwoWheels(order) : onOneWheel(shape, triples);
}

}  // namespace trv5
