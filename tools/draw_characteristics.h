#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/archive.h"
#include "core/controls.h"
#include "core/program.h"
#include "tools/number_classes.h"

namespace trv5 {

/// One draw looked at by itself: its numbers, the sums, distances and differences of their pairs and how often each
/// comes up, the classes of the numbers. A click on a value or a class shows which numbers make it. Nothing is stored.
class DiDiSO : public Form {
 public:
  explicit DiDiSO(Program& program);
  DiDiSO(const Archive& archive, Shell& shell);

  const Archive& archive;
  /// The classes that `fG3` shows, again after each change of the draw; none before the first choice.
  std::optional<ClassKind> mode;

  Scroll hs1{*this, "hs1", 1, 1};
  Label Label2{*this, "Label2"}, Label1{*this, "Label1"}, Label3{*this, "Label3"};
  Button Command56{*this, "Command56", "Ultima estrazione"};
  ControlArray<Button> Command42{*this, "Command42", {0, 1}};  ///< 0 by index, 1 by date
  Button Command81{*this, "Command81", "", "Cancella i segni"};
  /// The numbers and their classes: wheels are the rows 1..11, positions the columns 1..5.
  GridControl fG2, fG3;
  Button Command3{*this, "Command3", "DECINE"}, Command4{*this, "Command4", "CADENZE"},
      Command5{*this, "Command5", "FIGURE"}, Command6{*this, "Command6", "RADICALI"},
      Command7{*this, "Command7", "GEMELLI"};
  Button Command1{*this, "Command1", "DS", "Somme e distanze di tutte le coppie"};
  Button Command2{*this, "Command2", "Decine, cadenze, figure uguali"};
  /// The pairs found: measure or class, family, wheel (index from 0, hidden; code) and position of both numbers, value.
  GridControl Fg1{*this, "Fg1", "DDS|Tipo|r|R1|E1|R|R2|E2|VAL"};
  /// How often each value 1..90 comes up: sums, distances, differences, each horizontal, vertical, diagonal.
  GridControl Fg5{*this, "Fg5", "VAL|SO|SV|SD|DO|DV|DD|FO|FV|FD"};
  Button Command8{*this, "Command8"};  ///< counts the frequencies; not on the screen

  /// Run once when the screen is made: the last draw, no classes.
  void load();

 private:
  void connectButtons();
};

/// The button that chooses the classes.
Button& buttonOf(DiDiSO& form, ClassKind kind);

/// Change of `hs1`: that draw without marks, its frequencies, its classes again, no pairs.
void MostraEstrazione(DiDiSO& form);

/// `Fg5` anew. The value 0, which only a difference has, and counters of 0 aren't shown.
void CalcolaFrequenze(DiDiSO& form);

/// "DS": the sums and the distances of all pairs into `Fg1`.
void ElencaSommeDistanze(DiDiSO& form);

/// The pairs of the same decade, last digit or figure into `Fg1`.
void ElencaClassiUguali(DiDiSO& form);

/// The five mode buttons: the class of each number into `fG3`, without marks; empty where a number has none.
void MostraClassi(DiDiSO& form, ClassKind kind);

/// Click on `fG3`: marks the numbers of the clicked cell's class. An empty cell leaves all as it is.
void SegnaClasse(DiDiSO& form, int row, int column);

/// Click on `Fg1`: marks the two numbers of the pair, and empties the classes.
void SegnaCoppia(DiDiSO& form, int row);

/// Click on `Fg5`, columns 1..9: lists and marks the pairs that make the value, and paints a cross that leads to it.
void SegnaValore(DiDiSO& form, int row, int column);

/// What a cell of `Fg5` says: "Somma 40, coppie verticali: 5"; "" for one that is no frequency.
std::string frequencyText(const Grid& Fg5, int row, int column);

}  // namespace trv5
