// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

#include "jet/import/work_place.h"

namespace rbt::jet {

/// A name beside a file for one that is to take its place; whatever stands under it goes with the object
/// unless it was put in place.
class FileInWork {
 public:
  explicit FileInWork(const std::filesystem::path& beside);
  FileInWork(const FileInWork&) = delete;
  FileInWork& operator=(const FileInWork&) = delete;
  ~FileInWork();

  const std::filesystem::path& Path() const { return path_; }
  /// Makes the file with these bytes. Throws `file`.
  void Write(std::string_view bytes) const;

  /// Gives the finished file its name, which must be free, and makes that last beyond a power cut. Throws
  /// `file`.
  void PutInPlace(const std::filesystem::path& target);
  /// The same over whatever file stands there, whose permissions it takes over.
  void PutInPlaceOf(const std::filesystem::path& original);

 private:
  WorkPlace place_;
  std::filesystem::path path_;
};

/// Throws `file` when `KeepUnder` may not use the name: something else than the file itself stands there.
void RequireKeepable(const std::filesystem::path& original, const std::filesystem::path& kept);
/// Gives a file a second name beside it, or a copy where the file system has no second names; one that an
/// earlier run has left will do. True when it was made now. Throws `file`.
bool KeepUnder(const std::filesystem::path& original, const std::filesystem::path& kept);

}  // namespace rbt::jet
