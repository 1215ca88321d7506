// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <span>
#include <string>

#include "store/database.h"

namespace rbt {

/// Remembers beyond the run that statements would change nothing in a schedule file as it stands: whoever
/// starts on it next need not look through all its rows to find that out again. It is remembered in a folder
/// of the user's own, never in the site's, and holds for one state of one file, the same statements, the same
/// program and the same store. Whatever is not found exactly as it was is not remembered.
class ClassificationMemory {
 public:
  /// The state of a file whose time is no older than this is not told apart from the next one for sure, as
  /// not every file system counts its times finely.
  static constexpr std::chrono::nanoseconds kSettlingTime = std::chrono::seconds(2);

  /// One that is no newer is dropped, as is one whose schedule is gone, when another is noted.
  static constexpr std::chrono::days kKeptFor{90};

  /// `schedule` must be held, or else its state may not be the one that is read.
  ClassificationMemory(const Database& schedule, std::span<const std::string> statements);

  /// True when it is known of what is read that the statements would change nothing.
  bool Holds() const;
  /// To be called when they would not have changed a row since the object was made. Does nothing where the
  /// file has not settled by `now`, time of the files; what goes wrong is passed over.
  void Note(std::filesystem::file_time_type now = std::filesystem::file_time_type::clock::now()) const;

 private:
  std::filesystem::path file_;  ///< empty: nothing can be remembered
  std::string text_;
  std::int64_t touched_ = 0;
};

}  // namespace rbt
