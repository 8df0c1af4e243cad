#include "provision/block_designs.h"

#include <algorithm>
#include <array>
#include <set>
#include <stdexcept>

#include "provision/finite_field.h"

namespace trv5 {
namespace {

Blocks sorted(Blocks blocks) {
  for (std::vector<int>& block : blocks) std::sort(block.begin(), block.end());
  std::sort(blocks.begin(), blocks.end());
  return blocks;
}

using Coordinates = std::array<int, 3>;

// The points of the projective plane, also its lines: one triple of each class of proportional ones, that whose first
// coordinate other than 0 is 1.
std::vector<Coordinates> projectivePoints(int q) {
  std::vector<Coordinates> points;
  for (int x = 0; x <= 1; ++x)
    for (int y = 0; y < (x == 0 ? 2 : q); ++y)
      for (int z = 0; z < (x == 0 && y == 0 ? 2 : q); ++z)
        if (x + y + z > 0) points.push_back({x, y, z});
  return points;
}

bool lies(const FiniteField& field, const Coordinates& point, const Coordinates& line) {
  int sum = 0;
  for (std::size_t i = 0; i < 3; ++i) sum = field.add(sum, field.multiply(point[i], line[i]));
  return sum == 0;
}

// The points, numbered from 1 in their order, on each line of the plane that meets at least two of them.
Blocks secants(const FiniteField& field, const std::vector<Coordinates>& points) {
  Blocks blocks;
  for (const Coordinates& line : projectivePoints(field.order())) {
    std::vector<int> block;
    for (std::size_t i = 0; i < points.size(); ++i)
      if (lies(field, points[i], line)) block.push_back(static_cast<int>(i) + 1);
    if (block.size() > 1) blocks.push_back(std::move(block));
  }
  return sorted(std::move(blocks));
}

// Three layers of a commutative square `table` over 0..size - 1: the triples of two places of a layer and their product
// in the next one. The place (a, layer) is the number layer * size + a + 1.
template <class Table>
Blocks layeredTriples(int size, Table table) {
  Blocks blocks;
  for (int layer = 0; layer < 3; ++layer)
    for (int a = 0; a < size; ++a)
      for (int b = a + 1; b < size; ++b)
        blocks.push_back({layer * size + a + 1, layer * size + b + 1, (layer + 1) % 3 * size + table(a, b) + 1});
  return blocks;
}

Blocks bose(int v) {
  const int size = v / 3, half = (size + 1) / 2;
  // Idempotent: the product of a with itself is a, so the columns across the layers are left over for these triples.
  Blocks blocks = layeredTriples(size, [=](int a, int b) { return (a + b) * half % size; });
  for (int a = 0; a < size; ++a) blocks.push_back({a + 1, size + a + 1, 2 * size + a + 1});
  return sorted(std::move(blocks));
}

Blocks skolem(int v) {
  const int size = v / 3, half = size / 2;
  // Idempotent for the lower half only: the upper half is joined to the next layer through the last number.
  Blocks blocks = layeredTriples(size, [=](int a, int b) {
    const int sum = (a + b) % size;
    return sum % 2 == 0 ? sum / 2 : (sum - 1) / 2 + half;
  });
  for (int a = 0; a < half; ++a) {
    blocks.push_back({a + 1, size + a + 1, 2 * size + a + 1});
    for (int layer = 0; layer < 3; ++layer)
      blocks.push_back({v, layer * size + a + half + 1, (layer + 1) % 3 * size + a + 1});
  }
  return sorted(std::move(blocks));
}

}  // namespace

Blocks steinerTriples(int v) {
  if (v >= 7 && v % 6 == 3) return bose(v);
  if (v >= 7 && v % 6 == 1) return skolem(v);
  throw std::invalid_argument("no triples over this many numbers");
}

Blocks kirkmanTriples() {
  // Number i * 7 + a is the element a of Z(7) in the copy i. Inside each copy, between the copies and with the fixed
  // number the differences of this round give each element once.
  constexpr int kFixed = 14;
  const std::array<std::array<int, 3>, 5> round = {
      {{0, 7 + 0, kFixed}, {1, 2, 4}, {3, 7 + 1, 7 + 5}, {5, 7 + 4, 7 + 6}, {6, 7 + 2, 7 + 3}}};
  Blocks rounds;
  for (int shift = 0; shift < 7; ++shift) {
    Blocks rows;
    for (const auto& triple : round) {
      std::vector<int>& row = rows.emplace_back();
      for (const int place : triple)
        row.push_back(place == kFixed ? kFixed + 1 : place / 7 * 7 + (place + shift) % 7 + 1);
    }
    rows = sorted(std::move(rows));
    rounds.insert(rounds.end(), rows.begin(), rows.end());
  }
  return rounds;
}

Blocks binaryQuadruples(int bits) {
  const int size = 1 << bits;
  Blocks blocks;
  for (int a = 0; a < size; ++a)
    for (int b = a + 1; b < size; ++b)
      for (int c = b + 1; c < size; ++c)
        if (const int d = a ^ b ^ c; d > c) blocks.push_back({a + 1, b + 1, c + 1, d + 1});
  return blocks;
}

Blocks affinePlane(int q) {
  const FiniteField field(q);
  Blocks blocks;
  for (int a = 0; a < q; ++a) {
    std::vector<int>& upright = blocks.emplace_back();
    for (int y = 0; y < q; ++y) upright.push_back(a * q + y + 1);
    for (int b = 0; b < q; ++b) {
      std::vector<int>& line = blocks.emplace_back();
      for (int x = 0; x < q; ++x) line.push_back(x * q + field.add(field.multiply(a, x), b) + 1);
    }
  }
  return sorted(std::move(blocks));
}

Blocks puncturedAffinePlane(int q) {
  Blocks blocks = affinePlane(q);
  blocks.erase(std::remove_if(blocks.begin(), blocks.end(), [q](const auto& block) { return block.back() == q * q; }),
               blocks.end());
  return blocks;
}

Blocks projectivePlane(int q) {
  return secants(FiniteField(q), projectivePoints(q));
}

Blocks transversalDesign(int width, int q) {
  const FiniteField field(q);
  if (width > q + 1) throw std::invalid_argument("more groups than the field allows");
  Blocks blocks;
  for (int a = 0; a < q; ++a) {
    for (int b = 0; b < q; ++b) {
      std::vector<int>& block = blocks.emplace_back();
      for (int group = 0; group < width; ++group)
        block.push_back(group * q + (group == q ? a : field.add(field.multiply(a, group), b)) + 1);
    }
  }
  return sorted(std::move(blocks));
}

Blocks hermitianUnital() {
  const FiniteField field(9);
  const auto norm = [&](int x) {
    const int square = field.multiply(x, x);
    return field.multiply(square, square);
  };
  std::vector<Coordinates> curve;
  for (const Coordinates& point : projectivePoints(9))
    if (field.add(norm(point[0]), field.add(norm(point[1]), norm(point[2]))) == 0) curve.push_back(point);
  return secants(field, curve);
}

Blocks developed(const std::vector<int>& moduli, const std::vector<std::vector<std::vector<int>>>& baseBlocks) {
  int order = 1;
  for (const int modulus : moduli) order *= modulus;
  // Rank of the sum of an element with that of rank `shift`, the last coordinate the fastest.
  const auto rankOfSum = [&](const std::vector<int>& element, int shift) {
    int rank = 0, place = 1;
    for (std::size_t i = moduli.size(); i-- > 0;) {
      rank += (element[i] + shift % moduli[i]) % moduli[i] * place;
      shift /= moduli[i];
      place *= moduli[i];
    }
    return rank;
  };
  std::set<std::vector<int>> blocks;  // a base block that is a subgroup gives each of its sums several times
  for (const auto& base : baseBlocks) {
    for (int shift = 0; shift < order; ++shift) {
      std::vector<int> block;
      for (const std::vector<int>& element : base) block.push_back(rankOfSum(element, shift) + 1);
      std::sort(block.begin(), block.end());
      blocks.insert(std::move(block));
    }
  }
  return {blocks.begin(), blocks.end()};
}

}  // namespace trv5
