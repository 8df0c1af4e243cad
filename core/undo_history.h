#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <utility>

namespace trv5 {

/// The moments before and after each step of the user, to go back and forth between them. Bounded in bytes alone: the
/// oldest step goes first. A `Moment` is a value that shares with its neighbours what didn't change; it tells what it
/// takes beside one of them, `bytesBeside(const Moment*)`, null for all of it.
template <class Moment>
class UndoHistory {
 public:
  explicit UndoHistory(std::size_t mostBytes) : m_mostBytes(mostBytes) {}

  /// Forgets every step: the story begins with this moment.
  void start(Moment now) {
    m_undo.clear();
    m_redo.clear();
    m_steps = 0;
    m_present = std::move(now);
    m_presentBytes = m_present.bytesBeside(nullptr);
  }
  const Moment& present() const { return m_present; }

  /// What changed since the last step and is none by itself.
  void absorb(Moment now) {
    if (!(now == m_present)) moveOn(std::move(now));
  }

  /// A step named `name` has led from the present to `now`. False when nothing differs: there is no step then. With
  /// `joined` it goes on with the step before, unless that has been taken back; a run that ends where it began is gone.
  bool record(Moment now, std::string name, bool joined = false) {
    if (now == m_present) return false;
    joined = joined && !m_undo.empty() && m_redo.empty();
    drop(m_redo);
    if (!joined) {
      const std::size_t own = m_present.bytesBeside(&now);
      m_undo.push_back({m_present, std::move(name), own});
      m_steps += own;
    } else if (m_undo.back().moment == now) {
      m_steps -= m_undo.back().own;
      m_undo.pop_back();
    }
    moveOn(std::move(now));
    fit();
    return true;
  }

  bool canUndo() const { return !m_undo.empty(); }
  bool canRedo() const { return !m_redo.empty(); }
  /// Of the step that would be taken back, or taken again.
  const std::string& undoName() const { return m_undo.back().name; }
  const std::string& redoName() const { return m_redo.back().name; }
  /// The moment before the last step, which becomes the present. There must be one.
  const Moment& undo() { return step(m_undo, m_redo); }
  const Moment& redo() { return step(m_redo, m_undo); }

  std::size_t undoSteps() const { return m_undo.size(); }
  std::size_t redoSteps() const { return m_redo.size(); }
  /// What the present and all steps take, the shared counted once.
  std::size_t bytes() const { return m_presentBytes + m_steps; }

 private:
  // On the one side of the present or on the other: `own` is what it takes beside its neighbour towards the present.
  struct Step {
    Moment moment;
    std::string name;
    std::size_t own;
  };
  using Steps = std::deque<Step>;

  const Moment& step(Steps& from, Steps& to) {
    Step taken = std::move(from.back());
    from.pop_back();
    m_steps -= taken.own;
    const std::size_t own = m_present.bytesBeside(&taken.moment);
    to.push_back({std::move(m_present), std::move(taken.name), own});
    m_steps += own;
    m_present = std::move(taken.moment);
    m_presentBytes = m_present.bytesBeside(nullptr);
    return m_present;
  }

  void moveOn(Moment now) {
    m_presentBytes += now.bytesBeside(&m_present);
    m_presentBytes -= m_present.bytesBeside(&now);
    m_present = std::move(now);
    for (Steps* const steps : {&m_undo, &m_redo}) {
      if (steps->empty()) continue;
      Step& next = steps->back();
      m_steps -= next.own;
      next.own = next.moment.bytesBeside(&m_present);
      m_steps += next.own;
    }
  }

  void drop(Steps& steps) {
    for (const Step& gone : steps) m_steps -= gone.own;
    steps.clear();
  }

  void fit() {
    while (bytes() > m_mostBytes && !m_undo.empty()) {
      m_steps -= m_undo.front().own;
      m_undo.pop_front();
    }
  }

  std::size_t m_mostBytes;
  Steps m_undo, m_redo;
  Moment m_present;
  std::size_t m_presentBytes = 0, m_steps = 0;
};

}  // namespace trv5
