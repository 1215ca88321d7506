// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cli/options.h"
#include "tally/tally_result.h"

namespace rbt {

/// The words of the tallies that a command can ask for; of those that fill the diameter-by-length tables.
std::vector<std::string> TallyWords();
std::vector<std::string> GridTallyWords();

/// Opens the site and tallies it under the selection, with a message for what the screen warns of beside its
/// grid. Throws `UsageError` for an unknown word, for `--kinds 0` where floors are not asked for, and for
/// floors that cannot be tallied. `beside` reads what else is wanted of the very state that was tallied.
TallyResult CountAskedTally(const std::string& word, const CommonOptions& common,
                            const SelectionOptions& options, const std::function<void()>& beside = nullptr);

}  // namespace rbt
