#pragma once

#include "cases/workbench.h"
#include "method/candidate_check.h"

namespace trv5 {

/// What the rows of `FgF` are verified against, as things stand before.
CandidateRequest candidateRequest(const Workbench& w, Table table);

/// "CC" of the ambi, the terni or the lunghetta: replaces the quick counts of the rows of `FgF` by those of a real
/// verification of each row, and leaves the workbench as a run through all of them, one by one, would. A count that
/// differs from the search's is marked.
void VerificaCandidati(Workbench& w, Table table);

}  // namespace trv5
