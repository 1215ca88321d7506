// SPDX-License-Identifier: MIT
#include <QGuiApplication>
#include <QLabel>
#include <QMouseEvent>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "screens/menu/menu_driver.h"
#include "shell/context/run_state.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::unique_ptr<QWidget> MakeScreen() { return std::make_unique<QWidget>(); }
std::unique_ptr<QWidget> MakeFaultyScreen() { throw Fault(FaultKind::overflow, "太さ 19"); }

/// A dialog that goes by itself, as one that the user ends at once.
std::unique_ptr<QWidget> MakePassingDialog() {
  auto dialog = std::make_unique<QWidget>();
  QWidget* shown = dialog.get();
  QMetaObject::invokeMethod(
      shown, [shown] { shown->close(); }, Qt::QueuedConnection);
  return dialog;
}

const MenuScreen kReadyScreens[] = {
    {"JS", MakeScreen},           {"KEIJOJS", MakeScreen},     {"PGJS", MakeScreen},
    {"PKEIJOJS", MakeScreen},     {"KAIJS", MakeFaultyScreen}, {"BUIJS", MakeScreen},
    {"SETJS", MakePassingDialog},
};

QWidget* OpenForm(const char* name) {
  for (QWidget* form : QApplication::topLevelWidgets()) {
    if (form->objectName() == name) return form;
  }
  return nullptr;
}

struct TallyKey {
  int key;
  const char* button;
  int tally_kind;
  const char* form;
};

constexpr TallyKey kTallyKeys[] = {
    {Qt::Key_F1, "cmdShuukei", 0, "JS"},       {Qt::Key_F5, "cmdKeijoShuukei", 1, "KEIJOJS"},
    {Qt::Key_F3, "cmdPGShuukei", 2, "PGJS"},   {Qt::Key_F7, "cmdKeijoPGShuukeia", 3, "PKEIJOJS"},
    {Qt::Key_F8, "cmdKaiShuukei", 4, "KAIJS"}, {Qt::Key_F9, "cmdBuiShuukei", 5, "BUIJS"},
};

struct SiblingKey {
  int key;
  const char* button;
  const char* command_line;
  const char* directory;  ///< below the root; nothing: left as it was
  WindowStyle style;
  bool polling;
  bool menu_visible;
};

constexpr SiblingKey kSiblingKeys[] = {
    {Qt::Key_F2, "cmdAllSites", "\\rbk\\rballsites.exe", "", WindowStyle::normal, false, true},
    {Qt::Key_F11, "cmdSiteSum", "\\rbk\\rbsitesum.exe", "", WindowStyle::normal, false, true},
    {Qt::Key_F4, "cmdWeldCount", "\\rbk\\kakou\\rbweldcnt.exe", "KAKOU", WindowStyle::maximised, false,
     false},
    {Qt::Key_F6, "cmdPlateCount", "\\rbk\\kakou\\rbplatecnt.exe", "KAKOU", WindowStyle::maximised, true,
     false},
    {Qt::Key_0, "cmdCouplerCount", "\\rbk\\kakou\\rbjoincnt.exe", "KAKOU", WindowStyle::maximised, true,
     false},
    {Qt::Key_1, "cmdCutCount", "\\rbk\\kakou\\rbcutcnt.exe", "KAKOU", WindowStyle::maximised, true, false},
    {Qt::Key_3, "cmdPlateSheet", "\\rbk\\kakou\\rbplateprt.exe", "KAKOU", WindowStyle::maximised, true,
     false},
    {Qt::Key_F10, "cmdKaiBuiK", "\\rbk\\rbshopTM\\rbledger1.exe 4", nullptr, WindowStyle::normal, true, true},
    {Qt::Key_F12, "cmdTouroS", "\\rbk\\rbtally2.exe", "", WindowStyle::maximised, true, false},
    {Qt::Key_2, "cmdMeiEfu", "\\rbk\\KAKOU\\rbstockfit.exe", "", WindowStyle::hidden, false, false},
};

MenuLaunch Expected(const SiblingKey& row, const RootFolder& root) {
  MenuLaunch launch{{row.command_line, row.style, row.polling}, std::nullopt, row.menu_visible};
  if (row.directory != nullptr) {
    launch.directory = *row.directory == '\0' ? root.Path() : root / row.directory;
  }
  return launch;
}

}  // namespace

