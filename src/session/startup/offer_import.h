// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>

namespace rbt {

/// Asks whether to take over a real Jet file that stands under its name in the root, and does so on yes: the
/// Jet file stays beside it as `NAME.MDB.jet`, what was taken from it and what was not as
/// `NAME.MDB.jet.txt`; rows that were refused and warnings are told in a message. True when a store file
/// stands there now. A file that is no Jet file, or is not there, is left alone without a word. A Jet file
/// that cannot be taken over throws `Fault` of kind `file`, and nothing has changed.
bool OfferImport(const std::filesystem::path& file);

/// The same for several files of the family, `\RBK\DATA\...`.
void OfferImports(std::initializer_list<std::string> family_paths);

}  // namespace rbt
