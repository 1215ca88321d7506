// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

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

  /// Gives the finished file its name, which must be free, and makes that last beyond a power cut. Throws
  /// `file`.
  void PutInPlace(const std::filesystem::path& target);
  /// Gives the finished file the name of another, which stays under `kept`, a name that must be free. At
  /// every moment a file stands under the name. Throws `file`.
  void PutInPlaceOf(const std::filesystem::path& original, const std::filesystem::path& kept);

 private:
  std::filesystem::path path_;
};

}  // namespace rbt::jet
