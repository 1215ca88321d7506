// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include <QPointer>
#include <QWidget>

#include "screens/menu/screens.h"
#include "session/startup/startup.h"
#include "tally/tally_kind.h"

namespace Ui {
class JSMENU;
}

namespace rbt {

struct Sibling;

/// What the menu leans on.
struct MenuParts {
  std::function<LoadResult()> load;
  std::function<MenuState()> activate;
  std::function<void()> write_accumulated;  ///< at the exit, while an accumulation is on
  std::span<const MenuScreen> screens;
  std::function<void(int status)> end_program;
};

/// The real ones for a start mode: load and activation of the site, the forms that are ready, the end of the
/// event loop.
MenuParts MenuPartsFor(const StartOptions& options);

/// The main menu. Each of its keys calls a button's handler in whatever state the button is, hidden ones
/// included.
class JSMENU : public QWidget {
 public:
  explicit JSMENU(MenuParts parts);
  ~JSMENU() override;

  /// Every key of the form, of the Qt::Key enumeration.
  static std::vector<int> Keys();

  /// Load, first activation, and the window. A fault ends the program after its message with status 1.
  void Open();
  /// Puts buttons and status line as an activation found them.
  void ShowState(const MenuState& state);

  void Form_Activate();
  void cmdShuukei_Click();
  void cmdAllSites_Click();
  void cmdPGShuukei_Click();
  void cmdWeldCount_Click();
  void cmdKeijoShuukei_Click();
  void cmdPlateCount_Click();
  void cmdKeijoPGShuukeia_Click();
  void cmdKaiShuukei_Click();
  void cmdBuiShuukei_Click();
  void cmdKaiBuiK_Click();
  void cmdSiteSum_Click();
  void cmdTouroS_Click();
  void cmdCouplerCount_Click();
  void cmdCutCount_Click();
  void cmdMeiEfu_Click();
  void cmdPlateSheet_Click();
  void Command1_Click();
  void cmdExit_Click();

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  class Hidden;

  void OpenTally(TallyKind tally_kind, std::string_view form);
  const MenuScreen* ReadyScreen(std::string_view form) const;
  void OpenScreen(const MenuScreen& screen, bool hides_menu);
  void CallSibling(const Sibling& sibling);
  void PassOn(const std::string& command_line);
  void ShowAgain();
  void RequestActivation();
  void ServeActivation();
  void FocusFirstButton();
  void EndProgram(int status);

  std::unique_ptr<Ui::JSMENU> ui_;
  MenuParts parts_;
  std::vector<QPointer<QWidget>> open_screens_;
  bool activation_due_ = false;
  bool focus_served_ = false;  ///< the activation of the present turn at the focus has run
  bool ended_ = false;
};

}  // namespace rbt
