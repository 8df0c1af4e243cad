#include "support/plain_detection.h"

#include <cstdlib>

namespace trv5 {
namespace {

constexpr int kColumns = 23;
constexpr const char* kCodes[] = {"BA", "CA", "FI", "GE", "MI", "NA", "PA", "RO", "TO", "VE", "NZ"};

// The characters of a text, whatever they take in bytes.
std::vector<std::string> charactersOf(const std::string& text) {
  std::vector<std::string> characters;
  for (const char c : text) {
    if ((static_cast<unsigned char>(c) & 0xC0U) == 0x80U && !characters.empty())
      characters.back() += c;
    else
      characters.push_back(std::string(1, c));
  }
  return characters;
}

int value(const std::string& text) {
  std::size_t i = 0;
  while (i < text.size() && text[i] == ' ') ++i;
  long n = 0;
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
    if (n < 100000) n = n * 10 + (text[i] - '0');
  return n > 32767 ? 32767 : static_cast<int>(n);
}

struct Run {
  const Archive& archive;
  const PlainSituation& s;
  PlainDetection& state;
  bool full = false;  // as many cases as wanted

  int shown(int draw, int wheel, int p) const { return archive.NumeriEstratti(draw, wheel, p); }
  int n(int draw, int wheel, int p) const {
    const int number = shown(draw, wheel, p);
    return number > 90 ? 0 : number;
  }
  bool isChosen(int number) const {
    return number >= 1 && number <= 90 && state.chosen[static_cast<std::size_t>(number)];
  }
  bool position(int p) const { return s.positions[static_cast<std::size_t>(p)]; }
  bool detects(int wheel) const { return s.detection[static_cast<std::size_t>(wheel)]; }

  int relation(int x, int y) const {
    if (s.kind == "Somma") {
      const int sum = (x + y) % 90;
      return sum == 0 ? 90 : sum;
    }
    const int difference = std::abs(x - y);
    if (s.kind == "Distanza" && difference > 45) return 90 - difference;
    return difference;
  }

  void writeElement(std::vector<Cell>& row, int column, int draw, int wheel, const std::array<bool, 6>& green) const {
    const auto cell = [&](int offset) -> Cell& { return row[static_cast<std::size_t>(column + offset)]; };
    cell(0).text = std::to_string(draw);
    cell(1).text = archive.DateEstrazioni(draw);
    cell(2).text = kCodes[wheel];
    cell(2).back = 0xFFFF00;
    cell(2).bold = true;
    for (int k = 1; k <= 5; ++k) {
      cell(2 + k).text = std::to_string(shown(draw, wheel, k));
      if (green[static_cast<std::size_t>(k)]) cell(2 + k).back = 0x80FF80;
    }
  }

  std::vector<Cell>& appendCase(int draw, int wheel, const std::array<bool, 6>& green) {
    ++state.found;
    state.cases.emplace_back(kColumns);
    std::vector<Cell>& row = state.cases.back();
    row[0].text = std::to_string(state.found);
    writeElement(row, 1, draw, wheel, green);
    if (state.found >= value(s.cases)) full = true;
    return row;
  }

  // A pair of positions: only its first number is looked at for a wheel that wasn't drawn.
  bool pairsReach(int draw) {
    int count = 0;
    for (int p = 1; p <= 4; ++p) {
      for (int q = p + 1; q <= 5; ++q) {
        if (!position(p) || !position(q) || n(draw, s.wheel, p) < 1) continue;
        if (!isChosen(relation(n(draw, s.wheel, p), n(draw, s.wheel, q)))) continue;
        ++count;
        state.struck[static_cast<std::size_t>(p)] = true;
        state.struck[static_cast<std::size_t>(q)] = true;
      }
    }
    return count >= s.quantity;
  }

  bool numbersReach(int draw) {
    int count = 0;
    for (int p = 1; p <= 5; ++p) {
      if (!position(p) || !isChosen(n(draw, s.wheel, p))) continue;
      ++count;
      state.struck[static_cast<std::size_t>(p)] = true;
    }
    return s.back == 0 ? count >= s.quantity : count > 0;
  }

