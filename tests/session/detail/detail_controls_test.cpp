// SPDX-License-Identifier: MIT
#include "session/detail/detail_controls.h"

#include <set>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace rbt {
namespace {

TEST(DetailControls, TheButtonsHaveTheirKeysAndCaptions) {
  struct Row {
    const char* control;
    const char* caption;
    int key;
    bool in_print_panel;
  };
  constexpr Row kRows[] = {
      {"cmdPercent", "％乗せ(F1)", 1, false}, {"cmdHonsuu", "値修正(F2)", 2, false},
      {"cmdTeisei", "値戻し(F3)", 3, false},  {"cmdMeisaiPrint", "印字(F4)", 4, false},
      {"cmdSave", "保存(F5)", 5, false},      {"cmdLoad", "読込(F6)", 6, false},
      {"cmdMent", "管理(F7)", 7, false},      {"cmdExit", "終了(ESC)", 0, false},
      {"btnA4Y", "A4ヨコ （F1）", 1, true},   {"btnA4T", "A4タテ （F3）", 3, true},
      {"btnSettei", "設定 （F5）", 5, true},  {"btnReturn", "終　了(ESC)", 0, true},
  };
  ASSERT_EQ(DetailButtons().size(), std::size(kRows));
  for (std::size_t i = 0; i < std::size(kRows); ++i) {
    const DetailButtonRow& row = DetailButtons()[i];
    EXPECT_EQ(row.control, kRows[i].control);
    EXPECT_EQ(row.caption, kRows[i].caption);
    EXPECT_EQ(row.key, kRows[i].key);
    EXPECT_EQ(row.in_print_panel, kRows[i].in_print_panel);
    EXPECT_EQ(&RowOf(row.button), &row);
  }
}

TEST(DetailControls, TheMainButtonsAndTheFieldsTellWhatTheyDo) {
  constexpr std::string_view kMemo =
      "メモを入力（省略可）Ａ４タテは３０文字以内　F1～F5 を押すかボタンをクリックして下さい";
  constexpr std::pair<std::string_view, std::string_view> kHints[] = {
      {"cmdPercent", "重量を％上乗せします"},
      {"cmdHonsuu", "好きな本数に値を修正します"},
      {"cmdTeisei", "上乗せする前の値に戻します"},
      {"cmdMeisaiPrint", "集計表を印刷します"},
      {"cmdSave", "値を保存します"},
      {"cmdLoad", "保存した値を読み込みます"},
      {"cmdMent", "保存したデータを削除したり名前を変えたりします"},
      {"cmdExit", "終了します"},
      {"txtSubKojNa", kMemo},
      {"txtSubKojNa2", "メモを入力（省略可）　F1～F5 を押すかボタンをクリックして下さい"},
      {"txtSubKojNa3", kMemo},
      {"txtMemoI", "メモ印刷位置の指定（Ａ４ヨコのみ）　0:下　1:上（３０文字以内）　を入力して下さい"},
      {"ToriJyuP", "取り付け重量を一覧表に印刷（Ａ４ヨコのみ）　0 : しない　1 : する　を入力して下さい"},
  };
  ASSERT_EQ(DetailHints().size(), std::size(kHints));
  for (std::size_t i = 0; i < std::size(kHints); ++i) {
    EXPECT_EQ(DetailHints()[i].control, kHints[i].first);
    EXPECT_EQ(DetailHints()[i].hint, kHints[i].second) << kHints[i].first;
  }
  EXPECT_EQ(kDetailHelp, "F1 ～ F6　キーで選択して下さい（マウスクリックでも可）　　　　ESC : 終了");
}

}  // namespace
}  // namespace rbt
