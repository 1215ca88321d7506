// SPDX-License-Identifier: MIT
#pragma once

namespace rbt {

/// Shows `setZai` over the active form and returns when the kinds are chosen; the selection has them then.
void ChooseKinds();
/// Shows `setZairyou`; the selection has the forms then.
void ChooseForms();
/// Shows `setZaiKaiBui`: the kinds of the floor and part screens, or `UlbonOnly`.
void ChooseKindsOfFloorsAndParts();

}  // namespace rbt
