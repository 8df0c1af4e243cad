#include "support/plain_evaluation.h"

#include <array>
#include <string>

#include "core/numbers.h"
#include "core/text.h"

namespace trv5 {
namespace {

std::string format00(int value) {
  return value < 10 ? "0" + std::to_string(value) : std::to_string(value);
}

int digit(char c) {
  return c - '0';
}

/// The altered element of (wheel, position), or `kept` where the alteration is none that is known.
int altered(const Archive& archive, const ParametriFormula& p, int wheel, int position, int kept) {
  const int n = position == 0 ? 0 : archive.number(p.Estr, wheel, position);
  const auto at = static_cast<std::size_t>(n);
  if (p.Alteraz.empty()) return n;
  if (p.Alteraz == "C91") return 91 - n;
  if (p.Alteraz == "CAD") return TabCadenza[at];
  if (p.Alteraz == "DEC") return TabDecina[at];
  if (p.Alteraz == "DIAM") return TabDiametrale[at];
  if (p.Alteraz == "DIDE") return TabDiametraleDecina[at];
  if (p.Alteraz == "D x U") return digit(format00(n).back()) * digit(format00(n).front()) % 90;
  if (p.Alteraz == "FIG") return TabFigura[at];
  if (p.Alteraz == "VERT") return TabVertibile[at];
  return kept;
}

void combineTwo(ParametriFormula& p) {
  const std::string a = format00(p.N1), b = format00(p.N2);
  if (p.Operazione == "N1 + N2") p.NumeroOttenuto = (p.N1 + p.N2) % 90;
  if (p.Operazione == "N1 - N2") p.NumeroOttenuto = (p.N1 - p.N2 + 90) % 90;
  if (p.Operazione == "N2 - N1") p.NumeroOttenuto = (p.N2 - p.N1 + 90) % 90;
  if (p.Operazione == "N1 X N2") p.NumeroOttenuto = (p.N1 * p.N2) % 90;
  if (p.Operazione == "D1 e U2") p.NumeroOttenuto = std::stoi(std::string() + a.front() + b.back()) % 90;
  if (p.Operazione == "D2 e U1") p.NumeroOttenuto = std::stoi(std::string() + b.front() + a.back()) % 90;
}

}  // namespace

void plainOttieneNumero(const Archive& archive, ParametriFormula& p) {
  if (p.Nr == 0) {
    p.NumeroOttenuto = p.Fix;
    return;
  }
  if (p.Nr == 1 && p.Qn == 1) {
    p.NumeroOttenuto = altered(archive, p, p.R1, p.P1, p.NumeroOttenuto);
  } else if (p.Nr == 1 && p.Qn == 3) {
    p.Elem1 = altered(archive, p, p.R1, p.P1, p.Elem1);
    p.Elem2 = altered(archive, p, p.R2, p.P2, p.Elem2);
    p.Elem3 = altered(archive, p, p.R3, p.P3, p.Elem3);
    if (p.Elem1 == 0) p.Elem1 = 90;
    if (p.Elem2 == 0) p.Elem2 = 90;
    if (p.Elem3 == 0) p.Elem3 = 90;
    p.N1 = p.Elem1;
    p.N2 = p.Elem2;
    p.N3 = p.Elem3;
    p.NumeroOttenuto = (p.Fix + (p.N1 + p.N2 + p.N3) % 90) % 90;
    if (p.NumeroOttenuto == 0) p.NumeroOttenuto = 90;
    return;
  } else if ((p.Nr == 1 && p.Qn == 2) || p.Nr == 2) {
    p.Elem1 = altered(archive, p, p.R1, p.P1, p.Elem1);
    p.Elem2 = altered(archive, p, p.R2, p.P2, p.Elem2);
    if (p.Elem1 == 0) p.Elem1 = 90;
    if (p.Elem2 == 0) p.Elem2 = 90;
    p.N1 = p.Elem1;
    p.N2 = p.Elem2;
    combineTwo(p);
  } else {
    return;
  }
  p.NumeroOttenuto = (p.Fix + p.NumeroOttenuto) % 90;
  if (p.NumeroOttenuto == 0) p.NumeroOttenuto = 90;
}

void plainCaricaParametri(const Grid& formulas, int row, ParametriFormula& p) {
  p.R1 = formulas.number(row, 1);
  p.P1 = formulas.number(row, 3);
  if (!formulas.text(row, 4).empty()) {
    p.R2 = formulas.number(row, 4);
    p.P2 = formulas.number(row, 6);
  }
  if (!formulas.text(row, 7).empty()) {
    p.R3 = formulas.number(row, 7);
    p.P3 = formulas.number(row, 9);
  }
  p.Fix = formulas.number(row, 11);
  p.Operazione = formulas.text(row, 10);
  p.Alteraz = formulas.text(row, 17);
  p.Nr = formulas.number(row, 14);
  p.Qn = formulas.number(row, 15);
}

void plainRicavaElementiReali(const PlainNumbersInPlay& in) {
  static constexpr std::array<int, 4> kOffset = {0, 50, 100, 250};
  static constexpr std::array<int, 4> kColumn = {1, 2, 3, 6};
  for (NumberFlags& flags : in.flags) flags.fill(false);
  in.lists.setRows(1);
  for (int i = 1; i < in.cases.rows(); ++i) {
    std::array<NumberFlags, 4> seen{};
    in.record.Estr = in.cases.number(i, 1);
    const int row = in.lists.appendRow();
    in.lists.setNumber(row, 0, i);
    for (std::size_t kind = 0; kind < 4; ++kind)
      for (int r = 1; r < in.formulas[kind]->rows(); ++r) {
        plainCaricaParametri(*in.formulas[kind], r, in.record);
        plainOttieneNumero(in.archive, in.record);
        const auto number = static_cast<std::size_t>(in.record.NumeroOttenuto);
        in.flags[static_cast<std::size_t>(i + kOffset[kind])][number] = true;
        if (seen[kind][number]) continue;
        seen[kind][number] = true;
        const std::string before = in.lists.text(row, kColumn[kind]);
        in.lists.setText(row, kColumn[kind], (before.empty() ? "" : before + "-") + format00(in.record.NumeroOttenuto));
      }
  }
}

const char* differentField(const ParametriFormula& a, const ParametriFormula& b) {
  if (a.Estr != b.Estr) return "Estr";
  if (a.R1 != b.R1 || a.P1 != b.P1) return "R1, P1";
  if (a.R2 != b.R2 || a.P2 != b.P2) return "R2, P2";
  if (a.R3 != b.R3 || a.P3 != b.P3) return "R3, P3";
  if (a.Fix != b.Fix) return "Fix";
  if (a.Operazione != b.Operazione) return "Operazione";
  if (a.Alteraz != b.Alteraz) return "Alteraz";
  if (a.Nr != b.Nr || a.Qn != b.Qn) return "Nr, Qn";
  if (a.NumeroOttenuto != b.NumeroOttenuto) return "NumeroOttenuto";
  if (a.Elem1 != b.Elem1 || a.Elem2 != b.Elem2 || a.Elem3 != b.Elem3) return "Elem1..Elem3";
  if (a.N1 != b.N1 || a.N2 != b.N2 || a.N3 != b.N3) return "N1..N3";
  return "";
}

}  // namespace trv5
