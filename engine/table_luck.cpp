#include "engine/table_luck.h"

#include <fmt/format.h>

#include <cmath>
#include <string>

#include "cases/case_rows.h"
#include "cases/method_codec.h"
#include "chance/balance.h"
#include "chance/expected_cover.h"
#include "core/figures.h"
#include "engine/payouts.h"

namespace trv5 {
namespace {

// Whole euros, but for sums so small that the cents tell.
std::string euros(double sum) {
  const bool cents = sum < 10 && std::abs(sum - std::round(sum)) >= 0.005;
  return figureText(sum, cents ? 2 : 0);
}

std::string spentAndPaid(const Balance& balance) {
  return fmt::format("spesi {} €, incassati {} € ({} attesi)", euros(balance.spent), euros(balance.paid),
                     euros(balance.expectedPaid));
}

std::string multiplesText(const Payouts& payouts) {
  constexpr const char* kNumbers[] = {"", "un numero", "due", "tre", "quattro", "cinque"};
  std::string text;
  for (std::size_t n = 1; n < payouts.multiples.size(); ++n) {
    const double multiple = payouts.multiples[n];
    text += fmt::format("{}{} {}", n == 1 ? "" : ", ", kNumbers[n],
                        figureText(multiple, multiple == std::round(multiple) ? 0 : 3));
    if (n == 1) text += " volte la posta";
  }
  return text;
}

std::string centsBack(const Payouts& payouts) {
  const auto cents = [&](int numbers) { return figureText(100 * returnOf(numbers, payouts), 1); };
  return fmt::format("{} centesimi giocando un numero, {} due, {} tre, {} quattro", cents(1), cents(2), cents(3),
                     cents(4));
}

std::string toolTipOf(const Balance& first, const Balance& all, const Payouts& payouts) {
  const std::string withheld =
      figureText(100 * payouts.withheld, payouts.withheld * 100 == std::round(100 * payouts.withheld) ? 0 : 1);
  return fmt::format(
      "A 1 € il colpo: {}.\n"
      "Un euro a estrazione per ogni caso, fino al suo primo esito, diviso fra le ruote di gioco e fra le "
      "combinazioni. "
      "La sola fortuna, in media: spesi {} €, incassati {} €.\n"
      "Giocando sempre tutti i colpi: {}.\n"
      "Sono vincite lorde ({}). Tolta la ritenuta ({} %) ne restano {} € ({} attesi).\n"
      "Di ogni euro tornano in media, prima della ritenuta, {}.",
      spentAndPaid(first), euros(first.expectedSpent), euros(first.expectedPaid), spentAndPaid(all),
      multiplesText(payouts), withheld, euros(first.net), euros(first.expectedNet), centsBack(payouts));
}

}  // namespace

void NotaFortunaTabella(Workbench& w, Table table, const std::vector<CaseNumbers>& numbers) {
  const int sorte = w.ComboSorte.number();
  BalanceRequest request{.table = table,
                         .caseDraws = caseDraws(w),
                         .numbers = numbers,
                         .window = playWindow(w),
                         .sorte = sorte,
                         .payouts = payoutsOf(w)};
  TableLuck luck{.archive = w.archive.loadStamp()};
  const ExpectedCover expected = expectedCover(w.archive, table, numbers, request.caseDraws, request.window, sorte);
  if (const int cases = expected.covered.trials(); cases > 0)
    luck.expected = fmt::format("Attesi dal caso: {} su {}", figureText(expected.covered.mean(), 1), cases);
  const Balance first = balanceOf(w.archive, request);
  request.until = PlayedUntil::LastColpo;
  if (first.spent > 0) {
    luck.balance = "A 1 € il colpo: " + spentAndPaid(first);
    luck.toolTip = toolTipOf(first, balanceOf(w.archive, request), request.payouts);
  }
  w.origins.luck = std::move(luck);
}

}  // namespace trv5
