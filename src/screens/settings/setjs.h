// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QWidget>

#include "session/settings/settings_presenter.h"

namespace Ui {
class SETJS;
}

namespace rbt {

/// The window of the settings. A choice that cannot be saved is taken back after the message.
class SETJS : public QWidget {
 public:
  SETJS();
  ~SETJS() override;

  /// Every key of the form, of the Qt::Key enumeration.
  static std::vector<int> Keys();

  bool eventFilter(QObject* receiver, QEvent* event) override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void ConnectControls();
  void ConnectChoices();
  void PrepareHints();
  void Show();

  /// Runs a choice; one that faults is taken back.
  bool Choose(const std::function<void()>& choose, const std::function<void()>& take_back);
  void LeadToTheTitle();
  void CutTitle();
  void OpenColours();
  void Leave();
  void ShowHint(const QObject* control);

  SettingsPresenter presenter_;
  std::unique_ptr<Ui::SETJS> ui_;
};

}  // namespace rbt
