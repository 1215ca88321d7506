// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

#include "platform/files/file_descriptor.h"
#include "platform/files/work_place.h"

namespace rbt {

/// What becomes of a target that may not be written.
enum class ReadOnlyTarget {
  refused,   ///< it is not replaced either, though its folder would allow it
  replaced,  ///< the new file is there to be written, as after an import from a medium that is only read
};

/// A file that comes into being beside its target, under a name of its own that no program of the family
/// looks for, and takes the target's place when it is whole: a kill or a full disk at any moment leaves the
/// old file or the whole new one under the target's name. What was not put in place goes with the object.
/// Faults are `file`, with the target and the system's cause.
class FileInWork {
 public:
  explicit FileInWork(std::filesystem::path target);
  /// Under a name of a place of work.
  FileInWork(std::filesystem::path target, const WorkPlace& place, ReadOnlyTarget read_only);
  FileInWork(const FileInWork&) = delete;
  FileInWork& operator=(const FileInWork&) = delete;
  ~FileInWork();

  /// Where the file is in work; nothing stands there until `Write`, or somebody else, has made it.
  const std::filesystem::path& Path() const { return path_; }

  /// Makes the file with these bytes. Nobody who may not read the target can read it meanwhile.
  void Write(std::string_view bytes);

  /// Gives the finished file its name, which must be free, and makes that last beyond a power cut.
  void PutInPlace();
  /// The same over a file that stands there, whose owner and permissions it takes over.
  void Replace();

 private:
  void TakeOverPermissions(const FileDescriptor& file) const;
  /// Owner, permissions and contents as they are to stay; `Write` has seen to them already.
  void Complete();

  std::filesystem::path target_;
  std::filesystem::path path_;  ///< empty when the file is in place
  ReadOnlyTarget read_only_;
  bool complete_ = false;
};

/// A folder that is filled under a name of its own and takes its target's place when it is whole; else it
/// goes with the object.
class FolderInWork {
 public:
  /// Makes the folder in a place of work. Throws `file`.
  explicit FolderInWork(const WorkPlace& place);
  FolderInWork(const FolderInWork&) = delete;
  FolderInWork& operator=(const FolderInWork&) = delete;
  ~FolderInWork();

  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

  /// Gives the folder its name; an empty one may stand there already. Throws `file`.
  void PutInPlace(const std::filesystem::path& target);

 private:
  std::filesystem::path path_;
};

/// Gives a file a second name; false where the file system has no such thing, or not for this user. A name
/// that is taken throws `file`.
bool LinkFile(const std::filesystem::path& file, const std::filesystem::path& name);
/// What a name that is taken is told by.
inline constexpr std::string_view kIsThereAlready = "is there already and is not overwritten";

}  // namespace rbt
