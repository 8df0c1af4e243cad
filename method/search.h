#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "core/archive.h"
#include "core/wheels.h"
#include "method/flags.h"
#include "method/formula.h"
#include "method/outcomes.h"

namespace trv5 {

/// The shapes of formula that the searches try: "1N 1R", "2N 1R", "3N 1R", "2N 2R".
enum class Shape : std::uint8_t { OneNumber, TwoOneWheel, ThreeOneWheel, TwoTwoWheels };

/// Elements in a formula of the shape, 1..3.
constexpr int elementsOf(Shape shape) {
  return shape == Shape::OneNumber ? 1 : shape == Shape::ThreeOneWheel ? 3 : 2;
}

/// The elements of a formula: wheels 0..10 and positions 1..5 in the order of the elements; what the shape doesn't use
/// is 0.
struct ElementSet {
  std::array<std::uint8_t, 3> wheels{}, positions{};

  bool operator==(const ElementSet&) const = default;
};

/// How the element sets of two wheels follow each other; all other shapes have one order, by wheel and then by position
/// 1, 2, 3.
enum class SetOrder : std::uint8_t {
  WheelsFirst,   ///< w1, w2, p1, p2: the searches of ambate
  ElementFirst,  ///< w1, p1, w2, p2: the searches of companions
};

/// All element sets of a shape in the order in which the ranking meets them: 55, 110, 11 for each allowed triple of
/// positions, 1375. `triples` is looked at for three elements only.
std::vector<ElementSet> elementSets(Shape shape, SetOrder order, const TripleFlags& triples);

/// What a run evaluates: the shape, what its alteration makes of a drawn number for each element, the operator of two
/// elements. The zero rule is applied by the search.
struct FormulaInput {
  Shape shape = Shape::OneNumber;
  std::array<ElementTable, 3> elements{};
  Operator op = Operator::Sum;
  TripleFlags triples{};  ///< `TerzineAmmesse`, for three elements

  bool operator==(const FormulaInput&) const = default;
};

/// A row of the ranking.
struct Candidate {
  ElementSet elements;
  int fix = 0;       ///< 1..90; 90 is the formula without fix
  int cc = 0;        ///< cases covered
  int pres = 0;      ///< hits, repeats included
  int wheelSet = 0;  ///< index of the wheel set in the request

  bool operator==(const Candidate&) const = default;
};

/// A search of ambate on some wheels, or on each of several sets of wheels in one ranking.
struct AmbataRequest {
  const Archive* archive = nullptr;
  FormulaInput formula;
  std::vector<int> cases;           ///< draw index of each case that counts
  int colpi = 0;                    ///< draws after the case that count
  int lastDraw = 0;                 ///< `EstrazioneRiferimento`: later draws aren't seen
  std::vector<WheelSet> wheelSets;  ///< `RuoteGioco` alone, or the passes of a best-wheel button in their order
  NumberFlags allowedFix{};         ///< `FixAmmessi`, looked at when withFix is set
  bool withFix = false;             ///< clear: only formulas without fix, fix 90 here
  int keep = 0;                     ///< rows of the ranking; none below 1
  /// Best wheels of one number: what a number already seen in the case adds to the presences of the formula without fix
  /// is lost.
  bool repeatsAtZeroGetLost = false;

  bool operator==(const AmbataRequest&) const = default;
};

class FormulaValues;

/// A search of ambate whose element sets have been evaluated in all cases, to be run on any outcomes as often as
/// wanted.
class AmbataSearch {
 public:
  explicit AmbataSearch(const AmbataRequest& request);
  ~AmbataSearch();

  /// The ranking of searchAmbate on these outcomes.
  std::vector<Candidate> run(const Outcomes& outcomes) const { return run(outcomes, m_request.keep); }
  /// The same with another number of rows.
  std::vector<Candidate> run(const Outcomes& outcomes, int keep) const;

  /// How many of all formulas cover each number of cases, from `least` (1 or more) on: by cases, 0 below `least`.
  std::vector<std::int64_t> tally(const Outcomes& outcomes, int least) const;

 private:
  AmbataRequest m_request;
  std::unique_ptr<const FormulaValues> m_values;
};

/// The best formulas: those with the highest CC, and among equals the first by wheel set, fix and element set; that is
/// what is left when each formula in this order, compared with the last row of the ranking, takes its place if it
/// covers more cases, and the ranking is then sorted. No formula without a covered case.
std::vector<Candidate> searchAmbate(const AmbataRequest& request);

/// A hit that a search of companions starts from.
struct CompanionRow {
  int caseDraw = 0;
  int hitDraw = 0;             ///< above 0
  std::vector<int> numbers{};  ///< the numbers in play, 0..90: never companions
};

/// A search of the number that came out together with numbers in play, on the same wheel, in the draw of the hit.
struct CompanionRequest {
  const Archive* archive = nullptr;
  FormulaInput formula;
  std::vector<CompanionRow> rows;
  WheelSet wheels = 0;
  /// How many of the numbers in play a wheel must hold: ambo 1 to 5, terno exactly 2, lunghetta from max(1, Sorte - 1).
  int least = 1, most = 5;
  /// A draw counts for the first row that finds a wheel in it and for no later row, and a companion that came out on
  /// two wheels is one case and two presences. Otherwise each companion on each wheel of each row is both.
  bool guarded = false;
  NumberFlags allowedFix{};
  bool withFix = false;
  int keep = 0;
};

/// A search of companions whose element sets have been evaluated in all cases, to be run on any outcomes as often as
/// wanted. The rows stay what they are, whether the outcomes hold their numbers or not.
class CompanionSearch {
 public:
  explicit CompanionSearch(const CompanionRequest& request);
  ~CompanionSearch();

  /// The ranking of searchCompanions on these outcomes, so many rows of it.
  std::vector<Candidate> run(const Outcomes& outcomes, int keep) const;

 private:
  CompanionRequest m_request;
  std::vector<int> m_place;  // by draw: its place in m_values, -1 for a draw that is no case
  std::unique_ptr<const FormulaValues> m_values;
};

/// The best formulas by CC, among equals the first by fix and element set.
std::vector<Candidate> searchCompanions(const CompanionRequest& request);

/// Cases in which a number was drawn, and how often it was drawn in all.
struct NumberCount {
  int cc = 0, pres = 0;

  bool operator==(const NumberCount&) const = default;
};

/// By number 0..90.
using NumberCounts = std::array<NumberCount, 91>;

/// The pure numbers: how the numbers were drawn in the colpi after the cases, for each wheel set.
std::vector<NumberCounts> countNumbers(const Outcomes& outcomes, const std::vector<int>& cases, int colpi, int lastDraw,
                                       const std::vector<WheelSet>& wheelSets);

/// A hit that pure numbers are counted from.
struct PureNumberRow {
  int caseRow = 0;  ///< row of the case in `FgEv`: what makes two hits one case
  int hitDraw = 0;
  std::vector<int> numbers{};  ///< the numbers in play, 0..90: not counted
};

/// The numbers drawn in the draws of the hits on any of the wheels.
NumberCounts countNumbersAtHits(const Outcomes& outcomes, const std::vector<PureNumberRow>& rows, WheelSet wheels);

}  // namespace trv5
