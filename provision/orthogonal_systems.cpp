#include "provision/orthogonal_systems.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <string>
#include <tuple>

#include "provision/block_designs.h"

namespace trv5 {
namespace {

std::string nameOf(int numbers, const Blocks& blocks) {
  constexpr std::array<const char*, 11> kRows = {"",        "",        "ambi",   "terne",  "quartine", "cinquine",
                                                 "sestine", "settine", "ottine", "novine", "decine"};
  const int width = static_cast<int>(blocks.front().size()), rows = static_cast<int>(blocks.size());
  const int pairs = rows * width * (width - 1) / 2, allPairs = numbers * (numbers - 1) / 2;
  // More pairs than there are: they stand several times, and it is the triples that stand once.
  const char* const kind = pairs > allPairs ? " (ogni terna)" : pairs < allPairs ? " (parziale)" : "";
  return fmt::format("{} numeri in {} {}{}", numbers, rows, kRows.at(static_cast<std::size_t>(width)), kind);
}

OrthogonalSystem systemOf(int numbers, Blocks blocks, const std::string& kind = "") {
  return {nameOf(numbers, blocks) + kind, static_cast<int>(blocks.front().size()), numbers, std::move(blocks)};
}

void addTransversalDesigns(std::vector<OrthogonalSystem>& systems) {
  struct Shape {
    int width, q;
  };
  for (const Shape& shape :
       {Shape{3, 2}, {3, 3}, {3, 4}, {3, 5}, {3, 7}, {3, 8}, {3, 9}, {4, 3}, {4, 4}, {4, 5}, {4, 7},
        {4, 8},      {5, 4}, {5, 5}, {5, 7}, {5, 8}, {5, 9}, {6, 5}, {6, 7}, {7, 7}, {10, 9}})
    systems.push_back(systemOf(shape.width * shape.q, transversalDesign(shape.width, shape.q)));
}

// Each triple of numbers in one row.
void addTripleSystems(std::vector<OrthogonalSystem>& systems) {
  systems.push_back(systemOf(8, binaryQuadruples(3)));
  systems.push_back(systemOf(10, developed({10}, {{{0}, {1}, {3}, {4}}, {{0}, {1}, {2}, {6}}, {{0}, {2}, {4}, {7}}})));
  systems.push_back(systemOf(17, developed({17}, {{{0}, {1}, {2}, {6}, {13}},
                                                  {{0}, {1}, {3}, {9}, {15}},
                                                  {{0}, {1}, {4}, {7}, {8}},
                                                  {{0}, {2}, {4}, {9}, {12}}})));
}

}  // namespace

std::vector<OrthogonalSystem> shippedSystems() {
  std::vector<OrthogonalSystem> systems;
  for (const int v : {7, 9, 13, 15, 19, 21}) systems.push_back(systemOf(v, steinerTriples(v)));
  for (const int q : {3, 4, 5, 7, 8}) systems.push_back(systemOf(q * q + q + 1, projectivePlane(q)));
  for (const int q : {2, 4, 5, 7, 8, 9}) systems.push_back(systemOf(q * q, affinePlane(q)));
  for (const int q : {3, 4, 5}) systems.push_back(systemOf(q * q - 1, puncturedAffinePlane(q)));
  addTransversalDesigns(systems);
  addTripleSystems(systems);
  systems.push_back(systemOf(15, kirkmanTriples(), " (7 giri)"));
  systems.push_back(systemOf(28, hermitianUnital()));
  systems.push_back(
      systemOf(25, developed({5, 5}, {{{0, 0}, {0, 1}, {1, 0}, {2, 2}}, {{0, 0}, {0, 2}, {2, 0}, {4, 4}}})));
  systems.push_back(systemOf(41, developed({41}, {{{0}, {1}, {4}, {11}, {29}}, {{0}, {2}, {8}, {17}, {22}}})));
  systems.push_back(systemOf(45, developed({3, 3, 5}, {{{0, 1, 0}, {0, 2, 0}, {1, 0, 2}, {2, 0, 2}, {0, 0, 1}},
                                                       {{2, 1, 0}, {1, 2, 0}, {2, 2, 2}, {1, 1, 2}, {0, 0, 1}},
                                                       {{0, 0, 0}, {0, 0, 1}, {0, 0, 2}, {0, 0, 3}, {0, 0, 4}}})));
  std::stable_sort(systems.begin(), systems.end(), [](const OrthogonalSystem& a, const OrthogonalSystem& b) {
    return std::tuple(a.Numeri, a.sviluppo, a.rows.size()) < std::tuple(b.Numeri, b.sviluppo, b.rows.size());
  });
  return systems;
}

}  // namespace trv5
