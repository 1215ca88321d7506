// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <QFrame>

#include "session/panels/print_panel_presenter.h"

namespace Ui {
class HeadPanel;
}

namespace rbt {

class DateBoxes;

/// Site and client of a screen, date and time of the load, and what the head of a sheet takes from the user:
/// the memo line and the date boxes.
class HeadPanel : public QFrame {
 public:
  explicit HeadPanel(QWidget* parent = nullptr);
  ~HeadPanel() override;

  /// Memo and date go to this presenter as they are typed.
  void Bind(PrintPanelPresenter& print_panel);
  void Show(const HeadView& head, const PrintPanelView& print_panel);

  DateBoxes& Dates();

 private:
  std::unique_ptr<Ui::HeadPanel> ui_;
};

}  // namespace rbt
