// SPDX-License-Identifier: MIT
#pragma once

#include <cerrno>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/fault.h"

namespace rbt {

/// The `file` fault of a path: "path: what failed: the system's cause".
inline Fault FileFault(const std::filesystem::path& file, std::string_view what, int cause = errno) {
  return {FaultKind::file,
          file.string() + ": " + std::string(what) + ": " + std::generic_category().message(cause)};
}

/// The same without a cause of the system.
inline Fault FileFaultText(const std::filesystem::path& file, std::string_view what) {
  return {FaultKind::file, file.string() + ": " + std::string(what)};
}

}  // namespace rbt
