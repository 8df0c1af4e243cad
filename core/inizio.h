#pragma once

#include "core/controls.h"
#include "core/program.h"

namespace trv5 {

/// The start screen: opens the databases, lets the user choose the archive, loads it and hands over to the shell.
class Inizio : public Form {
 public:
  static constexpr int kHelpContext = 210;

  explicit Inizio(Program& program);

  /// The start of the program, run once when the screen is made. Throws UserError when the main database can't be
  /// used: the program then has to end.
  void load();

  Button Command2, Command3, Command4, CmDHelp;
  Label Label5, Lbl_Archivio, Label1;
  Progress pb1;
  // Working grids, not shown: the table of parameters and the archive as the query gives them.
  GridControl FgP, FgDB;

 private:
  void openArchive();
  void ImpostaInizialix();
  /// The archive to use for a chosen file: itself, or for one in the format of older installations, if the user wants
  /// so, a new archive made out of it. Nothing when that was given up. Throws UserError.
  std::optional<std::filesystem::path> readableArchive(const std::filesystem::path& chosen);
  /// False when the dialog was cancelled. Throws UserError when the choice couldn't be stored; it serves this run then.
  bool SelezionaArchivio();
  void Procedi();

  Program& m_program;
};

}  // namespace trv5
