// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "tally/tally_result.h"

namespace rbt {

/// A result of the bound site in the form of `--format`: its grid as a table or as CSV, or JSON.
std::string ResultText(const TallyResult& result, const std::string& format);

}  // namespace rbt