  bool evenNumbersAre(int draw) {
    int count = 0;
    bool any = false;
    for (int p = 1; p <= 5; ++p) {
      if (!position(p)) continue;
      any = true;
      const int number = n(draw, s.wheel, p);
      if (number < 1 || number % 2 != 0) continue;
      ++count;
      state.struck[static_cast<std::size_t>(p)] = true;
    }
    return any && count == s.period;
  }

  bool closesMonth(int draw) const {
    if (s.period >= 1) return archive.ProgMese(draw) == s.period;
    const int last = archive.UltimaEstrazione();
    if (s.forceLast && draw == last) return true;
    return draw < last && archive.ProgMese(draw + 1) == 1;
  }

  void scanOneElement() {
    int counter = 0;
    for (int draw = s.reference; draw >= 1 && !full; --draw) {
      if (s.kind != "Ciclo") state.struck = {};
      bool match = false;
      if (s.kind == "Mensile") match = closesMonth(draw);
      if (s.kind == "Numeri") match = numbersReach(draw);
      if (s.kind == "Differenza" || s.kind == "Distanza" || s.kind == "Somma") match = pairsReach(draw);
      if (s.kind == "Num Pari") match = evenNumbersAre(draw);
      if (s.kind == "Ciclo" && s.period > 0) {
        if (counter == s.period) counter = 0;
        match = counter == 0;
        ++counter;
      }
      if (match) appendCase(draw, s.wheel, state.struck);
    }
  }

  struct Second {
    int draw, wheel;
  };
  std::vector<Second> secondsOf(int draw, int wheel) const {
    std::vector<Second> seconds;
    for (int j = draw - 1; s.back > 0 && j >= draw - s.back && j > 0; --j) seconds.push_back({j, wheel});
    for (int w2 = wheel + 1; s.back == 0 && w2 <= 10; ++w2)
      if (detects(w2)) seconds.push_back({draw, w2});
    return seconds;
  }

  void appendPair(int draw, int wheel, const std::array<bool, 6>& green, const Second& second,
                  const std::array<bool, 6>& green2) {
    const std::string index = std::to_string(draw);
    if (!state.cases.empty() && state.cases.back()[1].text == index) return;
    writeElement(appendCase(draw, wheel, green), 9, second.draw, second.wheel, green2);
  }

  void comparePairs(int draw, int wheel) {
    for (int a = 1; a <= 4; ++a) {
      for (int b = a + 1; b <= 5; ++b) {
        if (!position(a) || !position(b) || n(draw, wheel, a) < 1) continue;
        if (!isChosen(relation(n(draw, wheel, a), n(draw, wheel, b)))) continue;
        for (const Second& second : secondsOf(draw, wheel)) {
          for (int c = 1; c <= 4; ++c) {
            for (int d = c + 1; d <= 5; ++d) {
              if (!position(c) || !position(d) || (s.isotopes && (a != c || b != d))) continue;
              if (!isChosen(relation(n(second.draw, second.wheel, c), n(second.draw, second.wheel, d)))) continue;
              std::array<bool, 6> green{}, green2{};
              green[static_cast<std::size_t>(a)] = green[static_cast<std::size_t>(b)] = true;
              green2[static_cast<std::size_t>(c)] = green2[static_cast<std::size_t>(d)] = true;
              appendPair(draw, wheel, green, second, green2);
            }
          }
        }
      }
    }
  }

  void compareOneToOne(int draw, int wheel) {
    for (int a = 1; a <= 5; ++a) {
      if (!position(a) || n(draw, wheel, a) < 1) continue;
      for (const Second& second : secondsOf(draw, wheel)) {
        for (int c = 1; c <= 5; ++c) {
          if (!position(c) || (s.isotopes && a != c)) continue;
          if (!isChosen(relation(n(draw, wheel, a), n(second.draw, second.wheel, c)))) continue;
          std::array<bool, 6> green{}, green2{};
          green[static_cast<std::size_t>(a)] = true;
          green2[static_cast<std::size_t>(c)] = true;
          appendPair(draw, wheel, green, second, green2);
        }
      }
    }
  }

