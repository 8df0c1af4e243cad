#pragma once

#include "core/controls.h"
#include "core/program.h"

namespace trv5 {

/// The ready-made betting systems of the main database, each a list of rows over an abstract set of numbers. The user
/// picks as many numbers as a system has, and gets its rows written with these. It only reads the database.
class SistemiOrtogonali : public Form {
 public:
  static constexpr int kHelpContext = 270;
  static constexpr int kMostRows = 99;  ///< of a system: what `FgSy` holds below its heading

  explicit SistemiOrtogonali(Program& program);

  Button Command12{*this, "Command12", "RICARICA"};
  /// The systems: key and width of the rows are hidden.
  GridControl FgSistemi{*this, "FgSistemi", "|Cod|Denominazione|sviluppo"};
  Label LblPromessa{*this, "LblPromessa"};                         ///< what the system under the cursor promises
  Label LblSistema{*this, "LblSistema", "Nessun sistema scelto"};  ///< the name of the system whose rows are shown
  GridControl FGSv1{*this, "FGSv1", "|NuRiga|Qn|Num"};             ///< the rows as they are stored; not on the screen
  /// The rows of the system: its number in column 0, the numbers of the row from column 1 on.
  GridControl FgSy;
  GridControl Fg99{*this, "Fg99", "|"};      ///< the numbers that the system uses, and what replaces each
  GridControl Fg99x{*this, "Fg99x", 6, 15};  ///< the numbers 1..90 to pick from
  Label Label20{*this, "Label20", "0"};      ///< how many are picked; green at as many as the system uses
  Button Command34{*this, "Command34", "PREPARA"};
  Button Command36{*this, "Command36", "SOSTITUISCI ----->>>>>"};
  GridControl fG88;  ///< the rows with the picked numbers
  Button Command9{*this, "Command9", "Stampa formazioni"};
  /// Has no operation: the grid is copied by its own menu.
  Button Command44{*this, "Command44", "Copia tabella"};

  /// Run once when the screen is made.
  void load();

  const Database& database() const { return m_program.mainDatabase(); }

 private:
  Program& m_program;
};

/// "RICARICA": the list of the systems anew.
void CaricaElencoSistemi(SistemiOrtogonali& form);

/// Click on `FgSistemi`: tells what the system promises. Changes nothing else.
void MostraPromessa(SistemiOrtogonali& form, int row);

/// Double click on `FgSistemi`: shows the rows of the system and prepares it. Whatever fails ends with "errore"; the
/// rows shown so far stay.
void CaricaSistema(SistemiOrtogonali& form, int row);

/// "PREPARA": the numbers that the system uses, nothing picked, nothing rewritten.
void PreparaNumeri(SistemiOrtogonali& form);

/// Click on `Fg99x`: picks a number or lets it go; no more are picked than the system uses.
void ScegliNumero(SistemiOrtogonali& form, int row, int column);

/// "SOSTITUISCI": writes the rows with the picked numbers, the smallest in the place of the smallest. Rows are as wide
/// as the system in the list says; 0 stands where a number is still to be picked.
void SostituisciNumeri(SistemiOrtogonali& form);

/// "Stampa formazioni": prints the rewritten rows, upright, margins of 400.
void StampaFormazioni(SistemiOrtogonali& form);

}  // namespace trv5
