// SPDX-License-Identifier: MIT
#include <set>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>
#include <QTimer>
#include <gtest/gtest.h>

#include "showroom/all_forms.h"
#include "support/desktop/key_press.h"
#include "support/sample.h"
#include "support/site_fixture.h"
#include "support/user_home.h"

namespace rbt::test {

namespace {

QRect PlaceOf(const QWidget& control, const QWidget& form) {
  return {control.mapTo(&form, QPoint(0, 0)), control.size()};
}

/// Controls that Tab comes to, in its order, from the one on that the eye meets first.
std::vector<QWidget*> TabWalk(QWidget& form) {
  std::vector<QWidget*> walk;
  for (QWidget* at = form.focusWidget(); at != nullptr; at = form.focusWidget()) {
    if (std::find(walk.begin(), walk.end(), at) != walk.end()) break;
    walk.push_back(at);
    Press(form, Qt::Key_Tab);
  }
  const auto first = std::min_element(walk.begin(), walk.end(), [&](const QWidget* a, const QWidget* b) {
    const QRect left = PlaceOf(*a, form);
    const QRect right = PlaceOf(*b, form);
    return std::pair(left.top(), left.left()) < std::pair(right.top(), right.left());
  });
  std::rotate(walk.begin(), first, walk.end());
  return walk;
}

/// True when the eye goes on from `from` to `to`: downwards, or to the right.
bool ReadsOn(const QRect& from, const QRect& to) {
  return to.top() >= from.bottom() || to.left() >= from.right();
}

QSize TextSize(const QWidget& control, const QString& text) { return control.fontMetrics().size(0, text); }

/// The text of a control, and the room that it has for it.
struct Caption {
  QString text;
  QSize room;
};

std::optional<Caption> CaptionOf(const QWidget& control) {
  if (const auto* label = qobject_cast<const QLabel*>(&control)) {
    return Caption{label->text(), label->contentsRect().size()};
  }
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    QStyle::SubElement contents = QStyle::SE_PushButtonContents;
    if (qobject_cast<const QCheckBox*>(button) != nullptr) contents = QStyle::SE_CheckBoxContents;
    if (qobject_cast<const QRadioButton*>(button) != nullptr) contents = QStyle::SE_RadioButtonContents;
    const QRect room = button->style()->subElementRect(contents, &option, button);
    return Caption{button->text(), room.size()};
  }
  if (const auto* frame = qobject_cast<const QGroupBox*>(&control)) {
    return Caption{frame->title(), frame->size()};
  }
  return std::nullopt;
}

void ExpectNoClippedCaption(const QWidget& form, const std::string& where) {
  for (const QWidget* control : form.findChildren<QWidget*>()) {
    if (!control->isVisible()) continue;
    EXPECT_TRUE(form.rect().contains(PlaceOf(*control, form)))
        << where << ": " << control->objectName().toStdString() << " leaves the form";
    const std::optional<Caption> caption = CaptionOf(*control);
    if (!caption || caption->text.isEmpty()) continue;
    const QSize needed = TextSize(*control, caption->text);
    EXPECT_LE(needed.width(), caption->room.width()) << where << ": " << caption->text.toStdString();
    EXPECT_LE(needed.height(), caption->room.height()) << where << ": " << caption->text.toStdString();
  }
}

/// A site whose schedule is not empty: a straight bar and a welded hoop; with two registered names. What its
/// forms save goes into a home folder of its own.
struct WalkedSite : SiteFixture {
  WalkedSite() {
    for (const std::int64_t name : {1, 2}) {
      Add(kCompanionFile, "登録名", {{"登録AN", name}, {"登録名", std::string("柱・梁配筋")}});
    }
    for (const std::int64_t shape : {1, 87}) {
      AddRow({{"太さ", std::int64_t{13}},
              {"形状No", shape},
              {"本数", std::int64_t{10}},
              {"合計", std::int64_t{10}},
              {"伸切寸", std::int64_t{6000}},
              {"伸定尺", 6.0},
              {"伸総計", std::int64_t{10}}});
    }
  }

  const UserHome home;
};

/// Puts away every form that an action shows modally, so that the action comes to its end.
class ModalFormCloser {
 public:
  ModalFormCloser() {
    QObject::connect(&timer_, &QTimer::timeout, [] {
      if (QWidget* form = QApplication::activeModalWidget()) form->hide();
    });
    timer_.start(5);
  }

 private:
  QTimer timer_;
};

/// A form in one of its states, shown.
std::unique_ptr<QWidget> Shown(const FormEntry& entry, const FormState& state) {
  std::unique_ptr<QWidget> form = entry.make();
  form->show();
  form->activateWindow();
  Settle();
  state.bring(*form);
  Settle();
  return form;
}

}  // namespace

TEST(AllForms, AreNamedAsRegistered) {
  const WalkedSite site;
  for (const FormEntry& entry : AllForms()) {
    EXPECT_EQ(entry.make()->objectName().toStdString(), entry.name);
    EXPECT_FALSE(entry.states.empty()) << entry.name;
  }
}

TEST(AllForms, StartWithTheFocusOnTheirFirstControl) {
  const WalkedSite site;
  for (const FormEntry& entry : AllForms()) {
    const std::unique_ptr<QWidget> form = Shown(entry, entry.states.front());
    ASSERT_NE(form->focusWidget(), nullptr) << entry.name;
    EXPECT_EQ(form->focusWidget()->objectName().toStdString(), entry.first_focus);
  }
}

