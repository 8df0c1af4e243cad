#pragma once

#include <functional>
#include <memory>
#include <string>

#include "cases/result_origins.h"
#include "cases/workbench_state.h"
#include "core/control_state.h"
#include "core/undo_history.h"
#include "core/user_act.h"

namespace trv5 {

class GridControl;
class Workbench;

/// What the workbench remembers beside its controls, as one value: what an operation may change and no control shows
/// has its line here, in its two functions, and is taken back with the rest.
struct WorkbenchMemory {
  WorkbenchState state;
  ResultOrigins origins;
  bool operator==(const WorkbenchMemory&) const = default;

  static WorkbenchMemory of(const Workbench& w);
  void putBack(Workbench& w) const;
  std::size_t bytes() const;
};

/// The whole workbench at one moment.
struct WorkbenchMoment {
  FormState controls;
  std::shared_ptr<const WorkbenchMemory> memory;
  bool operator==(const WorkbenchMoment& other) const;
  std::size_t bytesBeside(const WorkbenchMoment* neighbour) const;
};

/// The operations of the user on one workbench, to be taken back and taken again. A step is an act that changed
/// something; acts that go on along one control (the reference draw, a text being typed) are one step. An archive that
/// was loaded anew ends the story: its steps speak of draws that may be gone.
class WorkbenchHistory final : public ActListener {
 public:
  static constexpr std::size_t kMostBytes = std::size_t{64} << 20;

  explicit WorkbenchHistory(Workbench& w, std::size_t mostBytes = kMostBytes);
  ~WorkbenchHistory();
  WorkbenchHistory(const WorkbenchHistory&) = delete;
  WorkbenchHistory& operator=(const WorkbenchHistory&) = delete;

  /// The story begins here; before, nothing is followed.
  void start();
  /// False, and nothing happens, while an operation is at work or when there is no such step.
  bool undo() { return step(false); }
  bool redo() { return step(true); }
  bool canUndo() const { return m_history.canUndo(); }
  bool canRedo() const { return m_history.canRedo(); }
  std::size_t undoSteps() const { return m_history.undoSteps(); }
  std::size_t redoSteps() const { return m_history.redoSteps(); }
  std::size_t bytes() const { return m_history.bytes(); }
  /// The caption of the operation that would be taken back, or taken again; empty where it has none.
  const std::string& undoName() const { return m_history.undoName(); }
  const std::string& redoName() const { return m_history.redoName(); }

  /// Called after a step that isn't part of a run, with what stood before: offers to take it back where it lost
  /// something.
  std::function<void(const Control& source, const FormState& before)> recorded;
  /// Called when what can be taken back or again has changed.
  std::function<void()> changed;

  void actBegins() override;
  void actEnds(const Control* source, bool moves) override;
  bool typingIn(const Control& control) const override { return m_running == &control; }

 private:
  WorkbenchMoment now() const;
  bool archiveChanged() const;
  bool step(bool forward);
  void tell() const;

  Workbench& m_w;
  UndoHistory<WorkbenchMoment> m_history;
  std::uint64_t m_archive = 0;         // the load of the archive that the steps speak of
  const Control* m_running = nullptr;  // the control of the run that the last act belongs to
};

/// A grid as a state of its form holds it.
const GridState& gridIn(const FormState& state, const GridControl& grid);

/// "Annulla" and "Ripete": take the last operation back, and take it again.
void AnnullaOperazione(Workbench& w);
void RipeteOperazione(Workbench& w);

}  // namespace trv5
