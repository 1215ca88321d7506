// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <QWidget>

#include "session/archive/backup_presenter.h"

namespace Ui {
class FrmBackUp;
}

namespace rbt {

/// The window that writes a CSV file: shows what its presenter gives and passes on what the user does.
class FrmBackUp : public QWidget {
 public:
  /// Loads. Throws what keeps it from that.
  FrmBackUp(CsvSubject subject, BackUpParts parts);
  ~FrmBackUp() override;

  /// Every key of its table, of the Qt::Key enumeration.
  static std::vector<int> Keys();

 private:
  struct Action;
  static std::vector<Action> Actions();

  void BindDrives();
  void BindActions();
  void Do(const std::function<void(BackUpPresenter&)>& intent);
  void Show();

  BackUpPresenter presenter_;
  std::unique_ptr<Ui::FrmBackUp> ui_;
};

/// Asks for a folder in the system's own dialog over the active form, `from` at first.
std::optional<std::filesystem::path> AskBackUpFolder(const std::filesystem::path& from);

}  // namespace rbt
