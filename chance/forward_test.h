#pragma once

#include <chrono>
#include <optional>
#include <vector>

#include "chance/intervals.h"
#include "chance/workers.h"
#include "method/detection.h"
#include "method/search.h"

namespace trv5 {

/// The draws of all cases of a situation from its reference draw back, however many; the oldest first.
std::vector<int> allCases(const Archive& archive, Situation situation);

/// What is walked through the archive: a search that sees only what was known at the time.
struct ForwardRequest {
  /// The search; its own cases and the length of its ranking aren't looked at. Cases whose colpi aren't over by its
  /// `lastDraw` are no tests.
  AmbataRequest search;
  std::vector<int> cases = {};  ///< of the situation, the oldest first
  int learnt = 30;              ///< cases that each search learns from, at least 1
  /// By case: none learns from it, though it may be a test. Empty for none.
  std::vector<bool> passedOver = {};
};

/// A case that the formula found on the cases before it was played in.
struct ForwardTest {
  int draw = 0;       ///< of the case
  Candidate formula;  ///< the first row of the search; its `cc` is the cover on the cases learnt from
  int number = 0;     ///< that it gave, 1..90
  int colpo = 0;      ///< of its first hit, 0 for none
  double chance = 0;  ///< to be covered by any number fixed beforehand, by the wheel draws of play
  /// Covered less expected so far, and the bounds that about 95 of 100 archives drawn by luck keep at this
  /// test.
  double ahead = 0, low = 0, high = 0;
};

struct ForwardFigures {
  std::vector<ForwardTest> tests;  ///< the oldest first
  int covered = 0;
  double expected = 0;  ///< covered by luck, on average
  double atLeast = 1;   ///< the chance of luck to cover as many or more
  Interval share;       ///< of tests covered (Wilson)
};

/// Goes through the cases from the oldest on. A case is a test when at least `learnt` cases before it had their colpi
/// over before its own draw, and it doesn't fall into the colpi of the test before, so that the tests don't hang on
/// each other. Of the cases before, the last `learnt` are searched, and the first row plays in the colpi of the case.
/// Cases with no wheel of play drawn, and searches that find nothing, are no tests.
class ForwardWalk {
 public:
  /// The archive of the search must outlive the walk, and stay as it is.
  explicit ForwardWalk(ForwardRequest request);

  /// Cases to be tested, and those that have been.
  int planned() const { return static_cast<int>(m_planned.size()); }
  int done() const { return m_done; }
  bool over() const { return m_done == planned(); }

  /// Walks on for about so long, by one case at least. What it finds hangs neither on the time nor on the threads.
  void advance(std::chrono::milliseconds time, const Workers& workers = {});
  /// Walks on for so many cases. Stopped, it stands behind the last case without a gap before it.
  void advance(int cases, const Workers& workers = {});

  /// Of the cases tested so far.
  ForwardFigures figures() const;

 private:
  // A case to be tested, and how many of those that may be learnt from its search knows.
  struct Planned {
    int draw = 0;
    std::size_t known = 0;
  };
  void plan();
  std::optional<ForwardTest> makeTest(const Planned& planned) const;

  ForwardRequest m_request;
  std::vector<int> m_learnable;  // draws of the cases that may be learnt from, the oldest first
  std::vector<Planned> m_planned;
  std::vector<std::optional<ForwardTest>> m_made;
  int m_done = 0;
  int m_batch = 1;  // cases that take a few milliseconds
};

/// The whole walk at once. Stopped, it gives no test at all.
ForwardFigures testForward(const ForwardRequest& request, const Workers& workers = {});

}  // namespace trv5
