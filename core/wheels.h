#pragma once

#include <array>
#include <string_view>

namespace trv5 {

inline constexpr int kWheels = 11;          ///< wheel indices 0..10, the national wheel last
inline constexpr int kRegionalWheels = 10;  ///< all but the national wheel
inline constexpr int kPositions = 5;        ///< positions 1..5 in the order of extraction
inline constexpr int kNational = 10;        ///< index of the national wheel
inline constexpr int kAllWheels = 11;       ///< stands for all the wheels, code "TU"

/// Wheel codes by index 0..11, as the grids show them.
inline constexpr std::array<std::string_view, 12> CodiciRuote = {"BA", "CA", "FI", "GE", "MI", "NA",
                                                                 "PA", "RO", "TO", "VE", "NZ", "TU"};
/// Names of the wheels' fields in `EstrazioniLotto`, by index 0..10.
inline constexpr std::array<std::string_view, 11> SigleRuote = {"Ba", "Ca", "Fi", "Ge", "Mi", "Na",
                                                                "Pa", "Ro", "To", "Ve", "Nz"};
/// One-letter marks of the wheels, by index 0..10.
inline constexpr std::array<std::string_view, 11> LettereRuote = {"B", "C", "F", "G", "M", "N",
                                                                  "P", "R", "T", "V", "Z"};
/// Full names of the wheels, by index 0..11.
inline constexpr std::array<std::string_view, 12> NomiRuote = {"Bari",   "Cagliari", "Firenze",   "Genova",
                                                               "Milano", "Napoli",   "Palermo",   "Roma",
                                                               "Torino", "Venezia",  "Nazionale", "Tutte"};
/// Names of the months by number 1..12; index 0 is unused.
inline constexpr std::array<std::string_view, 13> NomiMesi = {"",        "Gennaio",  "Febbraio", "Marzo",  "Aprile",
                                                              "Maggio",  "Giugno",   "Luglio",   "Agosto", "Settembre",
                                                              "Ottobre", "Novembre", "Dicembre"};

/// The wheel 0..10 of a two-letter code in any case, -1 for none.
int wheelOfCode(std::string_view code);

/// A set of wheels: bit w stands for wheel w, 0..10.
using WheelSet = unsigned;

inline constexpr bool holds(WheelSet set, int wheel) {
  return (set >> wheel & 1U) != 0;
}

}  // namespace trv5
