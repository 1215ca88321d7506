// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <QWidget>

#include "session/archive/load_presenter.h"

namespace Ui {
class LoadFiles;
}

namespace rbt {

/// The window of the saved tallies of a kind: shows what its presenter gives and passes on what the user
/// does.
class LoadFiles : public QWidget {
 public:
  /// Loads. Throws what keeps it from that.
  explicit LoadFiles(TallyKind kind);
  ~LoadFiles() override;

  /// Every key of its table, of the Qt::Key enumeration.
  static std::vector<int> Keys();

  std::optional<LoadedTally> TakeLoaded() { return presenter_.TakeLoaded(); }

 private:
  struct Action;
  static std::vector<Action> Actions();

  void BindFields();
  void BindActions();
  void Do(const std::function<void(LoadPresenter&)>& intent);
  void Show();

  LoadPresenter presenter_;
  std::unique_ptr<Ui::LoadFiles> ui_;
};

}  // namespace rbt
