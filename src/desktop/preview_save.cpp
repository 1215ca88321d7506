// SPDX-License-Identifier: MIT
#include "desktop/preview_save.h"

#include <string>

#include <fmt/format.h>

#include "desktop/file_choice.h"
#include "desktop/painting/painting_surface.h"
#include "platform/files/files.h"
#include "platform/pass_over_faults.h"
#include "platform/system/clock.h"
#include "platform/system/message.h"
#include "platform/system/paths.h"
#include "platform/system/work.h"
#include "platform/text/characters.h"
#include "session/panels/file_messages.h"
#include "shell/output/output_files.h"

namespace rbt {

namespace {

namespace fs = std::filesystem;

constexpr const char* kExtension = ".pdf";
constexpr const char* kNameWithoutTitle = "集計表";

fs::path WithExtension(fs::path file) {
  const std::string extension = QString::fromStdString(file.extension().string()).toLower().toStdString();
  if (extension != kExtension) file += kExtension;
  return file;
}

std::string FileNameOf(std::string_view title) {
  constexpr std::u32string_view kForbidden = U"/\\:*?\"<>|";
  constexpr std::size_t kCharacters = 60;  // 180 bytes; a file name may have 255
  constexpr char32_t kFirstPrintable = U' ';
  std::string name;
  for (const char32_t character : CharactersOf(Left(Trim(title), kCharacters))) {
    const bool fits = character >= kFirstPrintable && kForbidden.find(character) == std::u32string_view::npos;
    name += fits ? Utf8Of(character) : "_";
  }
  if (name.starts_with('.')) name.front() = '_';  // no hidden file
  return name.empty() ? kNameWithoutTitle : name;
}

/// False, after a message, when the file cannot be written.
bool Write(std::span<const PrintedDocument> documents, const fs::path& file, const std::string& title) {
  const auto fault = PassOverFaults(FaultKind::file, [&] {
    RequireOutputPlace(file);
    PaintPdf(documents, file, NotePage);
  });
  if (fault) TellNotSaved(file, *fault, title);
  return !fault;
}

}  // namespace

std::optional<fs::path> AskPdfFile(QWidget& form, const fs::path& offered) {
  FileChoice dialog(&form, QStringLiteral("ＰＤＦ保存"));
  dialog.setObjectName("cdgPdf");
  // Whoever asked for the name asks that too.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setNameFilter(QStringLiteral("ＰＤＦ (*.pdf)"));
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  dialog.setDirectory(QString::fromStdString(offered.parent_path().string()));
  dialog.selectFile(QString::fromStdString(offered.filename().string()));
  return dialog.Ask(QStringLiteral("保存"));
}

fs::path OfferedPdfFile(std::string_view title) {
  const DateTime today = Now();
  const std::string stem =
      fmt::format("{}-{:04}{:02}{:02}", FileNameOf(title), today.year, today.month, today.day);
  const fs::path folder = OfferedFolder();
  fs::path file = folder / (stem + kExtension);
  for (int copy = 2; IsTaken(file); ++copy) {
    file = folder / fmt::format("{}-{}{}", stem, copy, kExtension);
  }
  return file;
}

bool SaveAsPdf(QWidget& form, std::span<const PrintedDocument> documents,
               const std::function<std::optional<fs::path>(QWidget&, const fs::path&)>& ask) {
  const std::string title = form.windowTitle().toStdString();
  fs::path offered = OfferedPdfFile(documents.empty() ? "" : documents.front().title);
  while (const std::optional<fs::path> named = ask(form, offered)) {
    const fs::path file = WithExtension(*named);
    offered = file;
    if (!MayReplaceFile(file, title) || !Write(documents, file, title)) continue;
    MsgBox("「" + file.string() + "」に保存しました。", title);
    return true;
  }
  return false;
}

}  // namespace rbt
