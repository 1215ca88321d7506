// SPDX-License-Identifier: MIT
#include "platform/desktop/preview_save.h"

#include <string>

#include <QFileDialog>
#include <fmt/format.h>

#include "platform/desktop/painting_surface.h"
#include "platform/fault.h"
#include "platform/system/clock.h"
#include "platform/system/message.h"
#include "platform/system/paths.h"

namespace rbt {

namespace {

namespace fs = std::filesystem;

constexpr const char* kExtension = ".pdf";

fs::path WithExtension(fs::path file) {
  const std::string extension = QString::fromStdString(file.extension().string()).toLower().toStdString();
  if (extension != kExtension) file += kExtension;
  return file;
}

bool IsThere(const fs::path& file) {
  std::error_code error;
  return fs::symlink_status(file, error).type() != fs::file_type::not_found;
}

bool MayReplace(const fs::path& file, const std::string& title) {
  if (!IsThere(file)) return true;
  return MsgBox("「" + file.string() + "」は既にあります。\r\n置き換えますか？", title,
                MessageButtons::yes_no) == MessageAnswer::yes;
}

/// False, after a message, when the file cannot be written.
bool Write(std::span<const PrintedDocument> documents, const fs::path& file, const std::string& title) {
  try {
    PaintPdf(documents, file);
    return true;
  } catch (const Fault& fault) {
    if (fault.Kind() != FaultKind::file) throw;
    MsgBox("「" + file.string() + "」に保存できません。\r\n" + fault.what(), title);
    return false;
  }
}

}  // namespace

std::optional<fs::path> AskPdfFile(QWidget& form, const fs::path& offered) {
  QFileDialog dialog(&form, QStringLiteral("ＰＤＦ保存"));
  dialog.setObjectName("cdgPdf");
  // One dialog everywhere: the desktop's own may know neither the title nor Esc.
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  // Whoever asked for the name asks that too.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setNameFilter(QStringLiteral("ＰＤＦ (*.pdf)"));
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  dialog.setDirectory(QString::fromStdString(offered.parent_path().string()));
  dialog.selectFile(QString::fromStdString(offered.filename().string()));
  dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("場所："));
  dialog.setLabelText(QFileDialog::FileName, QStringLiteral("ファイル名："));
  dialog.setLabelText(QFileDialog::FileType, QStringLiteral("種類："));
  dialog.setLabelText(QFileDialog::Accept, QStringLiteral("保存"));
  dialog.setLabelText(QFileDialog::Reject, QStringLiteral("キャンセル"));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return fs::path(dialog.selectedFiles().constFirst().toStdString());
}

fs::path OfferedPdfFile() {
  const DateTime today = Now();
  const std::string stem = fmt::format("集計表-{:04}{:02}{:02}", today.year, today.month, today.day);
  fs::path file = DocumentsFolder() / (stem + kExtension);
  for (int copy = 2; IsThere(file); ++copy) {
    file = DocumentsFolder() / fmt::format("{}-{}{}", stem, copy, kExtension);
  }
  return file;
}

bool SaveAsPdf(QWidget& form, std::span<const PrintedDocument> documents,
               const std::function<std::optional<fs::path>(QWidget&, const fs::path&)>& ask) {
  const std::string title = form.windowTitle().toStdString();
  fs::path offered = OfferedPdfFile();
  while (const std::optional<fs::path> named = ask(form, offered)) {
    const fs::path file = WithExtension(*named);
    offered = file;
    if (!MayReplace(file, title) || !Write(documents, file, title)) continue;
    MsgBox("「" + file.string() + "」に保存しました。", title);
    return true;
  }
  return false;
}

}  // namespace rbt
