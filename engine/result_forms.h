#pragma once

#include "core/controls.h"
#include "core/program.h"

namespace trv5 {

// Small screens that show one grid, which an operation of another screen fills.

/// "Elenco": the hits of the lunghetta with all their columns.
class ElencoRiscontri : public Form {
 public:
  explicit ElencoRiscontri(Shell& shell);
  explicit ElencoRiscontri(const Program& program) : ElencoRiscontri(program.shell) {}

  GridControl Fg1;
  Button Stampa_Fg1, Pulisce_Fg1, Copia_Fg1;
};

/// "Sfaldamenti configurazioni": the saved configurations that have come out.
class Speciale : public Form {
 public:
  explicit Speciale(Shell& shell);
  explicit Speciale(const Program& program) : Speciale(program.shell) {}

  GridControl Fg1;
};

}  // namespace trv5
