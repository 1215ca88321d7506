// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <QFrame>

#include "session/panels/print_panel_presenter.h"

namespace Ui {
class PrintPanel;
}

namespace rbt {

/// The print buttons in place of the main ones, and the choice to look at a sheet before it is printed. The
/// buttons are wired by the form's table.
class PrintPanel : public QFrame {
 public:
  explicit PrintPanel(QWidget* parent = nullptr);
  ~PrintPanel() override;

  /// The tick goes to this presenter.
  void Bind(PrintPanelPresenter& print_panel);
  void Show(const PrintPanelView& view);
  /// Puts the focus on a button of the panel; nothing for a target elsewhere.
  void Focus(FocusTarget target);

 private:
  std::unique_ptr<Ui::PrintPanel> ui_;
};

}  // namespace rbt
