// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include <QWidget>

#include "screens/panels/stage.h"
#include "session/detail/detail_presenter.h"

namespace Ui {
class DetailForm;
}

namespace rbt {

/// The window of the purchase list, `ZAIMEI`: shows what its presenter gives and passes on what the user
/// does. Keys work while their button can be pressed; Esc ends what the list is at, or leaves it.
class DetailForm : public QWidget {
 public:
  /// Loads the list of a result. Throws what keeps it from that.
  DetailForm(TallyResult result, DetailParts parts);
  ~DetailForm() override;

  /// Every key of the form, of the Qt::Key enumeration.
  static std::vector<int> Keys();

  /// The result as the list stands.
  const TallyResult& Result() const { return presenter_.Result(); }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  struct Action;
  static std::vector<Action> Actions();

  void TakeCaptions();
  void BindPanels();
  void BindPercent();
  void BindGrid();
  void ConnectActions();
  /// Passes an intent on and shows what has become of it, whatever ends it.
  void Do(const std::function<void(DetailPresenter&)>& intent);

  void Show();
  void ShowPanels(const DetailView& view);
  void Focus(std::string_view control);

  DetailPresenter presenter_;
  std::unique_ptr<Ui::DetailForm> ui_;
  FocusOverWork focus_over_work_{*this};
};

}  // namespace rbt
