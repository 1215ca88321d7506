// SPDX-License-Identifier: MIT
#include "session/archive/backup_presenter.h"

#include <iterator>
#include <system_error>
#include <utility>

#include <fmt/format.h>

#include "archive/csv/csv_file_name.h"
#include "archive/csv/csv_site.h"
#include "archive/csv/csv_text.h"
#include "archive/csv/do_backup.h"
#include "platform/files/files.h"
#include "platform/pass_over_faults.h"
#include "platform/system/clock.h"
#include "platform/system/message.h"
#include "platform/system/paths.h"
#include "session/panels/file_messages.h"
#include "shell/output/output_files.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kAskTitle = "実行の確認";
constexpr std::string_view kDoneTitle = "終了の確認";
constexpr std::string_view kLayoutTitle = "集計方法の確認";
constexpr std::string_view kDriveTitle = "ドライブエラー";
constexpr std::string_view kDriveNotReady = "ドライブの準備が出来ていません。";

bool CanBeRead(const fs::path& folder) {
  std::error_code error;
  const fs::directory_iterator opened(folder, error);
  return !error;
}

/// The drive of a folder: of those that it lies in the innermost.
std::optional<std::size_t> DriveOf(const fs::path& folder, const std::vector<Volume>& volumes) {
  std::optional<std::size_t> found;
  std::ptrdiff_t depth = 0;
  for (std::size_t i = 0; i < volumes.size(); ++i) {
    const fs::path& root = volumes[i].root;
    const std::ptrdiff_t steps = std::distance(root.begin(), root.end());
    if (!LiesIn(root, folder) || steps <= depth) continue;
    found = i;
    depth = steps;
  }
  return found;
}

}  // namespace

BackUpPresenter::BackUpPresenter(CsvSubject subject, BackUpParts parts)
    : subject_(std::move(subject)),
      parts_(std::move(parts)),
      site_(ReadCsvSite(subject_)),
      folder_(OfferedFolder()) {}

BackUpView BackUpPresenter::View() const {
  BackUpView view;
  view.drives.reserve(parts_.volumes.size());
  for (const Volume& volume : parts_.volumes) view.drives.push_back(volume.caption);
  view.drive = DriveOf(folder_, parts_.volumes);
  view.folder = folder_.string();
  view.left = left_;
  return view;
}

void BackUpPresenter::SelectDrive(std::size_t drive) {
  if (DriveOf(folder_, parts_.volumes) == drive) return;
  const fs::path& root = parts_.volumes.at(drive).root;
  if (!CanBeRead(root)) {
    MsgBox(kDriveNotReady, kDriveTitle);
    return;
  }
  folder_ = root;
}

void BackUpPresenter::ChooseFolder() {
  if (!parts_.choose_folder) return;
  if (const std::optional<fs::path> chosen = parts_.choose_folder(folder_)) folder_ = *chosen;
}

void BackUpPresenter::Save() { SaveIn(folder_, fmt::format("[ {} ] に書き出しました", folder_.string())); }

void BackUpPresenter::SaveOnDesktop() {
  SaveIn(DesktopFolder().value_or(folder_), "デスクトップに書き出しました。");
}

void BackUpPresenter::SaveInDocuments() {
  SaveIn(DocumentsFolder().value_or(folder_), "マイドキュメントに書き出しました。");
}

void BackUpPresenter::SaveIn(const fs::path& folder, const std::string& told) {
  const fs::path file = folder / CsvFileName(subject_, site_.name, Now());
  if (const auto refused = PassOverFaults(FaultKind::file, [&] { RequireOutputPlace(file); })) {
    TellNotSaved(file, *refused, kBackUpTitle);
    return;
  }
  if (!MayWrite(file)) return;
  const std::optional<FloorCsvLayout> layout = AskLayout(file.filename().string());
  if (!layout) return;
  Write(file, *layout, told);
  left_ = true;
}

bool BackUpPresenter::MayWrite(const fs::path& file) const {
  const std::string question =
      fmt::format("CSVファイルを保存しますか？\n\nファイル名：{}", file.filename().string());
  return MsgBox(question, kAskTitle, MessageButtons::ok_cancel) == MessageAnswer::ok &&
         MayReplaceFile(file, kAskTitle);
}

std::optional<FloorCsvLayout> BackUpPresenter::AskLayout(const std::string& file_name) const {
  if (!HasFloorLayouts(subject_)) return FloorCsvLayout::total;
  const std::string& name = std::get<CsvOfTally>(subject_).data_name;
  const std::string question =
      fmt::format("データ名：{}\nYes=階合計表   No=階部位径", name.empty() ? file_name : name);
  const MessageAnswer answer = MsgBox(question, kLayoutTitle, MessageButtons::yes_no_cancel);
  if (answer == MessageAnswer::cancel) return std::nullopt;
  return answer == MessageAnswer::yes ? FloorCsvLayout::total : FloorCsvLayout::parts;
}

void BackUpPresenter::Write(const fs::path& file, FloorCsvLayout layout, const std::string& told) const {
  const std::string name = file.filename().string();
  const std::string csv = CsvText(subject_, site_, layout);
  std::string lacking;
  if (const auto fault = PassOverFaults(FaultKind::file, [&] { lacking = Do_BackUP(file, csv); })) {
    TellNotSaved(file, *fault, kBackUpTitle);
    return;
  }
  std::string message = fmt::format("ファイル名 [ {} ]  を　{}", name, told);
  if (!lacking.empty()) message += "\n\n" + ReplacedCharactersNotice(lacking);
  MsgBox(message, kDoneTitle);
}

}  // namespace rbt
