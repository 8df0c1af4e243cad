#include "maintenance/update_grid.h"

namespace trv5 {
namespace {

constexpr int kDate = 1, kFirstWheel = 2;

}  // namespace

void fillUpdateGrid(const std::vector<DrawRow>& rows, Grid& FgImporta) {
  const Grid::Batch batch(FgImporta);
  FgImporta.cutToHeading();
  FgImporta.setRows(FgImporta.headingRows() + static_cast<int>(rows.size()));
  int at = FgImporta.headingRows();
  for (const DrawRow& row : rows) {
    FgImporta.setText(at, kDate, row.date);
    for (int wheel = 0; wheel < kWheels; ++wheel)
      FgImporta.setText(at, kFirstWheel + wheel, row.wheels[static_cast<std::size_t>(wheel)]);
    ++at;
  }
  FgImporta.scrollTo(FgImporta.rows() - 1);
  FgImporta.fitColumns();
}

void markUpdateGrid(const std::vector<UpdateMark>& marks, Grid& FgImporta) {
  const Grid::Batch batch(FgImporta);
  int at = FgImporta.headingRows();
  for (const UpdateMark& mark : marks) {
    if (mark.missing) FgImporta.setBack(at, kDate, kMissingDraw);
    for (int wheel = 0; wheel < kWheels; ++wheel)
      if (mark.agrees[static_cast<std::size_t>(wheel)]) FgImporta.setBack(at, kFirstWheel + wheel, kAgreeingWheel);
    if (mark.wrong) {
      FgImporta.setFore(at, kDate, kWrongDraw);
      FgImporta.setBold(at, kDate);
    }
    ++at;
  }
}

std::vector<DrawRow> updateRows(const Grid& FgImporta) {
  std::vector<DrawRow> rows;
  rows.reserve(static_cast<std::size_t>(FgImporta.dataRows()));
  for (int at = FgImporta.headingRows(); at < FgImporta.rows(); ++at) {
    DrawRow& row = rows.emplace_back();
    row.date = FgImporta.text(at, kDate);
    for (int wheel = 0; wheel < kWheels; ++wheel)
      row.wheels[static_cast<std::size_t>(wheel)] = FgImporta.text(at, kFirstWheel + wheel);
  }
  return rows;
}

bool hasUpdateMarks(const Grid& FgImporta) {
  for (int at = FgImporta.headingRows(); at < FgImporta.rows(); ++at)
    if (const Cell& date = FgImporta.at(at, kDate); date.back == kMissingDraw || date.fore == kWrongDraw) return true;
  return false;
}

std::vector<UpdateOrder> updateOrders(const Grid& FgImporta, bool correctWrongDraws) {
  std::vector<UpdateOrder> orders;
  for (int at = FgImporta.headingRows(); at < FgImporta.rows(); ++at) {
    const Cell& date = FgImporta.at(at, kDate);
    orders.push_back({.add = date.back == kMissingDraw, .correct = correctWrongDraws && date.fore == kWrongDraw});
  }
  return orders;
}

}  // namespace trv5