class MenuInEveryStartMode : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(StartModes, MenuInEveryStartMode, testing::Values(-1, 0, 1, 4, 7));

TEST_P(MenuInEveryStartMode, ATallyKeySetsTheTallyKindAndWritesTheHandOverWithoutAForm) {
  for (const TallyKey& row : kTallyKeys) {
    ScriptedMenu driver(GetParam());
    JSMENU& menu = driver.Open();
    Selection.TallyKind = TallyKind{9};
    EXPECT_TRUE(Press(menu, row.key)) << row.button;
    EXPECT_EQ(Selection.TallyKind, TallyKind{row.tally_kind});
    EXPECT_EQ(driver.HandOver("材料明細"), "0");
    ASSERT_EQ(driver.messages.size(), 1U);
    EXPECT_THAT(driver.messages[0].text, HasSubstr("の画面は、まだご利用いただけません。"));
    EXPECT_TRUE(menu.isVisible());
  }
}

TEST_P(MenuInEveryStartMode, ASiblingKeyStartsItsProgramWhateverStateItsButtonIsIn) {
  for (const SiblingKey& row : kSiblingKeys) {
    ScriptedMenu driver(GetParam());
    JSMENU& menu = driver.Open();
    EXPECT_TRUE(Press(menu, row.key)) << row.button;
    MenuLaunch expected = Expected(row, driver.Root());
    if (row.key == Qt::Key_F12 && GetParam() == 1) expected.launch.command_line += " 0";
    if (row.key == Qt::Key_F12 && GetParam() == 4) expected.launch.command_line += " 4";
    ASSERT_EQ(driver.launches.size(), 1U) << row.button;
    EXPECT_EQ(driver.launches[0], expected) << row.button;
    EXPECT_THAT(driver.messages, IsEmpty());
    EXPECT_TRUE(menu.isVisible());
  }
}

TEST(Menu, AButtonStartsTheSameProgramAsItsKey) {
  for (const SiblingKey& row : kSiblingKeys) {
    ScriptedMenu driver;
    driver.Open();
    driver.Click(row.button);
    ASSERT_EQ(driver.launches.size(), 1U) << row.button;
    EXPECT_EQ(driver.launches[0], Expected(row, driver.Root())) << row.button;
  }
}

TEST(Menu, ATallyButtonOpensItsFormAndOnlyTheBulkFormLeavesTheMenuInSight) {
  for (const TallyKey& row : kTallyKeys) {
    if (row.tally_kind == 4) continue;  // stands for a form that fails to load, below
    ScriptedMenu driver;
    driver.screens = kReadyScreens;
    JSMENU& menu = driver.Open();
    driver.Click(row.button);
    Settle();
    QWidget* form = OpenForm(row.form);
    ASSERT_NE(form, nullptr) << row.form;
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(form->windowModality(), Qt::NonModal);
    EXPECT_EQ(menu.isVisible(), row.tally_kind == 0) << row.form;
    EXPECT_EQ(driver.HandOver("材料明細"), "0");
  }
}

TEST(Menu, ClosingATallyFormShowsTheMenuAndActivatesItAgain) {
  ScriptedMenu driver;
  driver.screens = kReadyScreens;
  JSMENU& menu = driver.Open();
  Press(menu, Qt::Key_F3);
  Settle();
  const int before = driver.activations;
  OpenForm("PGJS")->close();
  Settle();
  EXPECT_TRUE(menu.isVisible());
  EXPECT_EQ(OpenForm("PGJS"), nullptr);
  EXPECT_EQ(driver.activations, before + 1);
}

TEST(Menu, AFormThatIsOpenIsNotOpenedTwice) {
  ScriptedMenu driver;
  driver.screens = kReadyScreens;
  JSMENU& menu = driver.Open();
  Press(menu, Qt::Key_F1);
  Settle();
  QWidget* first = OpenForm("JS");
  Press(menu, Qt::Key_F1);
  Settle();
  first->setObjectName("found");
  EXPECT_EQ(OpenForm("JS"), nullptr);
}

