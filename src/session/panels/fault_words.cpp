// SPDX-License-Identifier: MIT
#include "session/panels/fault_words.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>

#include <fmt/format.h>

#include "planning/problem/refusal.h"
#include "platform/fault.h"

namespace rbt {

namespace {

/// What is told of faults of one kind, or of all kinds, whose text holds a mark.
struct Telling {
  std::optional<FaultKind> kind;
  std::string_view mark;  ///< empty: any text
  std::string_view wrong;
  std::string_view remedy;
};

// Causes first, whatever the kind; then the kinds. The first that fits is told.
constexpr Telling kTellings[] = {
    {FaultKind::locked, "", "ほかのプログラムが使用しています。",
     "使用が終わってから、もう一度操作して下さい。"},
    {FaultKind::file, "no site: [", "現場が選ばれていません。", "現場を選んでから、もう一度始めて下さい。"},
    {FaultKind::file, "is no site", "現場のファイルではありません。", "現場を選び直して下さい。"},
    {FaultKind::file, "needs the newer program", "新しい形式の現場です。",
     "この現場は、新しい形式を読むプログラムで集計して下さい。"},
    {FaultKind::file, "rbtally import", "変換していないデータベースです。",
     "下に示したコマンドで取り込んでから、もう一度操作して下さい。"},
    {FaultKind::file, "keeps changing", "ほかのプログラムが書き込みを続けています。",
     "書き込みが終わってから、もう一度操作して下さい。"},
    {FaultKind::file, "code page 932", "設定ファイルの文字コードが違います。",
     "UTF-8 で保存し直してから、もう一度始めて下さい。"},
    {std::nullopt, "does not exist", "ファイルが見つかりません。",
     "ファイルの場所と名前を確かめ、無ければ控えから戻して下さい。"},
    {std::nullopt, "No such file or directory", "ファイルまたはフォルダが見つかりません。",
     "場所と名前を確かめ、無ければ控えから戻して下さい。"},
    {std::nullopt, "Permission denied", "使う権利がありません。",
     "ファイルとフォルダの読み書きの権利を確かめて下さい。"},
    {std::nullopt, "Operation not permitted", "使う権利がありません。",
     "ファイルとフォルダの読み書きの権利を確かめて下さい。"},
    {std::nullopt, "Read-only file system", "書き込めない場所にあります。",
     "書き込める場所に移してから、もう一度操作して下さい。"},
    {std::nullopt, "readonly database", "書き込む権利がありません。",
     "ファイルとフォルダの読み書きの権利を確かめて下さい。"},
    {std::nullopt, "File name too long", "ファイルの場所の名前が長すぎます。",
     "短い名前の場所に移してから、もう一度操作して下さい。"},
    {std::nullopt, "Too many levels of symbolic links", "リンクが自分自身を指しています。",
     "リンクを直してから、もう一度操作して下さい。"},
    {std::nullopt, "is no regular file", "ファイルではありません。", "場所と名前を確かめて下さい。"},
    {std::nullopt, "password", "パスワードが付いているか、先頭が壊れています。",
     "元のプログラムで開き、パスワードを外してから、もう一度操作して下さい。"},
    {std::nullopt, "encrypted", "暗号化されているか、先頭が壊れています。",
     "元のプログラムで開き、暗号を解いてから、もう一度操作して下さい。"},
    {std::nullopt, "is cut off", "ファイルが途中で切れています。", "控えから戻して下さい。"},
    {std::nullopt, "No space left", "ディスクに空きがありません。",
     "不要なファイルを消してから、もう一度操作して下さい。"},
    {std::nullopt, "disk is full", "ディスクに空きがありません。",
     "不要なファイルを消してから、もう一度操作して下さい。"},
    {std::nullopt, "malformed", "ファイルが壊れています。", "控えから戻して下さい。"},
    {std::nullopt, "not a database", "データベースではないか、壊れています。", "控えから戻して下さい。"},
    {std::nullopt, "damaged", "ファイルが壊れています。", "控えから戻して下さい。"},
    {FaultKind::storage, "", "ファイルの読み書きができませんでした。",
     "ディスクとネットワークを確かめてから、もう一度操作して下さい。"},
    {FaultKind::file, "", "処理ができませんでした。",
     "下の行の原因を取り除いてから、もう一度操作して下さい。"},
    {FaultKind::database, "", "データベースの処理ができませんでした。",
     "ファイルの形式が違うか、壊れている恐れがあります。ファイルを確かめて下さい。"},
    {FaultKind::field_not_found, "", "ファイルに必要な項目がありません。",
     "ファイルの形式を確かめて下さい。"},
    {FaultKind::type_mismatch, "", "数値でなければならない値が、数値ではありません。",
     "下の行に示した設定またはデータを直して下さい。"},
    {FaultKind::overflow, "", "値が大きすぎます。", "下の行に示した設定またはデータを直して下さい。"},
    {FaultKind::invalid_use_of_null, "", "必要な値が入っていません。",
     "下の行に示したデータを入れて下さい。"},
    {FaultKind::division_by_zero, "", "0 で割る計算になりました。", "下の行に示したデータを直して下さい。"},
    {FaultKind::subscript_out_of_range, "", "値が決められた範囲の外にあります。",
     "下の行に示した設定またはデータを直して下さい。"},
};

/// The same of a plan that is refused, by its text alone. What lies in a line of a file goes before what a
/// plan lacks.
struct Refused {
  std::string_view mark;
  std::string_view wrong;
  std::string_view remedy;
};
constexpr Refused kRefusals[] = {
    {"the plan failed its check", "計画の検算が合いません。",
     "この計画は使えません。条件を変えて計画し直し、下の行をプログラムの担当者に伝えて下さい。"},
    {"is longer than the longest bar", "どの定尺よりも長い部材があります。",
     "長い定尺を加えるか、部材を確かめて下さい。"},
    {"line ", "表の行が読めません。", "下の行に示した所を直し、UTF-8 で保存し直して下さい。"},
    {"no stock length is allowed for ", "使える定尺がありません。",
     "計画の条件の定尺、または設定の最小値と最大値を確かめて下さい。"},
    {"has no column", "集計表に無い定尺です。",
     "3500 から 12000 までの 500 きざみ（13000 は設定による）の定尺を入れて下さい。"},
    {"no price for ", "単価の無い定尺があります。",
     "定尺の表に単価を入れるか、「金額を最小にする」を外して下さい。"},
    {"do not hold every piece", "定尺の種類が少なすぎて、全ての部材を取れません。",
     "定尺の種類を増やすか、0（制限なし）にして下さい。"},
    {"no length can fill its least lot", "最小の注文量に届く定尺がありません。",
     "定尺の表の最小の注文量を確かめて下さい。"},
    {"", "計画ができません。", "計画の条件を変えて下さい。"},
};

const Refused& Find(const planning::Refusal& refusal) {
  const std::string_view text = refusal.what();
  return *std::find_if(std::begin(kRefusals), std::end(kRefusals),
                       [&](const Refused& each) { return text.find(each.mark) != std::string_view::npos; });
}

const Telling* Find(const Fault& fault) {
  const auto* const telling =
      std::find_if(std::begin(kTellings), std::end(kTellings), [&](const Telling& each) {
        return (!each.kind || *each.kind == fault.Kind()) &&
               fault.Where().find(each.mark) != std::string::npos;
      });
  return telling == std::end(kTellings) ? nullptr : telling;
}

/// The name of the file whose path stands in a text: from the stroke that begins a word to the next colon.
std::string FileNamedIn(std::string_view text) {
  std::size_t begin = 0;
  while (begin < text.size() && (text[begin] != '/' || (begin > 0 && text[begin - 1] != ' '))) ++begin;
  if (begin == text.size()) return "";
  const std::string_view path = text.substr(begin, text.find(": ", begin) - begin);
  return std::filesystem::path(path).filename().string();
}

/// `where` names the file, if there is one.
std::string WordsOf(const std::exception& fault, std::string_view where, std::string_view wrong,
                    std::string_view remedy) {
  const std::string file = FileNamedIn(where);
  const std::string named = file.empty() ? "" : fmt::format("「{}」\n", file);
  return fmt::format("{}{}\n{}\n\n{}", named, wrong, remedy, fault.what());
}

bool IsOfKind(const std::exception& fault, FaultKind kind) {
  const auto* const ours = dynamic_cast<const Fault*>(&fault);
  return ours != nullptr && ours->Kind() == kind;
}

}  // namespace

std::string FaultWords(const std::exception& fault) {
  if (const auto* const refusal = dynamic_cast<const planning::Refusal*>(&fault)) {
    const Refused& refused = Find(*refusal);
    return WordsOf(fault, refusal->what(), refused.wrong, refused.remedy);
  }
  const auto* const ours = dynamic_cast<const Fault*>(&fault);
  const Telling* const telling = ours == nullptr ? nullptr : Find(*ours);
  if (telling == nullptr) return fmt::format("続けられない誤りが起きました。\n\n{}", fault.what());
  return WordsOf(fault, ours->Where(), telling->wrong, telling->remedy);
}

bool IsOfLock(const std::exception& fault) { return IsOfKind(fault, FaultKind::locked); }

bool IsOfStop(const std::exception& fault) { return IsOfKind(fault, FaultKind::stopped); }

}  // namespace rbt
