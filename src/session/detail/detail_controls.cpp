// SPDX-License-Identifier: MIT
#include "session/detail/detail_controls.h"

#include <array>

namespace rbt {

namespace {

constexpr std::array<DetailButtonRow, kDetailButtonCount> kButtons{{
    {DetailButton::percent, "cmdPercent", "％乗せ(F1)", 1, false, "重量を％上乗せします"},
    {DetailButton::correct, "cmdHonsuu", "値修正(F2)", 2, false, "好きな本数に値を修正します"},
    {DetailButton::restore, "cmdTeisei", "値戻し(F3)", 3, false, "上乗せする前の値に戻します"},
    {DetailButton::print, "cmdMeisaiPrint", "印字(F4)", 4, false, "集計表を印刷します"},
    {DetailButton::save, "cmdSave", "保存(F5)", 5, false, "値を保存します"},
    {DetailButton::load, "cmdLoad", "読込(F6)", 6, false, "保存した値を読み込みます"},
    {DetailButton::manage, "cmdMent", "管理(F7)", 7, false, "保存したデータを削除したり名前を変えたりします"},
    {DetailButton::leave, "cmdExit", "終了(ESC)", 0, false, "終了します"},
    {DetailButton::a4_landscape, "btnA4Y", "A4ヨコ （F1）", 1, true, ""},
    {DetailButton::a4_portrait, "btnA4T", "A4タテ （F3）", 3, true, ""},
    {DetailButton::settings, "btnSettei", "設定 （F5）", 5, true, ""},
    {DetailButton::close_print, "btnReturn", "終　了(ESC)", 0, true, ""},
}};

constexpr std::string_view kScreenHelp =
    "F1 ～ F6　キーで選択して下さい（マウスクリックでも可）　　　　ESC : 終了";
constexpr std::string_view kMemoHelp =
    "メモを入力（省略可）Ａ４タテは３０文字以内　F1～F5 を押すかボタンをクリックして下さい";

struct FieldHelp {
  std::string_view control;
  std::string_view help;
};
constexpr FieldHelp kFieldHelps[] = {
    {"txtSubKojNa", kMemoHelp},
    {"txtSubKojNa2", "メモを入力（省略可）　F1～F5 を押すかボタンをクリックして下さい"},
    {"txtSubKojNa3", kMemoHelp},
    {"txtMemoI", "メモ印刷位置の指定（Ａ４ヨコのみ）　0:下　1:上（３０文字以内）　を入力して下さい"},
    {"ToriJyuP", "取り付け重量を一覧表に印刷（Ａ４ヨコのみ）　0 : しない　1 : する　を入力して下さい"},
};

}  // namespace

std::span<const DetailButtonRow, kDetailButtonCount> DetailButtons() { return kButtons; }

const DetailButtonRow& RowOf(DetailButton button) { return kButtons[static_cast<std::size_t>(button)]; }

std::string_view HelpOf(std::string_view control) {
  for (const DetailButtonRow& row : kButtons) {
    if (row.control == control && !row.help.empty()) return row.help;
  }
  for (const FieldHelp& field : kFieldHelps) {
    if (field.control == control) return field.help;
  }
  return kScreenHelp;
}

}  // namespace rbt
