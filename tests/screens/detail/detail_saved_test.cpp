// SPDX-License-Identifier: MIT
// The purchase list with the dialogs of saved tallies over it.
#include <gtest/gtest.h>

#include "archive/store/saved_tallies.h"
#include "screens/detail/detail_form_driver.h"
#include "screens/detail/detail_forms.h"
#include "support/desktop/next_dialog.h"

namespace rbt::test {

namespace {

class SavingZaimei : public ZaimeiDriver {
 public:
  explicit SavingZaimei(TallyKind kind) : ZaimeiDriver(kind) {
    form = MakeZAIMEI(counted);
    form->show();
    form->activateWindow();
    Settle();
  }
  void Raise(const std::string& percent) {
    Key(Qt::Key_F1);
    Type(percent);
    Key(Qt::Key_Return);
  }
  void Note(const std::string& memo) {
    FocusOn("txtSubKojNa");
    Box("txtSubKojNa")->selectAll();
    Type(memo);
  }
  std::string Bars() const { return Cell(3, 7); }
};

}  // namespace

TEST(SavingDetailForm, F5SavesWhatIsShownAndF6BringsItBackWithItsMemo) {
  for (const TallyKind kind : {TallyKind::bulk, TallyKind::shape, TallyKind::page, TallyKind::page_shape}) {
    SavingZaimei zaimei(kind);
    zaimei.Raise("100");
    zaimei.Note("基礎");
    const WithNextDialog save(SaveAsProposed);
    zaimei.Key(Qt::Key_F5);
    EXPECT_EQ(save.met, "SaveFiles");
    zaimei.Raise("100");
    zaimei.Note("x");
    ASSERT_EQ(zaimei.Bars(), "40");
    const WithNextDialog load(LoadTheFirst);
    zaimei.Key(Qt::Key_F6);
    EXPECT_EQ(load.met, "LoadFiles");
    EXPECT_EQ(zaimei.Bars(), "20");
    EXPECT_EQ(zaimei.BoxText("txtSubKojNa"), "基礎");
    EXPECT_EQ(zaimei.form->Result().origin, ResultOrigin::loaded);
    EXPECT_EQ(zaimei.Pressable(), kMainButtons);
    const std::vector<SavedTally> list = SavedTallies(*SiteContext.WorkDatabase, kind, false);
    ASSERT_EQ(list.size(), 1U);
    EXPECT_TRUE(list.front().name.ends_with("  ( 基礎 )"));
  }
}

TEST(SavingDetailForm, EscInItsDialogsLeavesTheListAsItIs) {
  SavingZaimei zaimei(TallyKind::bulk);
  const auto leave = [](QWidget& dialog) { Press(dialog, Qt::Key_Escape); };
  for (const int key : {Qt::Key_F5, Qt::Key_F6}) {
    const WithNextDialog dialog(leave);
    zaimei.Key(key);
    EXPECT_NE(dialog.met, "");
    EXPECT_EQ(zaimei.Bars(), "10");
    EXPECT_EQ(zaimei.Pressable(), kMainButtons);
  }
}

}  // namespace rbt::test
