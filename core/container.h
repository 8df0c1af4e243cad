#pragma once

#include <vector>

#include "core/controls.h"
#include "core/program.h"

namespace trv5 {

/// The shell: the window inside which all other screens open, with the state of the archive and its list.
class Container : public Form {
 public:
  static constexpr int kHelpContext = 220;

  explicit Container(Program& program);
  ~Container() override;

  /// Run once when the screen is made.
  void load();

  /// The status block, from the model archive.
  void ImpostazioniArchivioModello();
  /// Refills `FG5` from the archive in memory.
  void CaricaFG5();

  /// Says which draws aren't as they were written; without any, and in the bar once the user has looked, the texts are
  /// empty.
  void MostraVerifica();

  Button Command4, Command1, Command5, Command6, Command2, Command3, Command7, Command33, Command45;
  // Headings of the three columns and captions of the rows of the status block.
  Label LblTitoloInizio, LblTitoloFine, LblTitoloNE;
  Label LblDataInizio, LblDataFine, LblIndiceInizio, LblIndiceFine, LblModello;
  Label LblInizio, LblFine, Lbl_inizioNE, Lbl_fineNE, Lbl_Ev;
  Button
      Cmd_Verifica;    ///< opens the list of the draws that aren't as they were written; hidden while it has no caption
  Label Lbl_Verifica;  ///< the same in the status bar until the user has looked
  Progress Pb1;
  GridControl FG5;

 private:
  void connectButtons();
  void opens(Button& button, std::string screen);

  Program& m_program;
};

}  // namespace trv5
