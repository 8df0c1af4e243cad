#include "plain_draw_characteristics.h"

#include <array>
#include <cstdlib>

#include "core/numbers.h"

namespace trv5 {
namespace {

const std::array<std::string, 3> kFamilies3 = {"Orizzontale", "Verticale", "Diagonale"};

PlainDrawCharacteristics::Table emptyTable(int rows, int columns) {
  return PlainDrawCharacteristics::Table(static_cast<std::size_t>(rows),
                                         std::vector<Cell>(static_cast<std::size_t>(columns)));
}

Cell& cell(PlainDrawCharacteristics::Table& table, int row, int column) {
  return table[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

void paintWhite(PlainDrawCharacteristics::Table& table) {
  for (int row = 1; row <= 11; ++row)
    for (int column = 1; column <= 5; ++column) cell(table, row, column).back = 0xFFFFFF;
}

int sum(int p, int q) {
  const int value = (p + q) % 90;
  return value == 0 ? 90 : value;
}

int difference(int p, int q) {
  return std::abs(p - q);
}

int distance(int p, int q) {
  int value = std::abs(p - q);
  if (value > 45) value = 90 - value;
  return value == 0 ? 45 : value;
}

}  // namespace

PlainDrawCharacteristics::PlainDrawCharacteristics(const Archive& archive)
    : fG2(emptyTable(12, 6)),
      fG3(emptyTable(12, 6)),
      Fg1(emptyTable(1, 9)),
      Fg5(emptyTable(91, 10)),
      m_archive(archive) {
  for (int w = 1; w <= 11; ++w) {
    cell(fG2, w, 0).text = CodiciRuote[static_cast<std::size_t>(w - 1)];
    cell(fG2, w, 0).bold = true;
  }
}

int PlainDrawCharacteristics::number(int w, int position) const {
  const int n = m_archive.NumeriEstratti(m_draw, w - 1, position);
  return n > 90 ? 0 : n;
}

void PlainDrawCharacteristics::visitPairs(const std::string& family, const Visit& visit) const {
  if (family == "Orizzontale") {
    for (int w = 1; w <= 11; ++w)
      for (int a = 1; a <= 4; ++a)
        for (int b = a + 1; b <= 5; ++b) visit(w, a, w, b, number(w, a), number(w, b));
  } else if (family == "Verticale") {
    for (int w = 1; w <= 10; ++w)
      for (int v = w + 1; v <= 11; ++v)
        for (int a = 1; a <= 5; ++a) visit(w, a, v, a, number(w, a), number(v, a));
  } else {
    for (int w = 1; w <= 10; ++w)
      for (int v = w + 1; v <= 11; ++v)
        for (int a = 1; a <= 5; ++a)
          for (int b = 1; b <= 5; ++b)
            if (b != a) visit(w, a, v, b, number(w, a), number(v, b));
  }
}

void PlainDrawCharacteristics::countFrequencies() {
  int counters[9][91] = {};
  for (int f = 0; f < 3; ++f)
    visitPairs(kFamilies3[static_cast<std::size_t>(f)], [&](int, int, int, int, int p, int q) {
      ++counters[f][sum(p, q)];
      ++counters[3 + f][distance(p, q)];
      ++counters[6 + f][difference(p, q)];
    });
  Fg5 = emptyTable(91, 10);
  for (int i = 1; i <= 90; ++i) {
    cell(Fg5, i, 0).text = std::to_string(i);
    for (int block = 0; block < 9; ++block)
      if (counters[block][i] != 0) cell(Fg5, i, block + 1).text = std::to_string(counters[block][i]);
  }
}

void PlainDrawCharacteristics::changeDraw(int newDraw) {
  m_draw = newDraw;
  paintWhite(fG2);
  for (int w = 1; w <= 11; ++w)
    for (int p = 1; p <= 5; ++p) cell(fG2, w, p).text = std::to_string(m_archive.NumeriEstratti(m_draw, w - 1, p));
  countFrequencies();
  if (!mode.empty()) chooseMode(mode);
  Fg1.resize(1);
}

void PlainDrawCharacteristics::addRow(const std::string& label, const std::string& family, int w, int a, int v, int b,
                                      int value) {
  std::vector<Cell>& row = Fg1.emplace_back(9);
  row[0].text = label;
  row[1].text = family;
  row[2].text = std::to_string(w - 1);
  row[3].text = CodiciRuote[static_cast<std::size_t>(w - 1)];
  row[4].text = std::to_string(a);
  row[5].text = std::to_string(v - 1);
  row[6].text = CodiciRuote[static_cast<std::size_t>(v - 1)];
  row[7].text = std::to_string(b);
  row[8].text = std::to_string(value);
}

void PlainDrawCharacteristics::listSumsAndDistances() {
  Fg1.resize(1);
  for (const std::string& family : kFamilies3)
    visitPairs(family,
               [&](int w, int a, int v, int b, int p, int q) { addRow("Somma", family, w, a, v, b, sum(p, q)); });
  for (const std::string& family : kFamilies3)
    visitPairs(family, [&](int w, int a, int v, int b, int p, int q) {
      addRow("Distanza", family, w, a, v, b, distance(p, q));
    });
}

void PlainDrawCharacteristics::listEqualClasses() {
  Fg1.resize(1);
  const auto list = [this](const std::string& label, const NumberTable& table) {
    for (const std::string& family : kFamilies3)
      visitPairs(family, [&](int w, int a, int v, int b, int p, int q) {
        const int own = table[static_cast<std::size_t>(p)];
        if (own == table[static_cast<std::size_t>(q)]) addRow(label + std::to_string(own), family, w, a, v, b, own);
      });
  };
  list("Decina ", TabDecina);
  list("cadenze ", TabCadenza);
  list("Figure ", TabFigura);
}

void PlainDrawCharacteristics::chooseMode(const std::string& word) {
  mode = word;
  fG3 = emptyTable(12, 6);
  paintWhite(fG2);
  for (int w = 1; w <= 11; ++w)
    for (int p = 1; p <= 5; ++p) {
      const int n = number(w, p);
      const auto i = static_cast<std::size_t>(n);
      std::string& text = cell(fG3, w, p).text;
      if (word == "DEC") text = std::to_string(TabDecina[i]);
      if (word == "CAD") text = std::to_string(TabCadenza[i]);
      if (word == "FIG") text = std::to_string(TabFigura[i]);
      if (word == "RAD" && TabGruppo[i] != 0) text = std::to_string(TabGruppo[i]);
      if (word == "GEM" && n % 11 == 0) text = std::to_string(n);
    }
}

void PlainDrawCharacteristics::clickClass(int row, int column) {
  const std::string value = cell(fG3, row, column).text;
  if (value.empty()) return;
  whiten();
  for (int w = 1; w <= 11; ++w)
    for (int p = 1; p <= 5; ++p)
      if (cell(fG3, w, p).text == value) cell(fG3, w, p).back = cell(fG2, w, p).back = 0x00FF00;
}

void PlainDrawCharacteristics::clickPair(int row) {
  fG3 = emptyTable(12, 6);
  paintWhite(fG2);
  const auto at = [&](int column) { return std::atoi(cell(Fg1, row, column).text.c_str()); };
  cell(fG2, at(2) + 1, at(4)).back = 0x00FF00;
  cell(fG2, at(5) + 1, at(7)).back = 0x00FF00;
}

void PlainDrawCharacteristics::clickFrequency(int row, int column) {
  fG3 = emptyTable(12, 6);
  paintWhite(fG2);
  Fg1.resize(1);
  for (int i = 1; i <= 90; ++i) {
    for (int c = 0; c <= 9; ++c) cell(Fg5, i, c).back = 0xFFFFFF;
    cell(Fg5, i, 0).fore = 0x000000;
    cell(Fg5, i, 0).bold = true;
  }
  cell(Fg5, row, column).back = 0x00FF00;
  cell(Fg5, row, 0).fore = 0xFF0000;
  if (row >= 2)
    for (int i = 1; i <= row - 1; ++i) cell(Fg5, i, column).back = 0xC0FFC0;
  if (column >= 2)
    for (int c = 1; c <= column - 1; ++c) cell(Fg5, row, c).back = 0xC0FFC0;
  const int value = std::atoi(cell(Fg5, row, 0).text.c_str());
  const std::string family = kFamilies3[static_cast<std::size_t>((column - 1) % 3)];
  visitPairs(family, [&](int w, int a, int v, int b, int p, int q) {
    const int measure = column <= 3 ? sum(p, q) : column <= 6 ? distance(p, q) : difference(p, q);
    if (measure != value) return;
    cell(fG2, w, a).back = cell(fG2, v, b).back = 0x00FF00;
    addRow(column <= 3 ? "Somma" : column <= 6 ? "Distanza" : "Differenza", family, w, a, v, b, value);
  });
}

void PlainDrawCharacteristics::whiten() {
  paintWhite(fG2);
  paintWhite(fG3);
}

}  // namespace trv5
