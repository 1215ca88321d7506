// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>

namespace rbt::bench {

/// A demonstration root with one site of so many rows, below a folder that goes with the program.
class DemoSite {
 public:
  /// How old a file's time is when it tells for sure that nobody has changed the file since.
  static constexpr std::chrono::milliseconds kSettlingTime{2'500};

  /// Makes it, its schedule as the programs that enter one leave it.
  explicit DemoSite(std::int64_t rows);

  std::int64_t Rows() const { return rows_; }
  const std::filesystem::path& Root() const { return root_; }
  std::filesystem::path Schedule() const { return root_ / "DATA" / "GENBA001.MDB"; }
  /// The schedule as it was entered; none of a program's own connections may be open to it.
  void MakeFresh() const;
  /// Waits until the schedule's time says for sure that nobody has changed it since: what a program remembers
  /// of a file leans on it.
  void AwaitSettled() const;

  /// Makes it the site of this program, with settings of its own; nothing is read yet.
  void Bind() const;
  /// The same, loaded and activated, as the command line does it.
  void Open() const;

 private:
  /// Of the user's folders, in place of this user's own.
  void UseOwnFolders() const;

  std::int64_t rows_;
  std::filesystem::path root_;
};

}  // namespace rbt::bench
