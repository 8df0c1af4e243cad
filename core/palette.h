#pragma once

#include <array>
#include <cstdint>

namespace trv5 {

/// A colour as 0xRRGGBB. The colours of cells are data: operations mark rows by them and compare them exactly.
using Rgb = std::uint32_t;

inline constexpr Rgb kWhite = 0xFFFFFF;  ///< the back of a cell without a colour of its own
inline constexpr Rgb kBlack = 0x000000;  ///< the ink of a cell without a colour of its own

inline constexpr Rgb GialloChiaro = 0xFFFFC0;
inline constexpr Rgb GialloMedio = 0xFFFF80;
inline constexpr Rgb Giallo = 0xFFFF00;
inline constexpr Rgb VerdeChiaro = 0xC0FFC0;
inline constexpr Rgb VerdeMedio = 0x80FF80;
inline constexpr Rgb Verde = 0x00FF00;
inline constexpr Rgb VerdeScuro = 0x00C000;
inline constexpr Rgb VerdeBuio = 0x008000;
inline constexpr Rgb ViolaChiaro = 0xFFC0FF;
inline constexpr Rgb ViolaMedio = 0xFF80FF;
inline constexpr Rgb Viola = 0xFF00FF;
inline constexpr Rgb AranciaChiaro = 0xFFE0C0;
inline constexpr Rgb AranciaMedio = 0xFFC080;
inline constexpr Rgb Arancia = 0xFF8000;
inline constexpr Rgb CianoChiaro = 0xC0FFFF;
inline constexpr Rgb CianoMedio = 0x80FFFF;
inline constexpr Rgb Ciano = 0x00FFFF;
inline constexpr Rgb RossoChiaro = 0xFFC0C0;
inline constexpr Rgb RossoMedio = 0xFF8080;
inline constexpr Rgb Rosso = 0xFF0000;
inline constexpr Rgb BluChiaro = 0xC0C0FF;
inline constexpr Rgb BluMedio = 0x8080FF;
inline constexpr Rgb Blu = 0x0000FF;
inline constexpr Rgb BluScuro = 0x0000C0;

/// Back colour of a cell that shows a hit, by sorte 1..5 (ambata, ambo, terno, quaterna, cinquina); index 0 is unused.
inline constexpr std::array<Rgb, 6> ColoriSorte = {kWhite, VerdeMedio, Giallo, AranciaMedio, BluChiaro, ViolaMedio};

}  // namespace trv5
