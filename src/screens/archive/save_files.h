// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QWidget>

#include "session/archive/save_presenter.h"

class QLineEdit;

namespace Ui {
class SaveFiles;
}

namespace rbt {

/// The window that saves a tally: shows what its presenter gives and passes on what the user does.
class SaveFiles : public QWidget {
 public:
  /// Loads. Throws what keeps it from that.
  SaveFiles(TallyResult result, SavedMemos memos, SaveParts parts);
  ~SaveFiles() override;

  /// Every key of its table, of the Qt::Key enumeration.
  static std::vector<int> Keys();

 private:
  struct Action;
  static std::vector<Action> Actions();

  void BindFields();
  void BindActions();
  void Do(const std::function<void(SavePresenter&)>& intent);
  void Fill();
  void Show();

  SavePresenter presenter_;
  std::unique_ptr<Ui::SaveFiles> ui_;
};

/// Takes a text that was typed out of a box again: what stood there before comes back, the cursor where it
/// was.
void TakeBack(QLineEdit& box, std::string_view before);

}  // namespace rbt