TEST(Menu, WhileAScreenIsOpenNeitherAKeyNorAClickNorItsCloseStartsAnything) {
  ScriptedMenu driver;
  driver.screens = kReadyScreens;
  JSMENU& menu = driver.Open();
  Press(menu, Qt::Key_F1);
  Settle();
  const int activations = driver.activations;
  menu.activateWindow();
  Settle();
  EXPECT_EQ(driver.activations, activations) << "the activation waits";
  const std::function<void()> ways[] = {
      [&] { Press(menu, Qt::Key_F3); }, [&] { driver.Click("cmdPGShuukei"); },
      [&] { driver.Click("cmdWeldCount"); }, [&] { Press(menu, Qt::Key_Escape); }, [&] { menu.close(); }};
  for (const auto& way : ways) {
    way();
    Settle();
    EXPECT_EQ(OpenForm("PGJS"), nullptr);
    EXPECT_EQ(Selection.TallyKind, TallyKind::bulk);
    EXPECT_THAT(driver.launches, IsEmpty());
    EXPECT_FALSE(driver.end_status.has_value());
  }
  OpenForm("JS")->close();
  Settle();
  EXPECT_EQ(driver.activations, activations + 1);
}

TEST(Menu, AClickOnTheMenuBringsTheOpenScreenToTheFront) {
  ScriptedMenu driver;
  driver.screens = kReadyScreens;
  JSMENU& menu = driver.Open();
  Press(menu, Qt::Key_F1);
  Settle();
  menu.activateWindow();
  Settle();
  ASSERT_TRUE(menu.isActiveWindow());
  QMouseEvent click(QEvent::MouseButtonPress, QPointF(3, 3), menu.mapToGlobal(QPointF(3, 3)), Qt::LeftButton,
                    Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&menu, &click);
  Settle();
  EXPECT_TRUE(OpenForm("JS")->isActiveWindow());
}

