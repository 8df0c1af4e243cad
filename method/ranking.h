#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <vector>

namespace trv5 {

/// The best rows of a search by (count descending, wheel set, fix, element set), whatever the order they come in.
///
/// A row is one number that sorts so. Newcomers gather behind the kept rows; when there is no more room the kept ones
/// are selected anew and the count that a newcomer needs rises.
class Ranking {
 public:
  struct Row {
    int count = 0;
    int wheelSet = 0;  ///< 0..65535
    int fix = 0;       ///< 1..90
    int set = 0;       ///< 0..4095, the element set
  };

  /// `keep` is at least 1.
  explicit Ranking(int keep)
      : m_keep(static_cast<std::size_t>(keep)), m_room(m_keep + std::max<std::size_t>(m_keep, 64)) {
    m_rows.reserve(m_room);
  }

  /// Rows with a lower count can't enter. At least 1.
  int threshold() const { return m_threshold; }
  /// The last of the kept rows, once there are as many as are kept: a row with its count has to come before it. Until
  /// then a row behind all others.
  Row last() const { return m_last == kNoLast ? Row{0, 0xFFFF, 0xFF, 0xFFF} : rowOf(m_last); }
  /// Changes whenever the threshold or the last row does.
  int age() const { return m_age; }

  void offer(const Row& row) {
    const std::uint64_t key = keyOf(row);
    if (key >= m_last) return;
    m_rows.push_back(key);
    if (m_rows.size() == m_room) select();
  }

  /// The rows in their order.
  std::vector<Row> rows() {
    std::sort(m_rows.begin(), m_rows.end());
    if (m_rows.size() > m_keep) m_rows.resize(m_keep);
    std::vector<Row> rows;
    rows.reserve(m_rows.size());
    for (const std::uint64_t key : m_rows) rows.push_back(rowOf(key));
    return rows;
  }

 private:
  // Count in the upper 28 bits, as its complement, then wheel set in 16, fix in 8, element set in 12 bits.
  static constexpr std::uint64_t kMostCount = (1U << 28U) - 1U;
  static constexpr std::uint64_t kNoLast = ~std::uint64_t{0};

  static std::uint64_t keyOf(const Row& row) {
    const auto bits = [](int value) { return static_cast<std::uint64_t>(value); };
    return (kMostCount - bits(row.count)) << 36U | bits(row.wheelSet) << 20U | bits(row.fix) << 12U | bits(row.set);
  }
  static Row rowOf(std::uint64_t key) {
    const auto bits = [key](unsigned from, unsigned count) {
      return static_cast<int>(key >> from & ((std::uint64_t{1} << count) - 1U));
    };
    return {static_cast<int>(kMostCount - (key >> 36U)), bits(20, 16), bits(12, 8), bits(0, 12)};
  }

  void select() {
    const auto last = m_rows.begin() + static_cast<std::ptrdiff_t>(m_keep) - 1;
    std::nth_element(m_rows.begin(), last, m_rows.end());
    m_rows.resize(m_keep);
    m_last = m_rows.back();
    m_threshold = rowOf(m_last).count;
    ++m_age;
  }

  std::size_t m_keep, m_room;
  std::vector<std::uint64_t> m_rows;
  std::uint64_t m_last = kNoLast;
  int m_threshold = 1;
  int m_age = 0;
};

}  // namespace trv5
