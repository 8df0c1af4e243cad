#include "tools/draw_characteristics.h"

#include <fmt/format.h>

#include <string>
#include <utility>

#include "core/draw_panel.h"
#include "tools/draw_pairs.h"

namespace trv5 {
namespace {

constexpr std::array kAllFamilies = {Family::Horizontal, Family::Vertical, Family::Diagonal};

// The classes in which pairs are compared, as the list of pairs calls them.
struct PairClass {
  std::string_view label;
  const NumberTable& table;
};
constexpr std::array<PairClass, 3> kPairClasses = {
    {{"Decina ", TabDecina}, {"cadenze ", TabCadenza}, {"Figure ", TabFigura}}};

constexpr std::array<Button DiDiSO::*, kClassKinds> kClassButtons = {
    &DiDiSO::Command3, &DiDiSO::Command4, &DiDiSO::Command5, &DiDiSO::Command6, &DiDiSO::Command7};

DrawNumbers numbersOf(const DiDiSO& form) {
  return numbersOfDraw(form.archive, form.hs1.value());
}

void addPair(Grid& Fg1, std::string_view label, Family family, const NumberPair& pair, int value) {
  const int row = Fg1.appendRow();
  Fg1.setText(row, 0, label);
  Fg1.setText(row, 1, traitsOf(family).label);
  Fg1.setNumber(row, 2, pair.wheel1);
  Fg1.setText(row, 3, CodiciRuote[pair.wheel1]);
  Fg1.setNumber(row, 4, pair.position1);
  Fg1.setNumber(row, 5, pair.wheel2);
  Fg1.setText(row, 6, CodiciRuote[pair.wheel2]);
  Fg1.setNumber(row, 7, pair.position2);
  Fg1.setNumber(row, 8, value);
}

// What the columns 1..9 of `Fg5` count.
std::pair<Measure, Family> blockOfColumn(int column) {
  return {static_cast<Measure>((column - 1) / kFamilies), static_cast<Family>((column - 1) % kFamilies)};
}

// Twelve empty rows.
void emptyClasses(Grid& fG3) {
  const Grid::Batch batch(fG3);
  fG3.cutToHeading();
  fG3.setRows(kWheels + 1);
}

void mark(Grid& fG2, const NumberPair& pair) {
  fG2.setBack(pair.wheel1 + 1, pair.position1, Verde);
  fG2.setBack(pair.wheel2 + 1, pair.position2, Verde);
}

// The clicked cell in green, its value in red, and what leads to it from above and from the left in pale green.
void paintCross(Grid& Fg5, int row, int column) {
  for (int r = 1; r < Fg5.rows(); ++r) {
    for (int c = 0; c < Fg5.columns(); ++c) Fg5.setBack(r, c, kWhite);
    Fg5.setFore(r, 0, kBlack);
    Fg5.setBold(r, 0);
  }
  Fg5.setBack(row, column, Verde);
  Fg5.setFore(row, 0, Rosso);
  for (int r = 1; r < row; ++r) Fg5.setBack(r, column, VerdeChiaro);
  for (int c = 1; c < column; ++c) Fg5.setBack(row, c, VerdeChiaro);
}

}  // namespace

DiDiSO::DiDiSO(Program& program) : DiDiSO(program.archive, program.shell) {
  keep(program.archiveReloaded.subscribe([this] { MostraEstrazione(*this); }));
}

DiDiSO::DiDiSO(const Archive& draws, Shell& shell)
    : Form(shell, "DiDiSO", "Caratteristiche estrazione"),
      archive(draws),
      fG2(*this, "fG2", kDrawHeading),
      fG3(*this, "fG3", kDrawHeading) {
  Command42[0].setCaption("Ricerca per numero indice");
  Command42[1].setCaption("Cerca estrazione per data");
  Fg1.setEmptyText("Fai clic su un valore della tabella a destra o premi DS");
  connectButtons();
}

void DiDiSO::connectButtons() {
  hs1.onEvent([this] { MostraEstrazione(*this); });
  Command56.onEvent([this] { moveToDraw(hs1, archive, archive.UltimaEstrazione()); });
  Command42[0].onEvent([this] {
    if (const auto draw = askDrawByIndex(shell(), archive)) moveToDraw(hs1, archive, *draw);
  });
  Command42[1].onEvent([this] {
    if (const auto place = askDrawByDate(shell(), archive)) moveToDraw(hs1, archive, *place);
  });
  Command81.onEvent([this] {
    whitenNumbers(fG2);
    whitenNumbers(fG3);
  });
  Command8.onEvent([this] { CalcolaFrequenze(*this); });
  Command1.onEvent([this] { ElencaSommeDistanze(*this); });
  Command2.onEvent([this] { ElencaClassiUguali(*this); });
  for (int kind = 0; kind < kClassKinds; ++kind)
    buttonOf(*this, static_cast<ClassKind>(kind)).onEvent([this, kind] {
      MostraClassi(*this, static_cast<ClassKind>(kind));
    });
  fG3.onCellClick([this](int row, int column) { SegnaClasse(*this, row, column); });
  Fg1.onCellClick([this](int row, int) { SegnaCoppia(*this, row); });
  Fg5.onCellClick([this](int row, int column) { SegnaValore(*this, row, column); });
}

void DiDiSO::load() {
  writeWheelCodes(fG2);
  for (int row = 1; row < fG2.rows(); ++row) fG2.setBold(row, 0);
  emptyClasses(fG3);
  for (const int column : {2, 5}) Fg1.setColumnHidden(column);
  fG3.setColumnHidden(0);
  hs1.setMaximum(archive.UltimaEstrazione());
  hs1.set(archive.UltimaEstrazione());
  // An archive of one draw moves no scroll bar.
  MostraEstrazione(*this);
}

Button& buttonOf(DiDiSO& form, ClassKind kind) {
  return form.*kClassButtons[static_cast<std::size_t>(kind)];
}

void MostraEstrazione(DiDiSO& form) {
  showDraw(form.archive, {form.hs1, form.Label2, form.Label1, form.Label3, form.fG2});
  CalcolaFrequenze(form);
  if (form.mode) MostraClassi(form, *form.mode);
  form.Fg1.cutToHeading();
}

void CalcolaFrequenze(DiDiSO& form) {
  const Frequencies counts = frequenciesOf(numbersOf(form));
  Grid& Fg5 = form.Fg5;
  const Grid::Batch batch(Fg5);
  Fg5.cutToHeading();
  Fg5.setRows(91);
  for (int value = 1; value <= 90; ++value) {
    Fg5.setNumber(value, 0, value);
    for (std::size_t block = 0; block < counts.size(); ++block)
      if (const int count = counts[block][static_cast<std::size_t>(value)]; count > 0)
        Fg5.setNumber(value, static_cast<int>(block) + 1, count);
  }
}

void ElencaSommeDistanze(DiDiSO& form) {
  const DrawNumbers numbers = numbersOf(form);
  Grid& Fg1 = form.Fg1;
  const Grid::Batch batch(Fg1);
  Fg1.cutToHeading();
  for (const Measure measure : {Measure::Sum, Measure::Distance}) {
    const MeasureTraits& traits = traitsOf(measure);
    for (const Family family : kAllFamilies)
      for (const NumberPair& pair : pairsOf(family))
        addPair(Fg1, traits.label, family, pair, traits.of(firstNumber(numbers, pair), secondNumber(numbers, pair)));
  }
  Fg1.fitColumns();
  form.shell().status(fmt::format("DS: {} righe, una somma e una distanza per coppia", Fg1.dataRows()));
}

void ElencaClassiUguali(DiDiSO& form) {
  const DrawNumbers numbers = numbersOf(form);
  Grid& Fg1 = form.Fg1;
  const Grid::Batch batch(Fg1);
  Fg1.cutToHeading();
  for (const PairClass& shared : kPairClasses)
    for (const Family family : kAllFamilies)
      for (const NumberPair& pair : pairsAlike(numbers, shared.table, family)) {
        const int value = shared.table[static_cast<std::size_t>(firstNumber(numbers, pair))];
        addPair(Fg1, std::string(shared.label) + std::to_string(value), family, pair, value);
      }
  Fg1.fitColumns();
  form.shell().status(fmt::format("Decine, cadenze, figure uguali: {} coppie", Fg1.dataRows()));
}

void MostraClassi(DiDiSO& form, ClassKind kind) {
  for (int other = 0; other < kClassKinds; ++other) buttonOf(form, static_cast<ClassKind>(other)).setBack(GialloMedio);
  buttonOf(form, kind).setBack(VerdeMedio);
  form.mode = kind;
  whitenNumbers(form.fG2);
  const Grid::Batch batch(form.fG3);
  emptyClasses(form.fG3);
  const DrawNumbers numbers = numbersOf(form);
  for (int wheel = 0; wheel < kWheels; ++wheel)
    for (int p = 1; p <= kPositions; ++p)
      if (const auto entry =
              traitsOf(kind).of(numbers[static_cast<std::size_t>(wheel)][static_cast<std::size_t>(p - 1)]))
        form.fG3.setNumber(wheel + 1, p, *entry);
}

void SegnaClasse(DiDiSO& form, int row, int column) {
  if (row < 1 || column < 1) return;
  const std::string value = form.fG3.text(row, column);
  if (value.empty()) return;
  const Grid::Batch numbers(form.fG2), classes(form.fG3);
  whitenNumbers(form.fG2);
  whitenNumbers(form.fG3);
  int found = 0;
  for (int r = 1; r <= kWheels; ++r)
    for (int c = 1; c <= kPositions; ++c) {
      if (form.fG3.text(r, c) != value) continue;
      form.fG2.setBack(r, c, Verde);
      form.fG3.setBack(r, c, Verde);
      ++found;
    }
  if (form.mode)
    form.shell().status(
        fmt::format("{} {}: {} {}", traitsOf(*form.mode).name, value, found, found == 1 ? "numero" : "numeri"));
}

void SegnaCoppia(DiDiSO& form, int row) {
  if (row < 1) return;
  emptyClasses(form.fG3);
  const Grid::Batch batch(form.fG2);
  whitenNumbers(form.fG2);
  const auto cell = [&form, row](int column) { return static_cast<std::uint8_t>(form.Fg1.number(row, column)); };
  mark(form.fG2, {cell(2), cell(4), cell(5), cell(7)});
}

void SegnaValore(DiDiSO& form, int row, int column) {
  if (row < 1 || column < 1) return;
  emptyClasses(form.fG3);
  const Grid::Batch marks(form.fG2), pairs(form.Fg1), cross(form.Fg5);
  whitenNumbers(form.fG2);
  form.Fg1.cutToHeading();
  paintCross(form.Fg5, row, column);
  const int value = form.Fg5.number(row, 0);
  const auto [measure, family] = blockOfColumn(column);
  for (const NumberPair& pair : pairsWith(numbersOf(form), measure, family, value)) {
    mark(form.fG2, pair);
    addPair(form.Fg1, traitsOf(measure).label, family, pair, value);
  }
  form.Fg1.fitColumns();
  form.shell().status(frequencyText(form.Fg5, row, column));
}

std::string frequencyText(const Grid& Fg5, int row, int column) {
  if (row < 1 || row >= Fg5.rows() || column < 1 || column >= Fg5.columns()) return "";
  const auto [measure, family] = blockOfColumn(column);
  return fmt::format("{} {}, coppie {}: {}", traitsOf(measure).label, Fg5.text(row, 0), traitsOf(family).pairs,
                     Fg5.number(row, column));
}

}  // namespace trv5
