// SPDX-License-Identifier: MIT
#include "session/startup/offer_import.h"

#include <fmt/format.h>

#include "jet/import/import_file.h"
#include "jet/jet_file.h"
#include "platform/system/message.h"
#include "platform/system/paths.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kTitle = "データベースの取り込み";

std::string Question(const fs::path& file) {
  return fmt::format(
      "{0} は元のままの Jet 形式のデータベースです。\nこのプログラムの形式に取り込みますか？\n\n"
      "元のファイルは {1} として残ります。",
      file.filename().string(), jet::KeptJetFile(file).filename().string());
}

void TellWhatIsMissing(const jet::ImportReport& report) {
  if (report.Refused() == 0 && report.warnings.empty()) return;
  MsgBox(fmt::format("{}：取り込めなかった行 {} 行、注意 {} 件\n\n詳しくは {} を見て下さい。",
                     report.target.filename().string(), report.Refused(), report.warnings.size(),
                     jet::ReportFile(report.target).string()),
         kTitle);
}

}  // namespace

bool OfferImport(const fs::path& file) {
  if (!jet::IsJetFile(file)) return false;
  if (MsgBox(Question(file), kTitle, MessageButtons::yes_no) != MessageAnswer::yes) return false;
  const jet::ImportReport report = jet::ImportJetFileInPlace(file);
  TellWhatIsMissing(report);
  return true;
}

void OfferImports(std::initializer_list<std::string> family_paths) {
  for (const std::string& path : family_paths) OfferImport(MapPath(path));
}

}  // namespace rbt
