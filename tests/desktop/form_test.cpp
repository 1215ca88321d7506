// SPDX-License-Identifier: MIT
#include "desktop/form.h"

#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <gtest/gtest.h>

#include "support/desktop/key_press.h"

namespace rbt::test {

namespace {

/// Two columns and three rows of buttons, named by column and row; the one at right below is missing.
class ButtonGrid : public QWidget {
 public:
  ButtonGrid() {
    for (const char* name : {"a1", "b1", "a2", "b2", "a3"}) {
      auto* button = new QPushButton(name, this);
      button->setObjectName(name);
      button->setGeometry(name[0] == 'a' ? 10 : 210, (name[1] - '0') * 50, 190, 40);
    }
    resize(420, 250);
    PrepareForm(*this);
    show();
    activateWindow();
    Settle();
  }

  QPushButton& Button(const char* name) { return *findChild<QPushButton*>(name); }
  std::string Focused() const { return focusWidget()->objectName().toStdString(); }
  std::string After(const char* from, int key) {
    Button(from).setFocus();
    Press(*this, key);
    return Focused();
  }
};

}  // namespace

TEST(Form, ArrowKeysMoveTheFocusAsTheEyeGoes) {
  ButtonGrid form;
  EXPECT_EQ(form.After("a1", Qt::Key_Down), "a2");
  EXPECT_EQ(form.After("a1", Qt::Key_Right), "b1");
  EXPECT_EQ(form.After("b2", Qt::Key_Left), "a2");
  EXPECT_EQ(form.After("b2", Qt::Key_Up), "b1");
  EXPECT_EQ(form.After("b2", Qt::Key_Down), "a3") << "the nearest below";
}

TEST(Form, ArrowKeysStayAtTheEdge) {
  ButtonGrid form;
  EXPECT_EQ(form.After("a1", Qt::Key_Up), "a1");
  EXPECT_EQ(form.After("a1", Qt::Key_Left), "a1");
  EXPECT_EQ(form.After("a3", Qt::Key_Down), "a3");
}

TEST(Form, ArrowKeysPassOverHiddenAndDisabledButtons) {
  ButtonGrid form;
  form.Button("a2").hide();
  EXPECT_EQ(form.After("a1", Qt::Key_Down), "a3");
  form.Button("b1").setEnabled(false);
  EXPECT_EQ(form.After("a1", Qt::Key_Right), "b2");
}

TEST(Form, EnterPressesTheFocusedButton) {
  ButtonGrid form;
  int pressed = 0;
  QObject::connect(&form.Button("a2"), &QPushButton::clicked, [&] { ++pressed; });
  form.Button("a2").setFocus();
  Press(form, Qt::Key_Return);
  Press(form, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(pressed, 2);
}

TEST(Form, IsCentredOnItsScreen) {
  QWidget form;
  form.resize(300, 200);
  Center_Form(form);
  const QRect screen = form.screen()->availableGeometry();
  EXPECT_EQ(form.x() - screen.left(), (screen.width() - 300) / 2);
  EXPECT_EQ(form.y() - screen.top(), (screen.height() - 200) / 2);
}

TEST(Form, ShownModallyReturnsWhenItIsHidden) {
  QWidget form;
  Qt::WindowModality modality = Qt::NonModal;
  QTimer::singleShot(0, [&] {
    modality = form.windowModality();
    form.hide();
  });
  ShowModally(form);
  EXPECT_EQ(modality, Qt::ApplicationModal);
}

TEST(Form, InPlaceOfTheActiveWindowHidesItMeanwhile) {
  QWidget below;
  below.show();
  below.activateWindow();
  Settle();
  QWidget form;
  bool below_shown = true;
  QTimer::singleShot(20, &form, [&] {
    below_shown = below.isVisible();
    form.close();
  });
  ShowInPlace(form);
  Settle();
  EXPECT_FALSE(below_shown);
  EXPECT_TRUE(below.isVisible());
  EXPECT_EQ(QApplication::activeWindow(), &below);
}

TEST(Form, InPlaceOfNoWindowIsShownAlone) {
  QWidget form;
  QTimer::singleShot(20, &form, [&] { form.close(); });
  ShowInPlace(form);
  EXPECT_FALSE(form.isVisible());
}

}  // namespace rbt::test
