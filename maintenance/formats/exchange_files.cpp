#include "maintenance/formats/exchange_files.h"

#include <string_view>

#include "core/text.h"
#include "core/wheels.h"

namespace trv5 {
namespace {

/// A field of a record: what it holds, and how that is written.
struct Field {
  enum class What { Day, Month, Year, RegionalNumbers, NationalNumbers, ProgMese, ProgAnno, Index, Text } what;
  enum class As {
    Characters,  // as they stand in the date
    Integer,     // 16 bits, low byte first
    Digits       // at least `digits` of them, zeros in front
  } as = As::Characters;
  std::size_t digits = 2;
  std::string_view text = {};  // of What::Text
};
using What = Field::What;
using As = Field::As;

constexpr Field kDatiIii[] = {{What::Day, As::Integer}, {What::Month, As::Integer},    {What::Year, As::Integer},
                              {What::RegionalNumbers},  {What::ProgMese, As::Integer}, {What::ProgAnno, As::Integer}};

constexpr Field kRuotafast[] = {{.what = What::Text, .text = "\""},
                                {What::RegionalNumbers},
                                {What::Year},
                                {What::Month},
                                {What::Day},
                                {What::ProgMese, As::Digits},
                                {What::ProgAnno, As::Digits},
                                {.what = What::Text, .text = "\"\r\n"}};

constexpr Field kNazionale[] = {{What::Index, As::Digits, 5},
                                {.what = What::Text, .text = "-"},
                                {What::NationalNumbers},
                                {.what = What::Text, .text = "\r\n"}};

void putDigits(std::string& out, int value, std::size_t digits) {
  const std::string text = std::to_string(value);
  if (text.size() < digits) out.append(digits - text.size(), '0');
  out += text;
}

void putInteger(std::string& out, int value) {
  out += static_cast<char>(value & 0xFF);
  out += static_cast<char>(value >> 8 & 0xFF);
}

void putNumbers(std::string& out, const Archive& archive, int draw, int firstWheel, int lastWheel) {
  for (int wheel = firstWheel; wheel <= lastWheel; ++wheel)
    for (int position = 1; position <= kPositions; ++position) {
      const int number = archive.NumeriEstratti(draw, wheel, position);
      out += static_cast<char>('0' + number / 10);
      out += static_cast<char>('0' + number % 10);
    }
}

// "GG/MM/AAAA" by character; of the year the last two.
std::string_view pieceOfDate(std::string_view date, What what) {
  if (what == What::Year) return date.substr(date.size() < 2 ? 0 : date.size() - 2);
  const std::size_t from = what == What::Day ? 0 : 3;
  return from < date.size() ? date.substr(from, 2) : std::string_view();
}

int valueOf(const Archive& archive, int draw, What what) {
  switch (what) {
    case What::ProgMese:
      return archive.ProgMese(draw);
    case What::ProgAnno:
      return archive.ProgAnno(draw);
    case What::Index:
      return draw;
    default:
      return numberOf(pieceOfDate(archive.DateEstrazioni(draw), what));
  }
}

void put(std::string& out, const Archive& archive, int draw, const Field& field) {
  if (field.what == What::Text) {
    out += field.text;
  } else if (field.what == What::RegionalNumbers) {
    putNumbers(out, archive, draw, 0, kRegionalWheels - 1);
  } else if (field.what == What::NationalNumbers) {
    putNumbers(out, archive, draw, kNational, kNational);
  } else if (field.as == As::Integer) {
    putInteger(out, valueOf(archive, draw, field.what));
  } else if (field.as == As::Digits) {
    putDigits(out, valueOf(archive, draw, field.what), field.digits);
  } else {
    out += pieceOfDate(archive.DateEstrazioni(draw), field.what);
  }
}

bool hasNational(const Archive& archive, int draw) {
  const int first = archive.NumeriEstratti(draw, kNational, 1);
  return first >= 1 && first <= 90;
}

template <std::size_t count>
std::string write(const Archive& archive, const Field (&record)[count], const OnDraw& onDraw,
                  bool (*wanted)(const Archive&, int) = nullptr) {
  constexpr std::size_t kAtMost = 115;  // bytes a draw
  std::string out;
  out.reserve(static_cast<std::size_t>(archive.NumEstrazioni()) * kAtMost);
  for (int draw = 1; draw <= archive.NumEstrazioni(); ++draw) {
    if (wanted == nullptr || wanted(archive, draw))
      for (const Field& field : record) put(out, archive, draw, field);
    if (onDraw) onDraw(draw);
  }
  return out;
}

}  // namespace

std::string datiIii(const Archive& archive, const OnDraw& onDraw) {
  return write(archive, kDatiIii, onDraw);
}

std::string ruotafast(const Archive& archive, const OnDraw& onDraw) {
  return write(archive, kRuotafast, onDraw);
}

std::string nazionale(const Archive& archive, const OnDraw& onDraw) {
  return write(archive, kNazionale, onDraw, hasNational);
}

}  // namespace trv5
