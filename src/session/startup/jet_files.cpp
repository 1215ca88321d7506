// SPDX-License-Identifier: MIT
#include "session/startup/jet_files.h"

#include <optional>
#include <string_view>

#include <fmt/format.h>

#include "jet/import/import_file.h"
#include "jet/jet_file.h"
#include "platform/fault.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "platform/pass_over_faults.h"
#include "platform/system/message.h"
#include "shell/context/run_state.h"
#include "shell/live/jet_folder.h"
#include "shell/live/live_database.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kTitle = "データベースの取り込み";
constexpr std::string_view kReadingTitle = "データベースの読み取り";

std::string NameOf(const fs::path& file) { return file.filename().string(); }
std::string KeptNameOf(const fs::path& file) { return NameOf(jet::KeptJetFile(file)); }

std::string Question(const fs::path& file) {
  return fmt::format(
      "{0} は元のままの Jet 形式のデータベースです。\nこのプログラムの形式に取り込みますか？\n\n"
      "「そのまま読む」… 元のファイルを読むだけにし、何も書き込みません。\n"
      "　　ほかのプログラムは、今までどおり使えます。\n"
      "「取り込む」… 元のファイルは {1} として残ります。\n"
      "　　ほかのプログラムは、{0} を読めなくなります。\n\n"
      "答えは覚えておき、次のフォルダのほかのデータベースにも使います。\n{2}",
      NameOf(file), KeptNameOf(file), FolderOf(file).string());
}

/// What the folder of a Jet file was told. A choice is asked for once in a run, also where it cannot be kept
/// beyond.
JetChoice ChoiceFor(const fs::path& file) {
  const fs::path folder = FolderOf(file);
  if (!TakesFiles(folder)) return JetChoice::read_in_place;
  const auto asked = RunState.JetChoices.find(folder);
  if (asked != RunState.JetChoices.end()) return asked->second;
  if (const std::optional<JetChoice> remembered = RememberedJetChoice(folder)) return *remembered;
  const bool takes_over =
      MsgBox(Question(file), kTitle, MessageButtons::import_or_read) == MessageAnswer::yes;
  const JetChoice choice = takes_over ? JetChoice::import : JetChoice::read_in_place;
  RunState.JetChoices[folder] = choice;
  RememberJetChoice(folder, choice);
  return choice;
}

/// Whoever chose in an earlier run need not think of it now.
void TellWhatWasTaken(const fs::path& file) {
  if (RunState.JetChoices.contains(FolderOf(file))) return;
  MsgBox(fmt::format("{} をこのプログラムの形式に取り込みました。\n\n元のファイルは {} として残ります。",
                     NameOf(file), KeptNameOf(file)),
         kTitle);
}

void TakeOver(const fs::path& file) {
  const auto fault = PassOverFaults(FaultKind::file, [&] {
    OpenLive(file, {.jet = JetChoice::import});
    TellWhatWasTaken(file);
  });
  if (!fault) return;
  MsgBox(fmt::format("{} を取り込めなかったので、今回は元のファイルをそのまま読みます。\n\n{}", NameOf(file),
                     fault->what()),
         kTitle, MessageButtons::ok_to_warning);
}

}  // namespace

void SettleJetFiles(std::initializer_list<std::string> family_paths) {
  for (const fs::path& file : JetFilesAmong(family_paths)) {
    if (ChoiceFor(file) == JetChoice::import) TakeOver(file);
  }
}

void TellOfReadingInPlace(const fs::path& site) {
  if (!jet::IsJetFile(site) || WasToldOfReading(site)) return;
  MsgBox(fmt::format("「{}」は元のままの Jet 形式なので、読むだけにします。\n"
                     "集計と印字には元のファイルの今の内容を使い、元のファイルには何も書き込みません。\n\n"
                     "保存した集計は、このプログラムの中にだけ残り、ほかのプログラムからは見えません。",
                     NameOf(site)),
         kReadingTitle);
  NoteToldOfReading(site);
}

}  // namespace rbt
