#include "support/plain_exchange.h"

#include <cstdlib>
#include <cstring>

namespace trv5 {
namespace {

std::string padded(int value, std::size_t digits) {
  std::string text = std::to_string(value);
  while (text.size() < digits) text.insert(0, "0");
  return text;
}

std::string fiftyNumbers(const Archive& archive, int draw) {
  std::string text;
  for (int wheel = 0; wheel < 10; ++wheel)
    for (int position = 1; position <= 5; ++position) text += padded(archive.NumeriEstratti(draw, wheel, position), 2);
  return text;
}

}  // namespace

std::string plainDatiIii(const Archive& archive) {
  std::string file(static_cast<std::size_t>(archive.NumEstrazioni()) * 110, '?');
  for (int draw = 1; draw <= archive.NumEstrazioni(); ++draw) {
    char* const record = &file[static_cast<std::size_t>(draw - 1) * 110];
    const std::string date = archive.DateEstrazioni(draw);
    const auto put = [&](int offset, int value) {
      record[offset] = static_cast<char>(value % 256);
      record[offset + 1] = static_cast<char>(value / 256);
    };
    put(0, std::atoi(date.substr(0, 2).c_str()));
    put(2, std::atoi(date.substr(3, 2).c_str()));
    put(4, std::atoi(date.substr(8, 2).c_str()));
    std::memcpy(record + 6, fiftyNumbers(archive, draw).data(), 100);
    put(106, archive.ProgMese(draw));
    put(108, archive.ProgAnno(draw));
  }
  return file;
}

std::string plainRuotafast(const Archive& archive) {
  std::string file;
  for (int draw = 1; draw <= archive.NumEstrazioni(); ++draw) {
    const std::string date = archive.DateEstrazioni(draw);
    file += '"' + fiftyNumbers(archive, draw) + date.substr(8, 2) + date.substr(3, 2) + date.substr(0, 2) +
            padded(archive.ProgMese(draw), 2) + padded(archive.ProgAnno(draw), 2) + "\"\r\n";
  }
  return file;
}

std::string plainNazionale(const Archive& archive) {
  std::string file;
  for (int draw = 1; draw <= archive.NumEstrazioni(); ++draw) {
    if (archive.NumeriEstratti(draw, 10, 1) < 1 || archive.NumeriEstratti(draw, 10, 1) > 90) continue;
    file += padded(draw, 5) + "-";
    for (int position = 1; position <= 5; ++position) file += padded(archive.NumeriEstratti(draw, 10, position), 2);
    file += "\r\n";
  }
  return file;
}

}  // namespace trv5
