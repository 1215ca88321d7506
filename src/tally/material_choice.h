// SPDX-License-Identifier: MIT
#pragma once

#include "data/form_mask.h"
#include "data/kind_mask.h"
#include "tally/selection.h"

namespace rbt {

/// Takes the kinds into the selection; the forms go back to all, since other kinds come in other forms. False
/// for no kind: the kind mask then is none and `IncludeUlbon` stays.
bool TakeKinds(SelectionData& selection, KindMask kinds, bool include_ulbon);

/// The same for floors and parts, where Ulbon is a choice of its own and never beside the kinds.
bool TakeKindsWithoutUlbon(SelectionData& selection, KindMask kinds);
/// Ulbon alone in floors and parts: no kind beside it, the forms stay.
void TakeUlbonAlone(SelectionData& selection);

/// Takes the forms into the selection; false for no form, the mask then is none.
bool TakeForms(SelectionData& selection, FormMask forms);

}  // namespace rbt
