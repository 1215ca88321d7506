// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QWidget>

#include "screens/panels/stage.h"
#include "session/result/result_presenter.h"

namespace Ui {
class ResultForm;
}

namespace rbt {

class RangePanel;

/// The window of a result screen: shows what its presenter gives and passes on what the user does. Keys work
/// while their button can be pressed: those of the print panel when it is open, else those of the main
/// buttons.
class ResultForm : public QWidget {
 public:
  /// Loads. Throws what keeps it from that.
  ResultForm(const ResultScreen& screen, ResultParts parts);
  ~ResultForm() override;

  /// Every key of a screen, of the Qt::Key enumeration.
  static std::vector<int> Keys(const ResultScreen& screen);

  /// As Enter in the last box of a range; nothing on the bulk screen.
  void TakeRange();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  struct Action;
  static const std::vector<Action>& Actions();

  void TakeControls();
  void PlaceRange();
  void ShowBusy(bool busy);
  void ConnectActions();
  /// Passes an intent on and shows what has become of it, whatever ends it.
  void Do(const std::function<void(ResultPresenter&)>& intent);

  void Show();
  void ShowPanels(const ResultScreenView& view);
  void ShowMainButtons(const ResultScreenView& view);
  void Focus(const FocusRequest& request);

  ResultPresenter presenter_;
  std::unique_ptr<Ui::ResultForm> ui_;
  RangePanel* range_ = nullptr;  ///< null on the bulk screen
  FocusOverWork focus_over_work_{*this};
};

}  // namespace rbt
