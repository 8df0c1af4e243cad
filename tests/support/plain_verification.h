#pragma once

#include <string>
#include <vector>

#include "support/workbench_snapshot.h"

namespace trv5 {

/// A copy of the workbench on which the verifications are done as their rules tell them, step by step and on text
/// cells: what the engine must leave in every grid and field.
class PlainWorkbench : public WorkbenchSnapshot {
 public:
  explicit PlainWorkbench(const Workbench& w);
  PlainWorkbench(const PlainWorkbench&) = delete;
  PlainWorkbench& operator=(const PlainWorkbench&) = delete;

  void Command21();             ///< one row of `Fg11`
  void Command22();             ///< one row of `FgF`
  void tutteLeRighe(int kind);  ///< kind 1, 2, 3, 6
  void perCc(int kind);         ///< kind 2, 3, 6
  void oltreLimite(int kind);
  void proseguiCasiAperti();  ///< of oltreLimite(1) the walk over the open cases and what follows it
  void Cmd_LaSorte(int kind);
  void CC(int kind);  ///< kind 2, 3, 6
  void Cmd_Elabora100();
  void RicavaElementiReali();
  void ContaEsitix();
  void CreaStatistica();
  void PopolaGrafico();
  static void coloraEsiti(Grid& hits);

  std::vector<std::string> messages;

  const Archive& archive;
  int sorteChosen;     ///< list index of `ComboSorte` + 1, which is also its text
  bool ownWheels;      ///< `Check3`
  bool onlyUncovered;  ///< `Ch_Scoperti`
  bool automatic;      ///< `ChVerifica`
  std::string time;    ///< what `List1` shows of the present moment
  Grid &FgRG, &FgEv, &FgSSS, &FgF, &Fg11, &Fg22, &Fg33, &Fg00;
  Grid &FgZ1, &FgZ2, &FgZ3, &FgZ0, &FgZ100, &Fg15, &Fg_Stat, &Fg_Graf, &Fg99;

 private:
  struct Kind;
  enum class Mode { All, ForCc, BeyondLimit };

  Kind kindOf(int code);
  void verify(int code, Mode mode);
  /// The hits of one case; returns how many.
  int numbersOfCase(const Kind& kind, int i, int lastDraw);
  int setsOfCase(const Kind& kind, int i, int lastDraw, bool paint);
  int lunghettaOfCase(const Kind& kind, int i, int lastDraw, bool paint);
  void closeAll(const Kind& kind);
  void closeForCc(const Kind& kind);
  void closeBeyondLimit(const Kind& kind);

  void elaborateCase(int i, int wanted);
  void singleRow(const Grid& formulas, bool inlineEvaluation);
  void playRowWheels(const Grid& formulas, int row);
  void evaluateInline(const Grid& formulas, int row);
  void markOpen();
  void countOpen(Grid& hits);
  int appendHit(Grid& hits, int i, int draw, int wheel) const;
  void appendMiss(Grid& hits, int i) const;
  bool plays(int wheel) const { return holds(state.RuoteGioco, wheel); }
  int drawn(int draw, int wheel, int k) const { return archive.number(draw, wheel, k); }
  bool isOpen(int i) const { return state.EstrazioneRiferimento - FgEv.number(i, 1) < state.Colpi; }
};

}  // namespace trv5
