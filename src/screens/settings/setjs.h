// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include <QWidget>

#include "shell/config/setting_keys.h"

namespace Ui {
class SETJS;
}

namespace rbt {

/// Settings of dates, reports and grids. A choice is saved in its click; one that cannot be saved is taken
/// back after the message. The title text is written at the end.
class SETJS : public QWidget {
 public:
  SETJS();
  ~SETJS() override;

  /// Every key of the form, of the Qt::Key enumeration.
  static std::vector<int> Keys();

  void AtsuCheck_Click();
  void OptTitleC_Click();
  void title_Change();
  void cmdSetColor_Click();
  void btnExit_Click();

  bool eventFilter(QObject* receiver, QEvent* event) override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void ConnectControls();
  void ConnectChoices();
  void PrepareHints();
  void Load();
  void ShowStored(const NumberKey& key, std::int32_t value);
  bool Save(const NumberKey& key, std::int32_t value);
  bool WriteTitle();
  void ShowHint(const QObject* control);

  std::unique_ptr<Ui::SETJS> ui_;
};

}  // namespace rbt
