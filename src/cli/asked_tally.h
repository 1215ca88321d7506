// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "cli/options.h"
#include "tally/tally_result.h"

namespace rbt {

/// The words of the tallies that a command can ask for.
std::vector<std::string> TallyWords();

/// Opens the site and tallies it under the selection, with a message for what the screen warns of beside its
/// grid. Throws `UsageError` for an unknown word and for `--kinds 0`.
TallyResult CountAskedTally(const std::string& word, const CommonOptions& common,
                            const SelectionOptions& options);

}  // namespace rbt
