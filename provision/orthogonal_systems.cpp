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
  constexpr std::array<const char*, 10> kRows = {"",         "",        "ambi",    "terne",  "quartine",
                                                 "cinquine", "sestine", "settine", "ottine", "novine"};
  const std::size_t width = blocks.front().size();
  // Each row holds width * (width - 1) / 2 of the pairs, none of them twice.
  const std::size_t pairs = blocks.size() * width * (width - 1) / 2;
  const bool complete = static_cast<int>(pairs) == numbers * (numbers - 1) / 2;
  return fmt::format("{} numeri in {} {}{}", numbers, blocks.size(), kRows.at(width), complete ? "" : " (parziale)");
}

OrthogonalSystem systemOf(int numbers, Blocks blocks) {
  return {nameOf(numbers, blocks), static_cast<int>(blocks.front().size()), numbers, std::move(blocks)};
}

}  // namespace

std::vector<OrthogonalSystem> shippedSystems() {
  std::vector<OrthogonalSystem> systems;
  for (const int v : {7, 9, 13, 15, 19, 21}) systems.push_back(systemOf(v, steinerTriples(v)));
  for (const int q : {3, 4, 5, 7, 8}) systems.push_back(systemOf(q * q + q + 1, projectivePlane(q)));
  for (const int q : {4, 5, 7, 8, 9}) systems.push_back(systemOf(q * q, affinePlane(q)));
  for (const int q : {3, 4, 5}) systems.push_back(systemOf(q * q - 1, puncturedAffinePlane(q)));
  for (const auto& [width, q] : {std::pair(3, 4), {3, 5}, {3, 7}, {4, 5}, {4, 7}, {5, 4}, {5, 7}, {6, 5}})
    systems.push_back(systemOf(width * q, transversalDesign(width, q)));
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
