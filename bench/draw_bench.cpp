// The look at one draw, without a window: counting the frequencies of its pairs beside the plain count, and the
// buttons.
//
//   draw_bench [HISTORY]    as search_bench
#include <fmt/format.h>

#include <cstdlib>
#include <map>
#include <string>

#include "bench_tools.h"
#include "support/fake_shell.h"
#include "tools/draw_characteristics.h"
#include "tools/draw_pairs.h"

namespace trv5 {
namespace {

bool g_good = true;

void report(const std::string& name, double seconds, double goal) {
  const bool met = seconds * 1e3 < goal;
  g_good = g_good && met;
  fmt::print("{:<44} {:>9.4f} ms   goal {:>6.2f} ms{}\n", name, seconds * 1e3, goal, met ? "" : "   MISSED");
}

// The counts as they are told, family by family; indexed by block and value.
void countPlainly(const Archive& archive, int draw, std::map<std::pair<int, int>, int>& counts) {
  const auto add = [&](int family, int p, int q) {
    const int sum = (p + q) % 90 == 0 ? 90 : (p + q) % 90;
    const int gap = std::abs(p - q);
    const int way = gap > 45 ? 90 - gap : gap;
    ++counts[{family, sum}];
    ++counts[{3 + family, way == 0 ? 45 : way}];
    ++counts[{6 + family, gap}];
  };
  const auto number = [&](int wheel, int p) { return archive.number(draw, wheel, p); };
  counts.clear();
  for (int w = 0; w < kWheels; ++w)
    for (int a = 1; a <= kPositions; ++a)
      for (int b = a + 1; b <= kPositions; ++b) add(0, number(w, a), number(w, b));
  for (int w = 0; w < kWheels; ++w)
    for (int v = w + 1; v < kWheels; ++v)
      for (int a = 1; a <= kPositions; ++a)
        for (int b = 1; b <= kPositions; ++b) add(a == b ? 1 : 2, number(w, a), number(v, b));
}

void benchFrequencies(const Archive& archive) {
  const int last = archive.UltimaEstrazione();
  int draw = 0;
  long seen = 0;
  const double fast = secondsOf(
      [&] {
        // A hundred draws a call: one alone is shorter than the clock's step.
        for (int i = 0; i < 100; ++i) {
          draw = draw % last + 1;
          seen += frequenciesOf(numbersOfDraw(archive, draw))[0][90];
        }
      },
      0.3);
  std::map<std::pair<int, int>, int> counts;
  const double plain = secondsOf(
      [&] {
        draw = draw % last + 1;
        countPlainly(archive, draw, counts);
        seen += counts[{0, 90}];
      },
      0.3);
  report("frequencies of a draw", fast / 100, 0.1);
  fmt::print("{:<44} {:>9.4f} ms   {:.0f} times\n", "the plain count", plain * 1e3, plain / (fast / 100));
  if (seen == 0) fmt::print("no sum of 90 in any draw\n");
}

void benchButtons(const Archive& archive) {
  FakeShell shell;
  DiDiSO form(archive, shell);
  form.load();
  form.Command5.press();
  const int last = archive.UltimaEstrazione();
  report("change of draw, classes shown", secondsOf([&] { form.hs1.set(form.hs1.value() % last + 1); }, 0.3), 2);
  report("DS", secondsOf([&] { form.Command1.press(); }, 0.3), 5);
  report("equal decades, last digits, figures", secondsOf([&] { form.Command2.press(); }, 0.3), 2);
  report("click on a frequency", secondsOf([&] { form.Fg5.clickCell(45, 6); }, 0.3), 1);
}

}  // namespace
}  // namespace trv5

int main(int argc, char** argv) {
  const trv5::Archive archive = trv5::archiveToMeasure(argc, argv);
  trv5::benchFrequencies(archive);
  trv5::benchButtons(archive);
  return trv5::g_good ? 0 : 1;
}
