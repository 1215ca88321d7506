// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace rbt {

/// A library of ours that is loaded when it is first asked for, and stays for the run: what it stands on
/// takes longer to start than most commands to run. `name` is its file from the folder of the program.
class OwnLibrary {
 public:
  /// Throws `file` with the loader's words, which name the file; `what` is what is not available then: "PDF".
  OwnLibrary(const char* name, const char* what);

  /// The address of one of its functions. Throws `file` likewise.
  void* Function(const char* function) const;
  /// Throws `file`: it is not of this program's version.
  [[noreturn]] void Refuse(const char* version) const;

 private:
  std::filesystem::path file_;
  const char* what_;
  void* handle_;
};

}  // namespace rbt
