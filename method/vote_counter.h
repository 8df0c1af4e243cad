#pragma once

#include "method/flags.h"
#include "method/formula_values.h"
#include "method/ranking.h"
#include "method/vote_rings.h"

namespace trv5 {

/// The counting of all searches: how many votes each formula has, and which formulas have the most.
///
/// A formula is an element set and a fix. In a case the element set has the raw value V, and a number n votes for the
/// one fix that turns V into n, n - V modulo 90. Seen from the element set, the votes for its 90 fixes are the votes of
/// the case read off from residue V on, once around; over all cases its 90 counters are the sums of as many rings, each
/// turned by the V of its case. Nothing enumerates fixes or looks at a draw.
///
/// The sums run on bit planes. Plane j holds bit j of every counter, so one register holds one plane of 256 counters,
/// and adding a bit to all of them costs a few logical operations. Turned rings are read as they lie, beginning at V,
/// and join the planes by carry-save adders: one adder takes three rows of a weight and leaves one of the same weight
/// and one of the double. Sixteen rows at a time go through a tree of fifteen adders (the scheme known as Harley-Seal),
/// which leaves about five operations a row for 256 counters; only one carry in sixteen rows ripples through the upper
/// planes. Votes that count more than once come in levels, bit l of their weights in level l, and the adders of a level
/// work on the planes from l upward.
///
/// The ranking's threshold costs nothing for counters: the planes don't start at 0 but at such a value that a counter
/// reaches the highest plane exactly when its count reaches the threshold. What is not 0 there, among the fixes that
/// are allowed, is looked at one by one.
///
/// With one wheel set an element set has 90 counters and a register takes two element sets. With several wheel sets
/// (the best-wheel searches) the ring has a row of bits in each residue, one for each wheel set: the same adders count
/// all wheel sets of an element set in one stream of 90 rows, and there is no pass of its own for a wheel set.
///
/// `values` holds the raw values for the cases in the order of rings.cases(). Of the fixes only those flagged, 1..90,
/// are offered to the ranking; `fix 90` is the formula without fix.
void rankVotes(const VoteRings& rings, const FormulaValues& values, const NumberFlags& fixes, Ranking& ranking);

}  // namespace trv5
