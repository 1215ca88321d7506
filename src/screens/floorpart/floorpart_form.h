// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QWidget>

#include "screens/panels/stage.h"
#include "session/floorpart/floorpart_presenter.h"

namespace Ui {
class FloorPartForm;
}

namespace rbt {

/// The window of the floor screen and of the part screen: shows what its presenter gives and passes on what
/// the user does. Keys work while their button can be pressed: those of the input, of the result, of the
/// print buttons, as each is in sight.
class FloorPartForm : public QWidget {
 public:
  /// Loads. Throws what keeps it from that.
  FloorPartForm(const FloorPartScreen& screen, FloorPartParts parts);
  ~FloorPartForm() override;

  /// Every key of a screen, of the Qt::Key enumeration.
  static std::vector<int> Keys(const FloorPartScreen& screen);

  /// As the answer that wants it, without the question.
  void CorrectByHand();

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  struct Action;
  static std::vector<Action> Actions(const FloorPartScreen& screen);

  void TakeControls();
  void Bind();
  void BindCorrection();
  void ConnectActions();
  /// Passes an intent on and shows what has become of it, whatever ends it.
  void Do(const std::function<void(FloorPartPresenter&)>& intent);

  void Show();
  void ShowPanels(const FloorPartView& view);
  void ShowMainButtons(const FloorPartView& view);
  void Focus(FloorPartFocus target);

  FloorPartPresenter presenter_;
  std::unique_ptr<Ui::FloorPartForm> ui_;
  bool activated_ = false;
  FocusOverWork focus_over_work_{*this};
};

}  // namespace rbt
