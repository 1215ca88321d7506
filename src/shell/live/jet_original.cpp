// SPDX-License-Identifier: MIT
#include "shell/live/jet_original.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include <fmt/format.h>

#include "platform/files/file_descriptor.h"
#include "platform/files/sha256.h"
#include "platform/files/system_error.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

std::int64_t Nanoseconds(const timespec& time) {
  return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

FileStamp StampOfOpen(const FileDescriptor& open, const fs::path& name) {
  struct stat status {};
  if (::fstat(open.Number(), &status) != 0) throw FileFault(name, "cannot be read");
  return StampOfStatus(status);
}

/// The format ends there; 0 at a certain place in front tells a file of Jet 3.
void RefuseBySize(const FileDescriptor& open, std::int64_t size, const fs::path& name) {
  constexpr off_t kVersionAt = 0x14;
  constexpr std::int64_t kGigabyte = std::int64_t{1} << 30;
  unsigned char version = 0;
  const bool is_jet3 = ::pread(open.Number(), &version, 1, kVersionAt) == 1 && version == 0;
  const int gigabytes = is_jet3 ? 1 : 2;
  if (size <= gigabytes * kGigabyte) return;
  throw FileFaultText(name, fmt::format("is larger than the {} GB at which a file of Jet {} ends", gigabytes,
                                        is_jet3 ? 3 : 4));
}

/// Fewer bytes than expected where the file has become shorter.
Bytes ReadBytes(const FileDescriptor& open, std::int64_t size, const fs::path& name) {
  Bytes bytes(static_cast<std::size_t>(size));
  std::size_t at = 0;
  while (at < bytes.size()) {
    const ssize_t count = ::read(open.Number(), bytes.data() + at, bytes.size() - at);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw FileFault(name, "cannot be read");
    if (count == 0) break;
    at += static_cast<std::size_t>(count);
  }
  bytes.resize(at);
  return bytes;
}

}  // namespace

bool FileStamp::HasSettled(fs::file_time_type now) const {
  const auto since_1970 = fs::file_time_type::clock::to_sys(now).time_since_epoch();
  return since_1970 >= std::chrono::nanoseconds(touched) + kSettlingTime;
}

FileStamp StampOfStatus(const struct stat& status) {
  const std::int64_t written = Nanoseconds(status.st_mtim);
  const std::int64_t touched = Nanoseconds(status.st_ctim);
  return {.text = fmt::format("size {} written {} touched {} file {}", status.st_size, written, touched,
                              status.st_ino),
          .size = status.st_size,
          .touched = std::max(written, touched)};
}

std::optional<FileStamp> StampOf(const fs::path& file) {
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0) return std::nullopt;
  return StampOfStatus(status);
}

std::optional<JetOriginal> ReadOriginal(const fs::path& file, const ReadHook& behind_reading) {
  const FileDescriptor open(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
  if (!open.IsOpen()) throw FileFault(file, "cannot be opened");
  JetOriginal original;
  original.stamp = StampOfOpen(open, file);
  original.settled = original.stamp.HasSettled();
  RefuseBySize(open, original.stamp.size, file);
  original.bytes = ReadBytes(open, original.stamp.size, file);
  if (behind_reading) behind_reading();
  const std::optional<FileStamp> named = StampOf(file);
  const bool stands = std::cmp_equal(original.bytes.size(), original.stamp.size) &&
                      StampOfOpen(open, file).text == original.stamp.text && named &&
                      named->text == original.stamp.text;
  if (!stands) return std::nullopt;
  original.digest = Sha256Of(original.bytes);
  return original;
}

}  // namespace rbt
