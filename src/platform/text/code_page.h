// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <iconv.h>
#include <string>
#include <string_view>

namespace rbt {

/// Converts texts of a Windows code page to UTF-8 or back, by the system's tables. For one thread at a time.
class CodePageConverter {
 public:
  enum class Direction { to_utf8, from_utf8 };

  /// Throws `file` when this machine does not know the code page.
  CodePageConverter(std::uint16_t code_page, Direction direction);
  CodePageConverter(const CodePageConverter&) = delete;
  CodePageConverter& operator=(const CodePageConverter&) = delete;
  ~CodePageConverter() { iconv_close(handle_); }

  /// Appends what converts and returns the number of input bytes taken; less than all when a character does
  /// not.
  std::size_t Convert(std::string_view input, std::string& output);

 private:
  iconv_t handle_;
};

}  // namespace rbt
