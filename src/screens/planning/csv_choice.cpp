// SPDX-License-Identifier: MIT
#include "screens/planning/csv_choice.h"

#include <filesystem>

#include "desktop/file_choice.h"
#include "platform/system/paths.h"

namespace rbt {

std::optional<std::string> AskCsvFile(QWidget& form, const std::string& named) {
  const std::filesystem::path before(named);
  const std::filesystem::path folder = before.has_parent_path() ? before.parent_path() : OfferedFolder();
  FileChoice dialog(&form, QStringLiteral("CSV ファイルの選択"));
  dialog.setObjectName("cdgCsv");
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters({QStringLiteral("CSV (*.csv *.CSV)"), QStringLiteral("すべて (*)")});
  dialog.setDirectory(QString::fromStdString(folder.string()));
  const std::optional<std::filesystem::path> chosen = dialog.Ask(QStringLiteral("開く"));
  return chosen ? std::optional(chosen->string()) : std::nullopt;
}

}  // namespace rbt
