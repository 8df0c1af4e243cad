#pragma once

namespace trv5 {

/// How many operations are at work, one inside the other. Operations nest across forms (one may open another screen and
/// drive it), so all forms of a program share one.
class OperationDepth {
 public:
  bool running() const { return m_depth > 0; }
  /// An operation runs another one.
  bool nested() const { return m_depth > 1; }

  /// One operation, as long as this lives.
  class Step {
   public:
    explicit Step(OperationDepth& depth) : m_depth(depth) { ++m_depth.m_depth; }
    ~Step() { --m_depth.m_depth; }
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;

   private:
    OperationDepth& m_depth;
  };

 private:
  int m_depth = 0;
};

}  // namespace trv5
