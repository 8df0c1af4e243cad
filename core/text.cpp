#include "core/text.h"

#include <algorithm>
#include <cctype>

namespace trv5 {
namespace {

constexpr int kHighest = 32767;

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// Of the bytes of a UTF-8 character only the first isn't 10xxxxxx.
bool beginsCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
}

}  // namespace

int numberOf(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && isBlank(text[i])) ++i;
  int value = 0;
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
    value = std::min(kHighest, value * 10 + (text[i] - '0'));
  return value;
}

std::string twoDigits(int value) {
  const std::string text = std::to_string(value);
  return text.size() < 2 ? "0" + text : text;
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::string counted(int count, std::string_view one, std::string_view many) {
  return std::to_string(count).append(" ").append(count == 1 ? one : many);
}

std::vector<std::string> split(std::string_view text, char separator) {
  std::vector<std::string> pieces;
  for (std::size_t start = 0;;) {
    const std::size_t end = text.find(separator, start);
    pieces.emplace_back(text.substr(start, end - start));
    if (end == std::string_view::npos) return pieces;
    start = end + 1;
  }
}

std::vector<int> numbersEveryThree(std::string_view text) {
  std::vector<int> numbers;
  for (std::size_t at = 0; at < text.size(); at += 3) numbers.push_back(numberOf(text.substr(at, 2)));
  return numbers;
}

int characterCount(std::string_view text) {
  return static_cast<int>(std::count_if(text.begin(), text.end(), beginsCharacter));
}

std::size_t byteOfCharacter(std::string_view text, int character) {
  std::size_t byte = 0;
  for (; byte < text.size(); ++byte)
    if (beginsCharacter(text[byte]) && character-- <= 0) break;
  return byte;
}

std::string asciiText(std::string_view text) {
  std::string ascii;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80)
      ascii += c;
    else if (byte >= 0xC0)  // the first byte of a character
      ascii += '?';
  }
  return ascii;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
  const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](char x, char y) { return lower(x) == lower(y); });
}

std::string foldedCase(std::string_view text) {
  std::string low(text);
  for (std::size_t i = 0; i < low.size(); ++i) {
    const auto byte = static_cast<unsigned char>(low[i]);
    // U+00C0 to U+00DE, but for the multiplication sign among them.
    const bool accented =
        i > 0 && static_cast<unsigned char>(low[i - 1]) == 0xC3 && byte >= 0x80 && byte <= 0x9E && byte != 0x97;
    if (accented || (byte >= 'A' && byte <= 'Z')) low[i] = static_cast<char>(byte | 0x20);
  }
  return low;
}

}  // namespace trv5
