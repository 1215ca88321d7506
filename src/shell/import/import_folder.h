// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "jet/import/import_report.h"

namespace rbt {

/// What became of a DATA folder.
struct FolderReport {
  std::vector<jet::ImportReport> files;
  std::vector<std::string> copied;     ///< taken as they are, databases as they stood at one moment
  std::vector<std::string> made;       ///< what the program needs and the folder lacked
  std::vector<std::string> failed;     ///< files that are damaged or locked by a password, with the cause
  std::vector<std::string> not_taken;  ///< files that this program has no use for
  std::vector<std::string> warnings;   ///< tables or files that are missing
};

/// Takes the DATA folder of a machine with real Jet files, or the one below the root that is given for it,
/// into a new DATA folder below `root`: sites with
/// their companions, the master database, fixed stock lengths, archive template, STEEL.INI and NEXTPRG.INI.
/// `root` is made if need be; a DATA folder in it must not hold anything. The new one appears when it is
/// complete. Files that cannot be read are left out and told, but a master database that is missing or cannot
/// be read ends the import with a `Fault` of kind `file`, and nothing is left behind.
FolderReport ImportDataFolder(const std::filesystem::path& data_folder, const std::filesystem::path& root);

/// The report in lines, for people.
std::string ReportText(const FolderReport& report);

}  // namespace rbt
