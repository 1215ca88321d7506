// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include <QPointer>
#include <QWidget>

#include "screens/menu/screens.h"
#include "session/menu/menu_presenter.h"

namespace Ui {
class JSMENU;
}

namespace rbt {

class StartNotice;

/// The window of the main menu. Each of its keys starts what its button starts, in whatever state the button
/// is, hidden ones included.
class JSMENU : public QWidget, private MenuWindow {
 public:
  JSMENU(MenuParts parts, std::span<const MenuScreen> screens);
  ~JSMENU() override;

  /// Every key of the form, of the Qt::Key enumeration.
  static std::vector<int> Keys();

  /// Load, first activation, and the window. A fault ends the program after its message with status 1.
  void Open();
  /// Puts buttons and status line as an activation found them.
  void ShowState(const MenuState& state) override;

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void ShowLoad(const MenuLoadView& view) override;
  void Hide() override;
  void Minimise() override { showMinimized(); }
  void ShowAgain() override;
  void AskForActivation() override;
  bool HasForm(std::string_view form) const override { return FindScreen(form) != nullptr; }
  bool HasOpenForm() const override { return !open_form_.isNull(); }
  bool RaiseOpenForm() override;
  void OpenForm(std::string_view form) override;
  void ShowFormModally(std::string_view form) override;

  const MenuScreen* FindScreen(std::string_view form) const;
  void Activate();
  void ServeActivation();
  void FocusFirstButton();

  std::unique_ptr<Ui::JSMENU> ui_;
  std::unique_ptr<StartNotice> start_notice_;  ///< until the first state of the menu is known
  MenuPresenter presenter_;
  std::span<const MenuScreen> screens_;
  QPointer<QWidget> open_form_;  ///< the screen of a tally: one at a time
  bool activation_due_ = false;
  bool focus_served_ = false;  ///< the activation of the present turn at the focus has run
};

}  // namespace rbt
