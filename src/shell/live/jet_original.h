// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <sys/stat.h>

#include "platform/numbers/value.h"

namespace rbt {

/// How a file stands by the system's notes: two of one text are those of a file that nobody has changed in
/// between, as far as the notes tell times apart.
struct FileStamp {
  std::string text;       ///< size, times and number of the file
  std::int64_t size = 0;  ///< bytes
  std::int64_t touched =
      0;  ///< nanoseconds since 1970, of the last change of the file or of what is noted of it

  /// False where the next change could get the same times, as not every file system counts them finely.
  bool HasSettled(std::filesystem::file_time_type now = std::filesystem::file_time_type::clock::now()) const;
  static constexpr std::chrono::nanoseconds kSettlingTime = std::chrono::seconds(2);
};
/// By the system's notes of a file. The device is left out: machines that share a folder number it each in
/// their own way.
FileStamp StampOfStatus(const struct stat& status);
/// Nothing where there is no such file.
std::optional<FileStamp> StampOf(const std::filesystem::path& file);

/// A Jet file as it stood at one moment.
struct JetOriginal {
  Bytes bytes;
  FileStamp stamp;
  bool settled = false;  ///< the stamp had settled before the reading began
  std::string digest;    ///< SHA-256 of the bytes
};

/// Called when the bytes have been read, before it is looked whether they still stand: for tests.
using ReadHook = std::function<void()>;

/// Reads a whole file without locking it. Nothing when it was changed meanwhile. Throws `file`, also for one
/// that is larger than its format allows.
std::optional<JetOriginal> ReadOriginal(const std::filesystem::path& file,
                                        const ReadHook& behind_reading = {});

}  // namespace rbt