TEST(AllForms, TabGoesRoundInReadingOrder) {
  const WalkedSite site;
  for (const FormEntry& entry : AllForms()) {
    for (const FormState& state : entry.states) {
      const std::unique_ptr<QWidget> form = Shown(entry, state);
      const std::vector<QWidget*> walk = TabWalk(*form);
      ASSERT_FALSE(walk.empty()) << entry.name << " " << state.name;
      for (std::size_t i = 1; i < walk.size(); ++i) {
        EXPECT_TRUE(ReadsOn(PlaceOf(*walk[i - 1], *form), PlaceOf(*walk[i], *form)))
            << entry.name << " " << state.name << ": " << walk[i - 1]->objectName().toStdString() << " to "
            << walk[i]->objectName().toStdString();
      }
    }
  }
}

TEST(AllForms, LetTabLeaveTheirFirstControl) {
  const WalkedSite site;
  for (const FormEntry& entry : AllForms()) {
    EXPECT_GT(TabWalk(*Shown(entry, entry.states.front())).size(), 1U) << entry.name;
  }
}

TEST(AllForms, ShowTheirCaptionsWhole) {
  const WalkedSite site;
  for (const FormEntry& entry : AllForms()) {
    for (const FormState& state : entry.states) {
      const std::unique_ptr<QWidget> form = Shown(entry, state);
      ExpectNoClippedCaption(*form, entry.name + " " + state.name);
      form->resize(1, 1);
      Settle();
      ExpectNoClippedCaption(*form, entry.name + " " + state.name + ", as small as it goes");
    }
  }
}

TEST(AllForms, SayWhatEachButtonDoes) {
  const WalkedSite site;
  for (const FormEntry& entry : AllForms()) {
    const std::unique_ptr<QWidget> form = Shown(entry, entry.states.front());
    for (const QAbstractButton* button : form->findChildren<QAbstractButton*>()) {
      const QString name = button->objectName();
      if (name.isEmpty() || name.startsWith("qt_")) continue;  // of a grid or a view, not of the form
      EXPECT_FALSE(button->toolTip().isEmpty()) << entry.name << ": " << name.toStdString();
    }
  }
}

/// What a screen of 1366 x 768 leaves beside its task bar and a title bar, and one of 1920 x 1080 at one and
/// a half times the size.
TEST(AllForms, FitASmallScreen) {
  constexpr QSize kRoom(1280, 648);
  const WalkedSite site;
  for (const FormEntry& entry : AllForms()) {
    for (const FormState& state : entry.states) {
      const std::unique_ptr<QWidget> form = Shown(entry, state);
      form->resize(1, 1);
      Settle();
      EXPECT_LE(form->width(), kRoom.width()) << entry.name << " " << state.name;
      EXPECT_LE(form->height(), kRoom.height()) << entry.name << " " << state.name;
    }
  }
}

TEST(AllForms, AnswerEveryKeyOfTheirTableInEveryState) {
  const WalkedSite site;
  const ModalFormCloser closer;
  for (const FormEntry& entry : AllForms()) {
    EXPECT_FALSE(entry.keys.empty()) << entry.name;
    for (std::size_t s = 0; s < entry.states.size(); ++s) {
      for (std::size_t k = 0; k < entry.keys.size(); ++k) {
        if (!IsTriedWith(k, s, entry.states.size())) continue;
        const std::unique_ptr<QWidget> form = Shown(entry, entry.states[s]);
        EXPECT_TRUE(Press(*form, entry.keys[k]))
            << entry.name << " " << entry.states[s].name << " key " << entry.keys[k];
      }
    }
  }
}

/// The buttons that can be pressed in a state and were not in one before.
std::vector<QString> NewButtons(const QWidget& form, std::set<QString>& known) {
  std::vector<QString> names;
  for (const QAbstractButton* button : form.findChildren<QAbstractButton*>()) {
    const QString name = button->objectName();
    if (name.isEmpty() || !button->isVisible() || !button->isEnabled()) continue;
    if (known.insert(name).second) names.push_back(name);
  }
  return names;
}

TEST(AllForms, HaveNoButtonThatIsNotReadyYet) {
  const WalkedSite site;
  const ModalFormCloser closer;
  std::size_t pressed = 0;
  for (const FormEntry& entry : AllForms()) {
    std::set<QString> known;
    for (const FormState& state : entry.states) {
      for (const QString& name : NewButtons(*Shown(entry, state), known)) {
        const std::unique_ptr<QWidget> form = Shown(entry, state);
        form->findChild<QAbstractButton*>(name)->click();
        Settle();
        ++pressed;
      }
    }
  }
  EXPECT_GT(pressed, 100U);
  EXPECT_FALSE(std::filesystem::is_empty(site.home / "Desktop")) << "the CSV file of saveDeskTop";
  for (const ShownMessage& message : site.Messages()) {
    EXPECT_EQ(message.text.find("まだご利用いただけません"), std::string::npos) << message.text;
  }
}

TEST(AllForms, EnterPressesTheButtonThatHasTheFocus) {
  const WalkedSite site;
  for (const FormEntry& entry : AllForms()) {
    const std::unique_ptr<QWidget> form = Shown(entry, entry.states.front());
    for (QPushButton* button : form->findChildren<QPushButton*>()) {
      if (!button->isVisible() || !button->isEnabled()) continue;
      int pressed = 0;
      button->disconnect();
      QObject::connect(button, &QPushButton::clicked, [&pressed] { ++pressed; });
      button->setFocus();
      Press(*form, Qt::Key_Return);
      EXPECT_EQ(pressed, 1) << entry.name << " " << button->objectName().toStdString();
    }
  }
}

}  // namespace rbt::test