  std::vector<int> matching(int draw, int wheel) const {
    std::vector<int> positions;
    for (int p = 1; p <= 5; ++p)
      if (position(p) && isChosen(n(draw, wheel, p))) positions.push_back(p);
    return positions;
  }
  std::array<bool, 6> allChosen(int draw, int wheel) const {
    std::array<bool, 6> green{};
    for (int p = 1; p <= 5; ++p) green[static_cast<std::size_t>(p)] = isChosen(n(draw, wheel, p));
    return green;
  }

  void compareNumbers(int draw, int wheel) {
    const std::vector<int> first = matching(draw, wheel);
    if (static_cast<int>(first.size()) != s.quantity1) return;
    for (const Second& second : secondsOf(draw, wheel)) {
      const std::vector<int> other = matching(second.draw, second.wheel);
      if (static_cast<int>(other.size()) != s.quantity2 || (s.isotopes && first != other)) continue;
      appendPair(draw, wheel, allChosen(draw, wheel), second, allChosen(second.draw, second.wheel));
    }
  }

  void scanTwoElements() {
    const bool related = s.kind == "Distanza" || s.kind == "Somma" || s.kind == "Differenza";
    for (int draw = s.reference; draw >= 1 && !full; --draw) {
      for (int wheel = 0; wheel <= 10; ++wheel) {
        if (!detects(wheel)) continue;
        if (related && !s.oneToOne) comparePairs(draw, wheel);
        if (related && s.oneToOne) compareOneToOne(draw, wheel);
        if (s.kind == "Numeri") compareNumbers(draw, wheel);
      }
    }
  }

  void end() {
    state.frontTab = 0;
    if (state.cases.size() > 50) {
      state.boxes.push_back("Non sono consentite più di 50 casistiche... quelle eccedenti saranno rimosse.");
      state.cases.resize(50);
    }
    if (state.cases.empty()) return;
    state.span = std::to_string(value(state.cases.front()[1].text) - value(state.cases.back()[1].text));
  }
};

// False when the run stops.
bool prepare(const PlainSituation& s, PlainDetection& state) {
  const std::vector<std::string> characters = charactersOf(s.numbers);
  if (s.kind != "Num Pari" && s.kind != "Ciclo" && s.kind != "Mensile" && characters.empty()) {
    state.boxes.push_back("Attenzione: Selezionare almeno un valore");
    state.frontTab = 1;
    return false;
  }
  if ((s.kind == "Differenza" || s.kind == "Distanza" || s.kind == "Somma") && characters.size() >= 3) {
    state.boxes.push_back("Attenzione: per Distanza, Differenza e Somma, selezionare un solo valore");
    state.numbers.clear();
    state.frontTab = 1;
    return false;
  }
  if (s.kind != "Mensile") {
    state.chosen = {};
    for (std::size_t at = 0; at < characters.size(); at += 3) {
      const int number = value(characters[at] + (at + 1 < characters.size() ? characters[at + 1] : ""));
      if (number >= 1 && number <= 90) state.chosen[static_cast<std::size_t>(number)] = true;
    }
  }
  if (s.kind == "Ciclo" && s.period < 5) {
    state.boxes.push_back(
        "Quanso è selezionata la rilevazione per ciclo la dursta non può essere inferiore a 5. Va impostata dalla "
        "lista Mensile");
  }
  return true;
}

}  // namespace

void plainDetect(const Archive& archive, const PlainSituation& situation, PlainDetection& state) {
  state.boxes.clear();
  state.numbers = situation.numbers;
  if (!prepare(situation, state)) return;
  state.cases.clear();
  state.found = 0;
  Run run{archive, situation, state};
  if (!situation.onWheels) {
    run.scanOneElement();
  } else {
    if (situation.kind == "Distanza" && value(situation.numbers) > 45) {
      state.boxes.push_back("Selezionare un valore compreso tra 1 e 45");
      return;
    }
    run.scanTwoElements();
  }
  run.end();
}

}  // namespace trv5
