// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

#include "platform/files/file_descriptor.h"

namespace rbt {

/// What the names of files and folders in work begin with there.
inline constexpr std::string_view kWorkPlaceMark = ".rbk-import-";

/// The folder in which an import has its files in work, under names of its own that no program of the family
/// looks for. What an import that was killed has left there goes first, unless another import is at work in
/// the folder.
class WorkPlace {
 public:
  /// A folder that does not exist or that the file system cannot lock is left as it is. Throws `locked` when
  /// another program keeps it for itself.
  explicit WorkPlace(std::filesystem::path folder);

  /// A name in the folder that nothing stands under.
  std::filesystem::path NewName() const;

 private:
  std::filesystem::path folder_;
  FileDescriptor lock_;  ///< shared by all imports that are at work in the folder, held until the end
};

/// Removes files and folders in work that programs of any kind have left in a folder more than a day ago,
/// unless somebody is at work there.
void RemoveOldLeftovers(const std::filesystem::path& folder);

}  // namespace rbt
