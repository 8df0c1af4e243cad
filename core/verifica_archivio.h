#pragma once

#include "core/controls.h"
#include "core/program.h"

namespace trv5 {

/// Takes the archive as it stands, with the differences in `Program::drawDifferences`, which the user has seen. Throws
/// UserError when it has others by now: they then stand there.
void AccettaEstrazioni(Program& program);

/// The list of the draws that aren't as they were written, as they stand now. The user accepts them, or puts them right
/// elsewhere.
class VerificaArchivio : public Form {
 public:
  explicit VerificaArchivio(Program& program);

  /// Fills the list from `Program::drawDifferences`. Run once when the screen is made, and after each change.
  void load();

  GridControl Fg_Differenze;
  Label LblSpiegazione;
  Button Cmd_Accetta;

 private:
  void Accetta();

  Program& m_program;
};

}  // namespace trv5
