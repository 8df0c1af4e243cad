#include "maintenance/formats/update_text.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "core/text.h"

namespace trv5 {
namespace {

constexpr int kLineLength = 178;
constexpr std::string_view kEndMark = "pr";
constexpr int kDateLength = 10;
constexpr int kFirstWheel = 11, kWheelStep = 15, kWheelLength = 14;  // columns from 0

bool beginsWith(std::string_view bytes, std::string_view mark) {
  return bytes.substr(0, mark.size()) == mark;
}

void appendUtf8(std::string& text, std::uint32_t code) {
  const auto put = [&](std::uint32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
  if (code < 0x80) {
    put(code);
  } else if (code < 0x800) {
    put(0xC0 | code >> 6);
    put(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    put(0xE0 | code >> 12);
    put(0x80 | (code >> 6 & 0x3F));
    put(0x80 | (code & 0x3F));
  } else {
    put(0xF0 | code >> 18);
    put(0x80 | (code >> 12 & 0x3F));
    put(0x80 | (code >> 6 & 0x3F));
    put(0x80 | (code & 0x3F));
  }
}

// The bytes of the UTF-8 character at the beginning of `text`; 0 when there is none.
std::size_t lengthOfCharacter(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char first = byte(0);
  if (first < 0x80) return 1;
  const std::size_t length = first >= 0xF0 && first < 0xF5 ? 4 : first >= 0xE0 && first < 0xF0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i)
    if ((byte(i) & 0xC0) != 0x80) return 0;
  // Overlong forms, halves of UTF-16 pairs, and what lies beyond the last character.
  const unsigned char second = byte(1);
  const bool wrong = (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
                     (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
  return wrong ? 0 : length;
}

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = lengthOfCharacter(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

std::string textOfUtf16(std::string_view bytes, bool lowFirst) {
  constexpr std::uint32_t kReplacement = 0xFFFD;
  const auto unit = [&](std::size_t at) {
    const auto a = static_cast<unsigned char>(bytes[at]), b = static_cast<unsigned char>(bytes[at + 1]);
    return static_cast<std::uint32_t>(lowFirst ? b << 8 | a : a << 8 | b);
  };
  std::string text;
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    const std::uint32_t code = unit(at);
    const bool high = code >= 0xD800 && code < 0xDC00, low = code >= 0xDC00 && code < 0xE000;
    const std::uint32_t next = high && at + 3 < bytes.size() ? unit(at + 2) : 0;
    if (next >= 0xDC00 && next < 0xE000) {
      appendUtf8(text, 0x10000 + ((code - 0xD800) << 10) + (next - 0xDC00));
      at += 2;
    } else {
      appendUtf8(text, high || low ? kReplacement : code);
    }
  }
  return text;
}

// Takes the first line, without its end, off the text.
std::string_view takeLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return line;
}

bool isAscii(std::string_view line) {
  return std::all_of(line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// Columns are characters; nearly every line has one byte for each.
std::string columns(std::string_view line, bool ascii, int from, int count) {
  const auto byteOf = [&](int column) {
    return ascii ? std::min(line.size(), static_cast<std::size_t>(column)) : byteOfCharacter(line, column);
  };
  const std::size_t begin = byteOf(from);
  return std::string(line.substr(begin, byteOf(from + count) - begin));
}

}  // namespace

std::string decodedText(std::string_view bytes) {
  constexpr std::string_view kUtf8 = "\xEF\xBB\xBF", kLowFirst = "\xFF\xFE", kHighFirst = "\xFE\xFF";
  if (beginsWith(bytes, kLowFirst)) return textOfUtf16(bytes.substr(2), true);
  if (beginsWith(bytes, kHighFirst)) return textOfUtf16(bytes.substr(2), false);
  if (beginsWith(bytes, kUtf8)) bytes.remove_prefix(kUtf8.size());
  if (isUtf8(bytes)) return std::string(bytes);
  std::string text;
  for (const char c : bytes) appendUtf8(text, static_cast<unsigned char>(c));
  return text;
}

bool hasUpdateForm(std::string_view text) {
  const std::string_view line = takeLine(text);
  return characterCount(line) == kLineLength && line.substr(line.size() - kEndMark.size()) == kEndMark;
}

std::vector<DrawRow> readUpdateText(std::string_view text) {
  std::vector<DrawRow> rows;
  while (!text.empty()) {
    const std::string_view line = takeLine(text);
    if (line.find_first_not_of(" \t") == std::string_view::npos) continue;
    const bool ascii = isAscii(line);
    DrawRow& row = rows.emplace_back();
    row.date = columns(line, ascii, 0, kDateLength);
    for (int wheel = 0; wheel < kWheels; ++wheel)
      row.wheels[static_cast<std::size_t>(wheel)] =
          columns(line, ascii, kFirstWheel + wheel * kWheelStep, kWheelLength);
  }
  return rows;
}

}  // namespace trv5
