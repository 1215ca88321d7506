// SPDX-License-Identifier: MIT
#pragma once

#include "tally/mask_ticks.h"
#include "tally/selection.h"

namespace rbt {

/// Takes the ticked kinds into the selection; the forms go back to all, since other kinds come in other
/// forms. False when no kind is ticked: the kind mask then is 0 and `IncludeUlbon` stays.
bool TakeKinds(SelectionData& selection, const MaskTicks& kinds, bool include_ulbon);

/// The same for floors and parts, where Ulbon is a choice of its own and never beside the kinds.
bool TakeKindsWithoutUlbon(SelectionData& selection, const MaskTicks& kinds);
/// Ulbon alone in floors and parts: no kind beside it, the forms stay.
void TakeUlbonAlone(SelectionData& selection);

/// Takes the ticked forms into the selection; false when none is ticked, the mask then is 0.
bool TakeForms(SelectionData& selection, const MaskTicks& forms);

}  // namespace rbt
