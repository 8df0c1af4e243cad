#include "cases/workbench_history.h"

#include <algorithm>

#include "cases/workbench.h"

namespace trv5 {
namespace {

// Captions of three letters and less say little: their tooltip tells what they do.
std::string nameOf(const Control* source) {
  constexpr std::size_t kShort = 3;
  if (const auto* const button = dynamic_cast<const Button*>(source))
    return button->caption().size() > kShort || button->toolTip().empty() ? button->caption() : button->toolTip();
  return dynamic_cast<const Label*>(source) != nullptr ? source->toolTip() : std::string();
}

std::string told(const char* what, const std::string& name) {
  return name.empty() ? std::string(what) + " l'ultima modifica" : std::string(what) + ": " + name;
}

std::size_t bytesOf(const std::vector<Origin>& origins) {
  std::size_t bytes = origins.capacity() * sizeof(Origin);
  for (const Origin& origin : origins) {
    if (origin.cases) bytes += origin.cases->capacity() * sizeof(int);
    for (const auto& rows : origin.formulas)
      if (rows) bytes += rows->capacity() * sizeof(FormulaRow);
  }
  return bytes;
}

std::size_t bytesOf(const ResultOrigins& origins) {
  const TableLuck& luck = origins.luck;
  std::size_t bytes =
      origins.ranking.capacity() + luck.expected.capacity() + luck.balance.capacity() + luck.toolTip.capacity();
  if (const auto& search = origins.lastSearch)
    bytes += search->name.capacity() + search->request.cases.capacity() * sizeof(int) +
             search->request.wheelSets.capacity() * sizeof(WheelSet);
  for (const auto& [grid, made] : origins.made) bytes += sizeof made + sizeof grid + bytesOf(made);
  for (const auto& marks : origins.marks) bytes += bytesOf(marks);
  return bytes;
}

}  // namespace

WorkbenchMemory WorkbenchMemory::of(const Workbench& w) {
  return {.state = w, .origins = w.origins};
}

void WorkbenchMemory::putBack(Workbench& w) const {
  static_cast<WorkbenchState&>(w) = state;
  w.origins = origins;
}

std::size_t WorkbenchMemory::bytes() const {
  return sizeof *this + state.NumeriInGioco.capacity() * sizeof(NumberFlags) + bytesOf(origins);
}

bool WorkbenchMoment::operator==(const WorkbenchMoment& other) const {
  return controls == other.controls && (memory == other.memory || *memory == *other.memory);
}

std::size_t WorkbenchMoment::bytesBeside(const WorkbenchMoment* neighbour) const {
  const bool shared = memory == nullptr || (neighbour != nullptr && neighbour->memory == memory);
  return controls.bytesBeside(neighbour == nullptr ? nullptr : &neighbour->controls) + (shared ? 0 : memory->bytes());
}

WorkbenchHistory::WorkbenchHistory(Workbench& w, std::size_t mostBytes) : m_w(w), m_history(mostBytes) {}

WorkbenchHistory::~WorkbenchHistory() {
  m_w.setActListener(nullptr);
}

void WorkbenchHistory::start() {
  m_w.setActListener(this);
  m_archive = m_w.archive.loadStamp();
  m_running = nullptr;
  m_history.start(now());
  tell();
}

WorkbenchMoment WorkbenchHistory::now() const {
  WorkbenchMoment moment{m_w.Form::state(), m_history.present().memory};
  WorkbenchMemory memory = WorkbenchMemory::of(m_w);
  if (moment.memory == nullptr || !(*moment.memory == memory))
    moment.memory = std::make_shared<const WorkbenchMemory>(std::move(memory));
  return moment;
}

bool WorkbenchHistory::archiveChanged() const {
  return m_archive != m_w.archive.loadStamp();
}

void WorkbenchHistory::tell() const {
  if (changed) changed();
}

void WorkbenchHistory::actBegins() {
  if (archiveChanged()) return start();
  m_history.absorb(now());
}

void WorkbenchHistory::actEnds(const Control* source, bool moves) {
  m_w.shell().offer(nullptr);
  if (archiveChanged()) return start();
  const bool joined = moves && source != nullptr && m_running == source;
  const FormState before = joined ? FormState() : m_history.present().controls;
  if (!m_history.record(now(), nameOf(source), joined)) return;
  m_running = moves ? source : nullptr;
  tell();
  if (!moves && source != nullptr && recorded && m_history.canUndo()) recorded(*source, before);
}

bool WorkbenchHistory::step(bool forward) {
  if (m_w.shell().operations().nested()) return false;
  if (archiveChanged()) start();
  if (!(forward ? canRedo() : canUndo())) return false;
  m_history.absorb(now());
  const WorkbenchMoment& moment = forward ? m_history.redo() : m_history.undo();
  m_w.restore(moment.controls);
  moment.memory->putBack(m_w);
  m_running = nullptr;
  tell();
  return true;
}

const GridState& gridIn(const FormState& state, const GridControl& grid) {
  const std::vector<Control*>& all = grid.form().controls();
  const auto at = std::find(all.begin(), all.end(), &grid) - all.begin();
  return std::get<GridValue>(state.controls.at(static_cast<std::size_t>(at))->value).grid;
}

void AnnullaOperazione(Workbench& w) {
  const std::string name = w.history.canUndo() ? w.history.undoName() : "";
  w.shell().status(w.history.undo() ? told("Annullato", name) : "Non c'è nulla da annullare");
}

void RipeteOperazione(Workbench& w) {
  const std::string name = w.history.canRedo() ? w.history.redoName() : "";
  w.shell().status(w.history.redo() ? told("Ripetuto", name) : "Non c'è nulla da ripetere");
}

}  // namespace trv5
