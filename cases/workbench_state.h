#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/wheels.h"
#include "method/evaluation.h"
#include "method/flags.h"

namespace trv5 {

/// What the workbench remembers beside its controls. Operations set these fields from the controls when they run, and
/// later operations read them as they stand: much of it is stale on purpose. "Unread": kept for the layers to come.
struct WorkbenchState {
  // Set by the detection of the cases.
  std::string TipoRilevazione;
  int RuotaRilevazione = 0;  ///< wheel 0..10
  WheelSet RuoteRilevazione = 0;
  WheelSet RuoteGioco = 0;  ///< the wheels of play; rebuilt from `FgRG` at few, fixed moments
  PositionFlags PosizioniScelte{};
  PositionFlags PosizioniColpite{};  ///< of the draw examined last; "Ciclo" paints with what it finds here
  NumberFlags NumeriScelti{};
  std::array<bool, 10> DecineScelte{}, CadenzeScelte{}, FigureScelte{};  ///< of those numbers; unread
  std::string TestoNumeri;
  int Elenco = 0;  ///< rows that a ranking keeps
  int Retro = 0;
  int QNR1 = 1, QNR2 = 1;
  /// Draws after a case that count. One field for all: the detection and the searches that read `ComboColpi` set it,
  /// verifications take it as it stands.
  int Colpi = 10;
  int ValoreMensile = 0;
  int QuantiNumeri = 1;
  int MaxCasi = 10;
  int NumeroCasi = 0;             ///< cases found by the last detection, before the cut to 50; unread
  int EstrazioneRiferimento = 0;  ///< the reference draw: value of `hs1`

  // Formulas and searches.
  ParametriFormula Formula;
  NumberFlags FixAmmessi{};  ///< fix values that a search may use; index 0 is never set
  TripleFlags TerzineAmmesse{};
  /// The sorte 1..5 that searches, single-row verification and lunghetta work for; outlives the call that set it, and
  /// `Cmd_Elabora100` leaves it at 1.
  int Sorte = 1;
  /// Operator literal of the last companion search that knew its operator; others leave it and write it all the same.
  std::string OperazioneCorrente;

  // Verification.
  int TipoVerifica = 0;                ///< 1 ambate, 2 ambi, 3 terni, 6 lunghetta; unread
  std::array<int, 6> EsitiPerSorte{};  ///< hits by quantity of numbers 1..5
  int CasiInCorso = 0;                 ///< cases with fewer than `Colpi` draws after them
  /// Numbers in play by [case + offset of the kind][number]: ambate 0, ambi 50, terni 100, lunghette 250.
  std::vector<NumberFlags> NumeriInGioco = std::vector<NumberFlags>(301);
  CaseFlags CasiEsclusi{};     ///< cases that the verifications behind CC skip
  CaseFlags CasiVerificati{};  ///< cases that the last verification behind CC hit; unread
  /// The sorte 1..3 that `FgConv` counts, 0 before the first count: its tooltips look behind the counts.
  int SorteConvergenze = 0;
  CaseFlags CasiCoperti{}, CasiQuasi{};  ///< lunghetta: covered cases, and those one number short of the sorte

  bool operator==(const WorkbenchState&) const = default;
};

}  // namespace trv5
