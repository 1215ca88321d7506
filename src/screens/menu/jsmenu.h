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

 private:
  void ShowLoad(const LoadView& view) override;
  void Hide() override { hide(); }
  void Minimise() override { showMinimized(); }
  void ShowAgain() override;
  void AskForActivation() override;
  bool HasForm(std::string_view form) const override { return FindScreen(form) != nullptr; }
  bool RaiseForm(std::string_view form) override;
  void OpenForm(std::string_view form) override;
  void ShowFormModally(std::string_view form) override;

  const MenuScreen* FindScreen(std::string_view form) const;
  void Activate();
  void ServeActivation();
  void FocusFirstButton();

  std::unique_ptr<Ui::JSMENU> ui_;
  MenuPresenter presenter_;
  std::span<const MenuScreen> screens_;
  std::vector<QPointer<QWidget>> open_forms_;
  bool activation_due_ = false;
  bool focus_served_ = false;  ///< the activation of the present turn at the focus has run
};

}  // namespace rbt
