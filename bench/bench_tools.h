#pragma once

#include <functional>
#include <vector>

#include "core/archive.h"
#include "maintenance/draw.h"

namespace trv5 {

/// Seconds of processor time of one call, so that other programs of the machine don't count: the median of as many
/// calls as fit `time` seconds, at least three. `before` runs ahead of each call and isn't measured.
double secondsOf(const std::function<void()>& call, double time, const std::function<void()>& before = {});

Archive archiveOfDraws(const std::vector<Draw>& draws);

/// The draws that a bench measures on, told on standard output: the published history given as the first argument,
/// else that beside the checkout, else the simulated draws. As it stands after PROCEDI.
Archive archiveToMeasure(int argc, char** argv);

}  // namespace trv5
