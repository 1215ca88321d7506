// SPDX-License-Identifier: MIT
#include "screens/panels/form_actions.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "support/desktop/key_press.h"
#include "support/site_fixture.h"

namespace rbt::test {

namespace {

/// A form with two buttons on one key, a check box on another and a key without a control.
struct Form {
  explicit Form(KeysAct keys_act) {
    form.setWindowTitle("題");
    for (QWidget* control : {static_cast<QWidget*>(first), static_cast<QWidget*>(second)}) control->show();
    first->setObjectName("cmdFirst");
    second->setObjectName("cmdSecond");
    box->setObjectName("chkBox");
    const auto call = [this](const char* name) { return [this, name] { Call(name); }; };
    new FormActions(form,
                    {{"cmdFirst", Qt::Key_F1, call("first")},
                     {"cmdSecond", Qt::Key_F1, call("second")},
                     {"chkBox", Qt::Key_F2, call("box")},
                     {"", Qt::Key_Escape, call("alone")}},
                    keys_act);
    form.show();
    Settle();
  }
  void Call(const char* name) {
    called += name;
    if (faulty) throw Fault(FaultKind::overflow, name);
  }
  std::string Key(int key, bool repeat = false) {
    called.clear();
    EXPECT_TRUE(Press(form, key, Qt::NoModifier, repeat)) << "eaten, whatever comes of it";
    return called;
  }

  const SiteFixture site;
  QWidget form;
  QPushButton* first = new QPushButton(&form);
  QPushButton* second = new QPushButton(&form);
  QCheckBox* box = new QCheckBox(&form);
  std::string called;
  bool faulty = false;
};

}  // namespace

TEST(FormActions, AClickAndTheKeyCallTheSame) {
  Form form(KeysAct::where_the_control_can_be_pressed);
  form.first->click();
  EXPECT_EQ(form.called, "first");
  EXPECT_EQ(form.Key(Qt::Key_F1), "first");
  EXPECT_EQ(form.Key(Qt::Key_F2), "box");
  EXPECT_EQ(form.Key(Qt::Key_Escape), "alone");
  EXPECT_FALSE(Press(form.form, Qt::Key_F3));
}

TEST(FormActions, AClickInACheckBoxTurnsItOverAndCallsNothing) {
  Form form(KeysAct::where_the_control_can_be_pressed);
  form.box->click();
  EXPECT_TRUE(form.box->isChecked());
  EXPECT_EQ(form.called, "");
}

TEST(FormActions, AKeyActsForTheFirstOfItsControlsThatCanBePressed) {
  Form form(KeysAct::where_the_control_can_be_pressed);
  form.first->hide();
  EXPECT_EQ(form.Key(Qt::Key_F1), "second");
  form.second->setEnabled(false);
  EXPECT_EQ(form.Key(Qt::Key_F1), "");
  form.first->show();
  EXPECT_EQ(form.Key(Qt::Key_F1), "first");
}

TEST(FormActions, AKeyThatAlwaysActsDoesSoForAHiddenControlToo) {
  Form form(KeysAct::always);
  form.first->hide();
  form.first->setEnabled(false);
  EXPECT_EQ(form.Key(Qt::Key_F1), "first");
}

TEST(FormActions, ShiftF1ShowsTheKeysThatActNow) {
  Form form(KeysAct::where_the_control_can_be_pressed);
  form.first->setText("一番目 （F1）");
  form.first->setToolTip("最初の仕事");
  form.second->hide();
  std::vector<std::string> texts;
  QTimer::singleShot(0, [&texts] {
    QWidget* card = QApplication::activeModalWidget();
    if (card == nullptr) return;
    for (const QLabel* label : card->findChildren<QLabel*>()) texts.push_back(label->text().toStdString());
    Press(*card, Qt::Key_Escape);
  });
  EXPECT_TRUE(Press(form.form, Qt::Key_F1, Qt::ShiftModifier));
  EXPECT_EQ(form.called, "") << "the key itself does not act";
  EXPECT_EQ(texts, (std::vector<std::string>{"題", "F1", "一番目 （F1）", "最初の仕事", "F2", "", ""}));
}

TEST(FormActions, AHeldKeyActsOnce) {
  Form form(KeysAct::always);
  EXPECT_EQ(form.Key(Qt::Key_F1, true), "");
}

TEST(FormActions, AFaultIsToldUnderTheFormsTitle) {
  Form form(KeysAct::always);
  form.faulty = true;
  form.second->click();
  form.Key(Qt::Key_F2);
  ASSERT_EQ(form.site.Messages().size(), 2U);
  EXPECT_TRUE(form.site.Messages()[0].text.ends_with("overflow: second")) << form.site.Messages()[0].text;
  EXPECT_TRUE(form.site.Messages()[1].text.ends_with("overflow: box")) << form.site.Messages()[1].text;
  EXPECT_EQ(form.site.Messages()[1].title, "題");
}

}  // namespace rbt::test
