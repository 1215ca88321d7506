// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>
#include <utility>

namespace rbt {

/// An open file of the system, closed with the object.
class FileDescriptor {
 public:
  explicit FileDescriptor(int number) : number_(number) {}
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor() { Close(); }

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }
  /// The result of close(); 0 when nothing was open.
  int Close() {
    const int number = std::exchange(number_, -1);
    return number >= 0 ? ::close(number) : 0;
  }

 private:
  int number_;
};

}  // namespace rbt
