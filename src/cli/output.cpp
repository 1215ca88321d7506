// SPDX-License-Identifier: MIT
#include "cli/output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

#include "platform/fault.h"

namespace rbt {

void WriteResult(std::string_view text) {
  errno = 0;
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (!written || std::fflush(stdout) != 0) {
    throw Fault(FaultKind::file, std::string("cannot write standard output: ") + std::strerror(errno));
  }
}

void ReportError(std::string_view cause) {
  std::string line = "rbtally: ";
  bool after_break = false;
  for (const char c : cause) {
    const bool is_break = c == '\n' || c == '\r';
    if (!is_break) line += c;
    // Several breaks in a row are one blank.
    if (is_break && !after_break) line += ' ';
    after_break = is_break;
  }
  line.erase(line.find_last_not_of(' ') + 1);
  line += '\n';
  // Nowhere is left to report that standard error itself is gone.
  static_cast<void>(std::fwrite(line.data(), 1, line.size(), stderr));
}

}  // namespace rbt
