// SPDX-License-Identifier: MIT
#include "session/detail/detail_controls.h"

#include <array>

namespace rbt {

namespace {

constexpr std::array<DetailButtonRow, kDetailButtonCount> kButtons{{
    {DetailButton::percent, "cmdPercent", "％乗せ(F1)", 1, false},
    {DetailButton::correct, "cmdHonsuu", "値修正(F2)", 2, false},
    {DetailButton::restore, "cmdTeisei", "値戻し(F3)", 3, false},
    {DetailButton::print, "cmdMeisaiPrint", "印字(F4)", 4, false},
    {DetailButton::save, "cmdSave", "保存(F5)", 5, false},
    {DetailButton::load, "cmdLoad", "読込(F6)", 6, false},
    {DetailButton::manage, "cmdMent", "管理(F7)", 7, false},
    {DetailButton::leave, "cmdExit", "終了(ESC)", 0, false},
    {DetailButton::a4_landscape, "btnA4Y", "A4ヨコ （F1）", 1, true},
    {DetailButton::a4_portrait, "btnA4T", "A4タテ （F3）", 3, true},
    {DetailButton::settings, "btnSettei", "設定 （F5）", 5, true},
    {DetailButton::close_print, "btnReturn", "終　了(ESC)", 0, true},
}};

constexpr std::string_view kMemoHelp =
    "メモを入力（省略可）Ａ４タテは３０文字以内　F1～F5 を押すかボタンをクリックして下さい";

constexpr ControlHint kHints[] = {
    {"cmdPercent", "重量を％上乗せします"},
    {"cmdHonsuu", "好きな本数に値を修正します"},
    {"cmdTeisei", "上乗せする前の値に戻します"},
    {"cmdMeisaiPrint", "集計表を印刷します"},
    {"cmdSave", "値を保存します"},
    {"cmdLoad", "保存した値を読み込みます"},
    {"cmdMent", "保存したデータを削除したり名前を変えたりします"},
    {"cmdExit", "終了します"},
    {"txtSubKojNa", kMemoHelp},
    {"txtSubKojNa2", "メモを入力（省略可）　F1～F5 を押すかボタンをクリックして下さい"},
    {"txtSubKojNa3", kMemoHelp},
    {"txtMemoI", "メモ印刷位置の指定（Ａ４ヨコのみ）　0:下　1:上（３０文字以内）　を入力して下さい"},
    {"ToriJyuP", "取り付け重量を一覧表に印刷（Ａ４ヨコのみ）　0 : しない　1 : する　を入力して下さい"},
};

}  // namespace

std::span<const DetailButtonRow, kDetailButtonCount> DetailButtons() { return kButtons; }

const DetailButtonRow& RowOf(DetailButton button) { return kButtons[static_cast<std::size_t>(button)]; }

std::span<const ControlHint> DetailHints() { return kHints; }

}  // namespace rbt
