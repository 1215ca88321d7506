// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "tally/tally_result.h"

namespace rbt {

class DetailForm;

/// The purchase list of a result, made and loaded.
std::unique_ptr<DetailForm> MakeZAIMEI(TallyResult result);

/// Shows the purchase list of a result in place of the active window and returns the result as it is left
/// there.
TallyResult OpenZAIMEI(TallyResult result);

}  // namespace rbt
