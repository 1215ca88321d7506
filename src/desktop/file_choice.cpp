// SPDX-License-Identifier: MIT
#include "desktop/file_choice.h"

#include "desktop/wait_sign.h"

namespace rbt {

FileChoice::FileChoice(QWidget* parent, const QString& title) : QFileDialog(parent, title) {
  // The desktop's own may know neither the title nor Esc.
  setOption(QFileDialog::DontUseNativeDialog);
}

std::optional<std::filesystem::path> FileChoice::Ask(const QString& accept) {
  setLabelText(QFileDialog::LookIn, QStringLiteral("場所："));
  const bool of_folder = fileMode() == QFileDialog::Directory;
  setLabelText(QFileDialog::FileName,
               of_folder ? QStringLiteral("フォルダ名：") : QStringLiteral("ファイル名："));
  setLabelText(QFileDialog::FileType, QStringLiteral("種類："));
  setLabelText(QFileDialog::Accept, accept);
  setLabelText(QFileDialog::Reject, QStringLiteral("キャンセル"));
  const WorkAtRest rest;
  if (exec() != QDialog::Accepted || selectedFiles().isEmpty()) return std::nullopt;
  return std::filesystem::path(selectedFiles().constFirst().toStdString());
}

}  // namespace rbt
