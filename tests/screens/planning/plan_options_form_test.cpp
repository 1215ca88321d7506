// SPDX-License-Identifier: MIT
#include "screens/planning/plan_options_form.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/desktop/key_press.h"
#include "support/desktop/next_dialog.h"
#include "support/site_fixture.h"

namespace rbt {
namespace {

using test::Press;
using test::Settle;
using ::testing::HasSubstr;
using ::testing::SizeIs;

class OptionsWindow : public ::testing::Test {
 protected:
  void Open(const PlanChoices& choices = {}) {
    form_ = std::make_unique<PlanOptionsForm>(choices);
    form_->show();
    form_->activateWindow();
    Settle();
  }

  QLineEdit& Box(const char* name) const { return *form_->findChild<QLineEdit*>(name); }
  QCheckBox& Tick(const char* name) const { return *form_->findChild<QCheckBox*>(name); }
  /// As typed by hand over what stands in the box.
  void Type(const char* name, const QString& text) const {
    Box(name).setText(text);
    emit Box(name).textEdited(text);
  }

  const test::SiteFixture site_;
  std::unique_ptr<PlanOptionsForm> form_;
};

TEST_F(OptionsWindow, HasABoxForEveryFieldAndShowsItsText) {
  PlanChoices choices;
  choices.kerf = 3;
  choices.keep_welded = true;
  Open(choices);
  for (const PlanField& field : PlanFields()) {
    if (field.control.empty()) continue;
    const QString name = QString::fromStdString(std::string(field.control));
    if (field.kind == PlanFieldKind::tick) {
      const auto* box = form_->findChild<QCheckBox*>(name);
      ASSERT_NE(box, nullptr) << field.control;
      EXPECT_EQ(box->isChecked(), field.text(choices) == "1") << field.control;
    } else {
      const auto* box = form_->findChild<QLineEdit*>(name);
      ASSERT_NE(box, nullptr) << field.control;
      EXPECT_EQ(box->text().toStdString(), field.text(choices)) << field.control;
    }
  }
  EXPECT_FALSE(Tick("chkSets").isEnabled());
}

TEST_F(OptionsWindow, TakesWhatWasTypedByF1) {
  Open();
  Type("txtTrim", "10");
  Tick("chkMoney").click();
  EXPECT_TRUE(Press(*form_, Qt::Key_F1));
  EXPECT_FALSE(form_->isVisible());
  PlanChoices expected;
  expected.trim = 10;
  expected.by_money = true;
  EXPECT_EQ(form_->Taken(), expected);
}

TEST_F(OptionsWindow, LeadsToTheBoxThatIsWrong) {
  Open();
  Type("txtScope", "roof");
  Press(*form_, Qt::Key_F1);
  EXPECT_TRUE(form_->isVisible());
  EXPECT_EQ(form_->focusWidget(), &Box("txtScope"));
  ASSERT_THAT(site_.Messages(), SizeIs(1));
  EXPECT_THAT(site_.Messages()[0].text, HasSubstr("floor"));
}

TEST_F(OptionsWindow, EnterMovesOnFromABox) {
  Open();
  ASSERT_EQ(form_->focusWidget(), &Box("txtKerf"));
  Press(*form_, Qt::Key_Return);
  EXPECT_EQ(form_->focusWidget(), &Box("txtTrim"));
  EXPECT_TRUE(form_->isVisible());
}

TEST_F(OptionsWindow, F2BringsTheDefaultsAndEscChangesNothing) {
  PlanChoices choices;
  choices.trim = 10;
  choices.greedy = true;
  Open(choices);
  Press(*form_, Qt::Key_F2);
  EXPECT_EQ(Box("txtTrim").text(), "0");
  EXPECT_FALSE(Tick("chkGreedy").isChecked());
  Press(*form_, Qt::Key_Escape);
  EXPECT_FALSE(form_->isVisible());
  EXPECT_FALSE(form_->Taken());
}

TEST_F(OptionsWindow, WritesTheChosenFileIntoItsBox) {
  const std::string file = site_.Root().Put("rests.csv", "diameter,kind,length,count\n").string();
  Open();
  const test::WithNextDialog choose([&](QWidget& dialog) {
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(file));
    QMetaObject::invokeMethod(&dialog, "accept");
  });
  form_->findChild<QPushButton*>("cmdRestsFile")->click();
  EXPECT_EQ(choose.met, "cdgCsv");
  EXPECT_EQ(Box("txtRestsFile").text().toStdString(), file);
  Press(*form_, Qt::Key_F1);
  ASSERT_TRUE(form_->Taken());
  EXPECT_EQ(form_->Taken()->rests_file, file);
}

}  // namespace
}  // namespace rbt