TEST(Menu, SaysThatItWorksBeforeItsFirstState) {
  ScriptedMenu driver;
  bool shown = false;
  bool signed_by_pointer = false;
  const auto load = driver.parts.load;
  driver.parts.load = [&] {
    const QWidget* notice = OpenForm("startNotice");
    shown = notice != nullptr && notice->isVisible();
    signed_by_pointer = QGuiApplication::overrideCursor() != nullptr;
    return load();
  };
  driver.Open();
  EXPECT_TRUE(shown);
  EXPECT_TRUE(signed_by_pointer);
  EXPECT_EQ(OpenForm("startNotice"), nullptr);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(Menu, FocusIsOnALiveButtonInEveryStartMode) {
  for (const std::int32_t mode : {-1, 0, 1, 4, 5, 7}) {
    for (const bool counters : {true, false}) {
      ScriptedMenu driver(mode);
      RunState.HasWeldCounter = RunState.HasJoinCounter = RunState.HasPlateCounter = counters;
      const JSMENU& menu = driver.Open();
      const auto* focused = qobject_cast<QPushButton*>(menu.focusWidget());
      ASSERT_NE(focused, nullptr) << mode;
      EXPECT_TRUE(focused->isVisible()) << mode;
      EXPECT_TRUE(focused->isEnabled()) << mode;
    }
  }
}

TEST(Menu, TellsWhatTheFocusedButtonDoes) {
  ScriptedMenu driver;
  driver.Open();
  driver.Control("cmdPGShuukei").setFocus();
  Settle();
  EXPECT_EQ(driver.menu->findChild<QLabel*>("lblHelp")->text(), "頁と行の範囲を決めて重量を集計する");
  EXPECT_EQ(driver.Control("cmdPGShuukei").toolTip(), "頁と行の範囲を決めて重量を集計する");
}

TEST(Menu, AFaultWhileAFormLoadsIsToldAndTheMenuComesBack) {
  ScriptedMenu driver;
  driver.screens = kReadyScreens;
  JSMENU& menu = driver.Open();
  Press(menu, Qt::Key_F8);
  Settle();
  ASSERT_EQ(driver.messages.size(), 1U);
  EXPECT_TRUE(driver.messages[0].text.ends_with("\n\noverflow: 太さ 19")) << driver.messages[0].text;
  EXPECT_EQ(driver.messages[0].title, "重量集計メニュー");
  EXPECT_TRUE(menu.isVisible());
  EXPECT_FALSE(driver.end_status.has_value());
  Press(menu, Qt::Key_F2);
  EXPECT_EQ(driver.launches.size(), 1U) << "the menu is still usable";
}

TEST(Menu, TheSettingsButtonShowsItsFormModallyAndComesBack) {
  ScriptedMenu driver;
  driver.screens = kReadyScreens;
  driver.Open();
  driver.Click("Command1");
  EXPECT_EQ(OpenForm("SETJS"), nullptr);
  EXPECT_THAT(driver.messages, IsEmpty());
}

TEST(Menu, AHiddenButtonStillAnswersToItsKey) {
  ScriptedMenu driver(-1, "j");
  driver.screens = kReadyScreens;
  JSMENU& menu = driver.Open();
  ASSERT_FALSE(driver.Shows("cmdKeijoShuukei"));
  EXPECT_TRUE(Press(menu, Qt::Key_F5));
  Settle();
  EXPECT_NE(OpenForm("KEIJOJS"), nullptr);
  EXPECT_EQ(Selection.TallyKind, TallyKind::shape);
}

TEST(Menu, ADisabledButtonStillAnswersToItsKey) {
  ScriptedMenu driver;
  JSMENU& menu = driver.Open();
  driver.Control("cmdCutCount").setEnabled(false);
  Press(menu, Qt::Key_1);
  EXPECT_EQ(driver.launches.size(), 1U);
}

TEST(Menu, KeysWorkWithTheFocusOnAnyButton) {
  ScriptedMenu driver;
  JSMENU& menu = driver.Open();
  driver.Control("cmdExit").setFocus();
  Press(menu, Qt::Key_F4);
  EXPECT_EQ(driver.launches.size(), 1U);
}

TEST(Menu, DigitsOfTheKeypadAndKeysWithCtrlOrAltDoNothing) {
  ScriptedMenu driver;
  JSMENU& menu = driver.Open();
  for (const int digit : {Qt::Key_0, Qt::Key_1, Qt::Key_2, Qt::Key_3}) {
    EXPECT_FALSE(Press(menu, digit, Qt::KeypadModifier));
    EXPECT_FALSE(Press(menu, digit, Qt::ControlModifier));
  }
  EXPECT_FALSE(Press(menu, Qt::Key_F4, Qt::AltModifier));
  EXPECT_FALSE(Press(menu, Qt::Key_4));
  EXPECT_THAT(driver.launches, IsEmpty());
}

TEST(Menu, AHeldKeyActsOnce) {
  ScriptedMenu driver;
  JSMENU& menu = driver.Open();
  Press(menu, Qt::Key_F2);
  EXPECT_TRUE(Press(menu, Qt::Key_F2, Qt::NoModifier, true));
  EXPECT_EQ(driver.launches.size(), 1U);
}

TEST(Menu, KeysPressedWhileASiblingRunsAreDropped) {
  ScriptedMenu driver;
  JSMENU& menu = driver.Open();
  driver.on_launch = [&menu] {
    QApplication::postEvent(&menu, new QKeyEvent(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier));
    RunPendingEvents();
  };
  Press(menu, Qt::Key_F10);
  Settle();
  EXPECT_EQ(driver.launches.size(), 1U);
}

TEST(Menu, ASiblingThatDoesNotExistIsNamedAndTheMenuComesBack) {
  for (const SiblingKey& row : kSiblingKeys) {
    ScriptedMenu driver;
    const std::string program =
        std::string(row.command_line).substr(0, std::string(row.command_line).find(' '));
    std::filesystem::remove(MapPath(program));
    JSMENU& menu = driver.Open();
    Press(menu, row.key);
    ASSERT_EQ(driver.messages.size(), 1U) << row.button;
    EXPECT_THAT(driver.messages[0].text, HasSubstr(program));
    EXPECT_THAT(driver.launches, IsEmpty());
    EXPECT_TRUE(menu.isVisible());
    EXPECT_FALSE(driver.end_status.has_value());
  }
}

TEST(Menu, AMissingFolderOfSiblingsIsNoOtherMatterThanAMissingSibling) {
  ScriptedMenu driver;
  std::filesystem::remove_all(driver.Root() / "KAKOU");
  JSMENU& menu = driver.Open();
  Press(menu, Qt::Key_F4);
  ASSERT_EQ(driver.messages.size(), 1U);
  EXPECT_EQ(driver.messages[0].text, "プログラム「\\rbk\\kakou\\rbweldcnt.exe」が見つかりません。");
}

TEST(Menu, AFaultOfASiblingsStartIsToldAndTheMenuComesBack) {
  ScriptedMenu driver;
  JSMENU& menu = driver.Open();
  driver.on_launch = [] { throw Fault(FaultKind::file, "cannot be started"); };
  Press(menu, Qt::Key_F6);
  Settle();
  ASSERT_EQ(driver.messages.size(), 1U);
  EXPECT_TRUE(driver.messages[0].text.ends_with("\n\ncannot be started")) << driver.messages[0].text;
  EXPECT_TRUE(menu.isVisible());
}

TEST(Menu, RegisteredNamesAreHandedOverBeforeTheCompanionStarts) {
  ScriptedMenu driver;
  JSMENU& menu = driver.Open();
  std::string at_launch;
  driver.on_launch = [&] { at_launch = driver.HandOver("材料明細"); };
  Press(menu, Qt::Key_F12);
  EXPECT_EQ(at_launch, "1");
}

TEST(Menu, TheStockFitterIsToldWhomToReturnToBeforeItStarts) {
  ScriptedMenu driver;
  JSMENU& menu = driver.Open();
  std::string at_launch;
  driver.on_launch = [&] { at_launch = driver.HandOver("CALL PRG"); };
  Press(menu, Qt::Key_2);
  EXPECT_EQ(at_launch, "\\rbk\\rbtally1.exe");
}

TEST(Menu, ComingBackFromASiblingActivatesTheMenuOnce) {
  for (const int key : {Qt::Key_F2, Qt::Key_F4, Qt::Key_F10}) {
    ScriptedMenu driver;
    JSMENU& menu = driver.Open();
    const int before = driver.activations;
    Press(menu, key);
    Settle();
    EXPECT_EQ(driver.activations, before + 1) << key;
  }
}

TEST(Menu, EveryTurnAtTheFocusActivatesIt) {
  ScriptedMenu driver;
  JSMENU& menu = driver.Open();
  EXPECT_EQ(driver.activations, 1);
  QEvent away(QEvent::WindowDeactivate);
  QEvent back(QEvent::WindowActivate);
  QApplication::sendEvent(&menu, &back);
  Settle();
  EXPECT_EQ(driver.activations, 1) << "it has the focus already";
  QApplication::sendEvent(&menu, &away);
  QApplication::sendEvent(&menu, &back);
  Settle();
  EXPECT_EQ(driver.activations, 2);
}

TEST(Menu, EscAndTheExitButtonAndTheWindowsCloseEndTheProgram) {
  const std::function<void(ScriptedMenu&)> ways[] = {
      [](ScriptedMenu& driver) { Press(*driver.menu, Qt::Key_Escape); },
      [](ScriptedMenu& driver) { driver.Click("cmdExit"); },
      [](ScriptedMenu& driver) { driver.menu->close(); },
  };
  for (const auto& way : ways) {
    ScriptedMenu driver;
    JSMENU& menu = driver.Open();
    way(driver);
    EXPECT_EQ(driver.end_status, 0);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(driver.accumulations_written, 0);
  }
}

TEST(Menu, TheExitWritesTheAccumulatedTallyOutOfSightWhileAnAccumulationIsOn) {
  ScriptedMenu driver;
  bool visible = true;
  driver.parts.write_accumulated = [&] {
    ++driver.accumulations_written;
    visible = driver.menu->isVisible();
  };
  JSMENU& menu = driver.Open();
  RunState.AccumulateFlag = 1;
  Press(menu, Qt::Key_Escape);
  EXPECT_EQ(driver.accumulations_written, 1);
  EXPECT_FALSE(visible);
  EXPECT_EQ(driver.end_status, 0);
}

TEST(Menu, AnExitThatCannotWriteTheAccumulatedTallySaysSoAndKeepsTheMenu) {
  ScriptedMenu driver;
  driver.parts.write_accumulated = [] { throw Fault(FaultKind::file, "hozon.MDB: disk full"); };
  JSMENU& menu = driver.Open();
  RunState.AccumulateFlag = 1;
  Press(menu, Qt::Key_Escape);
  Settle();
  ASSERT_EQ(driver.messages.size(), 1U);
  EXPECT_TRUE(driver.messages[0].text.ends_with("\n\nhozon.MDB: disk full")) << driver.messages[0].text;
  EXPECT_TRUE(menu.isVisible());
  EXPECT_FALSE(driver.end_status.has_value());
}

TEST(Menu, AFaultOfTheLoadEndsTheProgramWithStatusOneAfterItsMessage) {
  ScriptedMenu driver;
  driver.parts.load = []() -> LoadResult { throw Fault(FaultKind::database, "no such table"); };
  JSMENU& menu = driver.Open();
  ASSERT_EQ(driver.messages.size(), 1U);
  EXPECT_TRUE(driver.messages[0].text.ends_with("\n\nno such table")) << driver.messages[0].text;
  EXPECT_EQ(driver.end_status, 1);
  EXPECT_FALSE(menu.isVisible());
  EXPECT_EQ(driver.activations, 0);
}

TEST(Menu, AFaultOfAnActivationEndsTheProgramWithStatusOneAfterItsMessage) {
  ScriptedMenu driver;
  bool faulty = false;
  const auto activate = driver.parts.activate;
  driver.parts.activate = [&faulty, activate] {
    if (faulty) throw Fault(FaultKind::type_mismatch, "明細画面重量表示");
    return activate();
  };
  JSMENU& menu = driver.Open();
  faulty = true;
  Press(menu, Qt::Key_F4);
  Settle();
  ASSERT_EQ(driver.messages.size(), 1U);
  EXPECT_TRUE(driver.messages[0].text.ends_with("\n\ntype mismatch: 明細画面重量表示"))
      << driver.messages[0].text;
  EXPECT_EQ(driver.end_status, 1);
  EXPECT_FALSE(menu.isVisible());
}

TEST(Menu, ANewerSiteIsHandedToTheProgramThatReadsIt) {
  ScriptedMenu driver;
  driver.parts.load = [] {
    LoadResult result;
    result.hand_over_to = "\\rbk\\rbtally1S.exe";
    return result;
  };
  JSMENU& menu = driver.Open();
  const MenuLaunch expected{{"\\rbk\\rbtally1S.exe", WindowStyle::normal, false}, std::nullopt, false};
  EXPECT_THAT(driver.launches, ElementsAre(expected));
  EXPECT_EQ(driver.end_status, 0);
  EXPECT_FALSE(menu.isVisible());
  EXPECT_EQ(driver.activations, 0);
}

class PassThroughMenu : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(StartModes, PassThroughMenu, testing::Values(2, 3));

TEST_P(PassThroughMenu, PreparesTheDataRunsTheCompanionMinimisedAndEnds) {
  ScriptedMenu driver(GetParam());
  bool minimised = false;
  driver.on_launch = [&] { minimised = driver.menu->isMinimized(); };
  JSMENU& menu = driver.Open();
  const MenuLaunch expected{
      {"\\rbk\\rbtally2.exe " + std::to_string(GetParam()), WindowStyle::maximised, true},
      driver.Root().Path(),
      true};
  EXPECT_EQ(driver.activations, 1);
  EXPECT_THAT(driver.launches, ElementsAre(expected));
  EXPECT_TRUE(minimised);
  EXPECT_EQ(driver.end_status, 0);
  EXPECT_FALSE(menu.isVisible());
}

TEST_P(PassThroughMenu, WithoutItsCompanionSaysSoAndEndsWithStatusOne) {
  ScriptedMenu driver(GetParam());
  std::filesystem::remove(driver.Root() / "rbtally2.exe");
  driver.Open();
  ASSERT_EQ(driver.messages.size(), 1U);
  EXPECT_THAT(driver.messages[0].text, HasSubstr("\\rbk\\rbtally2.exe"));
  EXPECT_THAT(driver.launches, IsEmpty());
  EXPECT_EQ(driver.end_status, 1);
}

}  // namespace rbt::test
