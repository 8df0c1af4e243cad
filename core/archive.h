#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/wheels.h"

namespace trv5 {

/// One row of `EstrazioniLotto` as the database gives it: the date as "GG/MM/AAAA" and the text of each wheel, "" for
/// NULL.
struct DrawRow {
  std::string date;
  std::array<std::string, kWheels> wheels;
};

/// The whole archive of draws in memory. A draw index counts from 1 (the oldest draw) in ascending order of date; index
/// 0 stays empty. Every analysis reads this copy, never the database.
class Archive {
 public:
  static constexpr int kMaxDraws = 9999;
  static constexpr int kDrawBytes = kWheels * kPositions;

  Archive();

  /// Replaces numbers, dates and `NumEstrazioni`; progressives, `UltimaEstrazione` and the model archive stay as they
  /// were. A wheel's text is read by position, characters 1-2, 4-5, 7-8, 10-11, 13-14; what is no digit gives 0.
  /// Throws std::length_error on more than kMaxDraws rows, leaving the archive as it was.
  void loadNumbers(const std::vector<DrawRow>& rows);

  /// Counts `ProgMese` and `ProgAnno` from 1 within each run of draws of the same month number, of the same year.
  void countProgressives();

  /// `UltimaEstrazione` = `NumEstrazioni`; the model archive holds the indices from `first` to the last draw. Throws
  /// std::out_of_range when that is none.
  void setModelFrom(int first);

  /// What a reload shows: the model archive as long as the archive, but still all zeros.
  void blankModel();
  /// The model archive over the whole archive, 1..`NumEstrazioni`.
  void setWholeModel();

  /// Differs after each load that brings other draws than before, in whichever archive of the program.
  std::uint64_t loadStamp() const { return m_stamp; }
  /// Stands for the dates and numbers of the draws 1..`last`, within this run of the program: where one of them is
  /// another, it is another. A `last` behind the archive's end means that end.
  std::uint64_t digest(int last) const { return m_digests[static_cast<std::size_t>(std::min(last, m_count))]; }

  int NumEstrazioni() const { return m_count; }
  /// The last valid draw index; follows `NumEstrazioni` only at a full load.
  int UltimaEstrazione() const { return m_last; }
  int NumModello() const { return static_cast<int>(m_model.size()); }
  /// Entry `i`, 1..`NumModello`, of the model archive: a draw index.
  int IndiciModello(int i) const { return m_model.at(static_cast<std::size_t>(i - 1)); }

  /// The number as it stands in the archive, 0..99: wheel 0..10, position 1..5, 0 = not drawn.
  int NumeriEstratti(int drawIndex, int wheel, int position) const {
    return m_shown[static_cast<std::size_t>(drawIndex * kDrawBytes + wheel * kPositions + position - 1)];
  }
  /// The number as every table, search and count takes it: 91..99, which only an entry by hand can bring in, count as
  /// 0.
  int number(int drawIndex, int wheel, int position) const { return wheelOf(drawIndex, wheel)[position - 1]; }
  /// The five counting numbers of a wheel, each 0..90.
  const std::uint8_t* wheelOf(int drawIndex, int wheel) const {
    return &m_numbers[static_cast<std::size_t>(drawIndex * kDrawBytes + wheel * kPositions)];
  }

  /// True when some wheel holds a number twice, which only an entry by hand can bring in.
  bool repeatsNumbers() const { return m_repeats; }

  /// "GG/MM/AAAA"; "" for index 0.
  const std::string& DateEstrazioni(int drawIndex) const { return m_dates.at(static_cast<std::size_t>(drawIndex)); }
  /// Progressive of the draw within its month, from 1; 0 outside the archive.
  int ProgMese(int drawIndex) const { return m_month.at(static_cast<std::size_t>(drawIndex)); }
  /// Progressive of the draw within its year, from 1; 0 outside the archive.
  int ProgAnno(int drawIndex) const { return m_year.at(static_cast<std::size_t>(drawIndex)); }

 private:
  // One block each, draw by draw, wheel by wheel, position by position: the eleven wheels of a draw share a cache line.
  std::vector<std::uint8_t> m_shown, m_numbers;
  std::vector<std::string> m_dates;
  std::vector<std::int16_t> m_month, m_year;
  std::vector<int> m_model;
  std::vector<std::uint64_t> m_digests = {0};  // up to each draw
  std::uint64_t m_stamp = 0;
  int m_count = 0;
  int m_last = 0;
  bool m_repeats = false;
};

}  // namespace trv5
