#include "support/plain_verification.h"

namespace trv5 {
namespace {

void colourFormulas(Grid& table) {
  for (int row = 1; row < table.rows(); ++row) {
    for (int column = 1; column <= 3; ++column) {
      table.setBack(row, column, 0xFFFFC0);
      table.setBack(row, column + 3, 0xC0FFC0);
      table.setBack(row, column + 6, 0xFFE0C0);
    }
    table.setBack(row, 12, 0xFFFFC0);
    table.setBack(row, 13, 0xFFFFC0);
    table.setFore(row, 11, 0xFF0000);
    table.setBold(row, 11);
    table.setFore(row, 13, 0x0000FF);
    table.setBold(row, 13);
  }
}

void copyRows(const Grid& from, Grid& to) {
  to.setRows(1);
  to.setRows(from.rows());
  for (int row = 1; row < from.rows(); ++row)
    for (int column = 0; column < from.columns(); ++column) to.setText(row, column, from.text(row, column));
}

}  // namespace

void PlainWorkbench::Cmd_LaSorte(int kind) {
  Grid& table = kind == 1 ? Fg11 : kind == 2 ? Fg22 : kind == 3 ? Fg33 : Fg00;
  const int from = FgF.current();
  if (from < 1 || table.rows() - 1 >= (kind == 6 ? 10 : 5)) return;
  if (FgF.text(from, 11).empty() && FgF.text(from, 1).empty()) return;
  const int row = table.appendRow();
  for (int column = kind == 6 ? 1 : 0; column < FgF.columns(); ++column)
    table.setText(row, column, FgF.text(from, column));
  for (int r = 1; kind == 6 && r < table.rows(); ++r) table.setNumber(r, 0, r);
  table.setNumber(row, 21, kind);
  if (automatic) tutteLeRighe(kind);
}

void PlainWorkbench::CC(int kind) {
  if (FgF.rows() < 2) return;
  Grid& table = kind == 2 ? Fg22 : kind == 3 ? Fg33 : Fg00;
  Grid& emptied = kind == 3 ? FgZ3 : FgZ2;
  const int column = kind == 2 ? 18 : kind == 3 ? 19 : 22;
  const std::vector<std::string> messagesBefore = messages;
  controls.at("List1") = time + "\n" + time + "\n on";
  state.CasiEsclusi.fill(false);
  for (int i = 1; i < FgEv.rows(); ++i)
    if (FgEv.back(i, column) == 0x00FF00) state.CasiEsclusi[static_cast<std::size_t>(i)] = true;
  copyRows(table, Fg99);
  const int rowsBefore = table.rows();
  for (int i = 1; i < FgF.rows(); ++i) {
    table.setRows(kind == 6 ? rowsBefore : 1);
    FgF.setCurrent(i, FgF.currentColumn());
    Cmd_LaSorte(kind);
    if (onlyUncovered)
      perCc(kind);
    else
      tutteLeRighe(kind);
    const std::string hits = FgSSS.text(0, column - 17), covered = FgSSS.text(1, column - 17);
    if (FgSSS.number(1, column - 17) != FgF.number(i, 13)) FgF.setBack(i, 13, 0x80FF80);
    FgF.setText(i, 13, covered);
    FgF.setText(i, 12, hits);
  }
  if (Fg99.rows() > 1) {
    copyRows(Fg99, table);
    colourFormulas(table);
    for (int row = 1; kind == 6 && row < table.rows(); ++row) {
      table.setBold(row, 0);
      table.setNumber(row, 0, row);
    }
    tutteLeRighe(kind);
  } else {
    table.setRows(1);
    emptied.setRows(1);
    for (int i = 1; i < FgEv.rows(); ++i) {
      FgEv.setBack(i, column, 0xFFFFFF);
      FgEv.setText(i, column, "");
    }
  }
  // However many verifications refused their table, the user is told once.
  if (messages.size() > messagesBefore.size()) messages.resize(messagesBefore.size() + 1);
}

}  // namespace trv5
