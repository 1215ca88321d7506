// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>

namespace rbt {

/// Settles what becomes of the real Jet files among files of the family (`\RBK\DATA\...`): the user chooses
/// once for each folder whether they are read as they are or taken over, and the choice is remembered. One
/// that is taken over stays beside the new file as `NAME.MDB.jet`, what was taken from it and what was not as
/// `NAME.MDB.jet.txt`; rows that were refused and warnings are told in a message, and so is a file that is
/// taken over by a choice of an earlier run. One that cannot be taken over is told with its cause and read as
/// it is this time, as is one in a folder that takes no files, about which nothing is asked.
void SettleJetFiles(std::initializer_list<std::string> family_paths);

/// Once for each file: a site that is read as it is stands open for reading, and what is saved of it stays in
/// this program. Says nothing of a file of the store.
void TellOfReadingInPlace(const std::filesystem::path& site);

}  // namespace rbt
