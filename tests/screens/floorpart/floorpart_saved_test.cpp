// SPDX-License-Identifier: MIT
// The forms of floors and parts with the dialogs of saved tallies over them.
#include <gtest/gtest.h>

#include "archive/store/saved_tallies.h"
#include "screens/floorpart/floorpart_form_driver.h"
#include "screens/floorpart/floorpart_forms.h"
#include "shell/context/site_context.h"
#include "support/desktop/next_dialog.h"

namespace rbt::test {

namespace {

class SavingForm {
 public:
  explicit SavingForm(std::unique_ptr<QWidget> (*make)()) {
    FloorPartSite::Load();
    form = make();
    form->show();
    form->activateWindow();
    Key(Qt::Key_F2);
    Key(Qt::Key_F1);
  }
  void Key(int key) const {
    Press(*form, key);
    Settle();
  }
  std::size_t Saved(TallyKind kind) const {
    return SavedTallies(*SiteContext.WorkDatabase, kind, false).size();
  }
  std::string Label(const char* name) const { return form->findChild<QLabel*>(name)->text().toStdString(); }

  FloorPartSite site;
  std::unique_ptr<QWidget> form;
};

}  // namespace

TEST(SavingFloorForm, F6SavesAndF7ShowsWhatWasSaved) {
  const SavingForm kaijs(MakeKAIJS);
  const WithNextDialog save(SaveAsProposed);
  kaijs.Key(Qt::Key_F6);
  EXPECT_EQ(save.met, "SaveFiles");
  EXPECT_EQ(kaijs.Saved(TallyKind::floor), 1U);
  const WithNextDialog load(LoadTheFirst);
  kaijs.Key(Qt::Key_F7);
  EXPECT_EQ(load.met, "LoadFiles");
  EXPECT_EQ(kaijs.Label("lblkai"), "【1階～3階】");
  EXPECT_FALSE(kaijs.form->findChild<QPushButton*>("cmdJShuusei")->isEnabled());
  EXPECT_FALSE(kaijs.form->findChild<QPushButton*>("ZairyouR")->isEnabled());
  EXPECT_TRUE(kaijs.form->findChild<QPushButton*>("cmdSave")->isEnabled());
}

TEST(SavingPartForm, F6SavesAndF8ShowsWhatWasSaved) {
  const SavingForm buijs(MakeBUIJS);
  const WithNextDialog save(SaveAsProposed);
  buijs.Key(Qt::Key_F6);
  EXPECT_EQ(buijs.Saved(TallyKind::part), 1U);
  const WithNextDialog load(LoadTheFirst);
  buijs.Key(Qt::Key_F8);
  EXPECT_EQ(load.met, "LoadFiles");
  EXPECT_FALSE(buijs.form->findChild<QPushButton*>("cmdJShuusei")->isEnabled());
}

TEST(SavingForms, APressOfTheManagingButtonChangesNothingOnTheScreen) {
  for (std::unique_ptr<QWidget> (*const make)() : {MakeKAIJS, MakeBUIJS}) {
    const SavingForm form(make);
    auto* button = form.form->findChild<QPushButton*>("cmdMent");
    button->setFocus();
    Settle();
    const QImage before = form.form->grab().toImage();
    button->click();
    Settle();
    EXPECT_EQ(form.form->grab().toImage(), before);
    EXPECT_TRUE(form.site.Messages().empty());
  }
}

TEST(SavingFloorForm, ALoadedTallyWithoutRowsLeavesAnEmptyGridThatKeysDoNotUpset) {
  const SavingForm kaijs(MakeKAIJS);
  const WithNextDialog save(SaveAsProposed);
  kaijs.Key(Qt::Key_F6);
  SiteContext.WorkDatabase->Execute("DELETE * FROM 階部位重量集計");
  const WithNextDialog load(LoadTheFirst);
  kaijs.Key(Qt::Key_F7);
  EXPECT_EQ(kaijs.site.Messages().back().text, "データがありません");
  const auto* grid = kaijs.form->findChild<QTableView*>("dbgKai");
  EXPECT_EQ(grid->model()->rowCount(), 0);
  for (const int key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Right, Qt::Key_Home}) kaijs.Key(key);
  kaijs.Key(Qt::Key_F3);
  EXPECT_TRUE(kaijs.form->findChild<QWidget*>("pnlInputKai")->isVisible());
}

}  // namespace rbt::test
