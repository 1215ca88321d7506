// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "archive/csv/csv_subject.h"

namespace rbt {

inline constexpr std::string_view kBackUpTitle = "バックアップ";

/// A drive: what is mounted where.
struct Volume {
  std::string caption = {};
  std::filesystem::path root = {};

  friend bool operator==(const Volume&, const Volume&) = default;
};

/// What the CSV dialog leans on.
struct BackUpParts {
  std::vector<Volume> volumes = {};  ///< the drives to choose from
  /// Asks for a folder, `from` at first; nothing when the user turns back.
  std::function<std::optional<std::filesystem::path>(const std::filesystem::path& from)> choose_folder = {};
};

/// All that `FrmBackUp` shows.
struct BackUpView {
  std::vector<std::string> drives = {};
  std::optional<std::size_t> drive = std::nullopt;  ///< the one that the folder lies on, if it is listed
  std::string folder = {};
  bool left = false;  ///< the dialog is to be closed
};

/// The dialog `FrmBackUp` without its window: writes a tally or the list of registered names to a CSV file.
class BackUpPresenter {
 public:
  /// Reads what the file tells of the bound site. Begins at `OfferedFolder`.
  BackUpPresenter(CsvSubject subject, BackUpParts parts);

  BackUpView View() const;

  /// The folder becomes the drive's own, unless it lies on it already; a drive that cannot be read is told
  /// and not taken.
  void SelectDrive(std::size_t drive);
  void ChooseFolder();

  /// Each asks before it writes, and before it replaces a file; the dialog ends with what was written, and
  /// with a file that cannot be written. A folder where no result is written is told and leaves it open.
  void Save();
  /// Where the user has no such folder, the file goes into that of the dialog; the message stays.
  void SaveOnDesktop();
  void SaveInDocuments();
  void Leave() { left_ = true; }

 private:
  /// `told`: how the closing message names the folder.
  void SaveIn(const std::filesystem::path& folder, const std::string& told);
  bool MayWrite(const std::filesystem::path& file) const;
  /// Nothing when the user turns back, as Esc does: the other layout is not what he asked for.
  std::optional<FloorCsvLayout> AskLayout(const std::string& file_name) const;
  void Write(const std::filesystem::path& file, FloorCsvLayout layout, const std::string& told) const;

  CsvSubject subject_;
  BackUpParts parts_;
  CsvSite site_;
  std::filesystem::path folder_;
  bool left_ = false;
};

}  // namespace rbt
