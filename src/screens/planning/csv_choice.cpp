// SPDX-License-Identifier: MIT
#include "screens/planning/csv_choice.h"

#include <filesystem>

#include <QFileDialog>

#include "desktop/wait_sign.h"
#include "platform/system/paths.h"

namespace rbt {

std::optional<std::string> AskCsvFile(QWidget& form, const std::string& named) {
  const std::filesystem::path before(named);
  const std::filesystem::path folder = before.has_parent_path() ? before.parent_path() : OfferedFolder();
  QFileDialog dialog(&form, QStringLiteral("CSV ファイルの選択"));
  dialog.setObjectName("cdgCsv");
  // One dialog everywhere: the desktop's own may know neither the title nor Esc.
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters({QStringLiteral("CSV (*.csv *.CSV)"), QStringLiteral("すべて (*)")});
  dialog.setDirectory(QString::fromStdString(folder.string()));
  dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("場所："));
  dialog.setLabelText(QFileDialog::FileName, QStringLiteral("ファイル名："));
  dialog.setLabelText(QFileDialog::FileType, QStringLiteral("種類："));
  dialog.setLabelText(QFileDialog::Accept, QStringLiteral("開く"));
  dialog.setLabelText(QFileDialog::Reject, QStringLiteral("キャンセル"));
  const WorkAtRest rest;
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return dialog.selectedFiles().constFirst().toStdString();
}

}  // namespace rbt
