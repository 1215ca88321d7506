// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <QWidget>

namespace Ui {
class PrintDlg;
}

namespace rbt {

/// `PRINTDLG`: the small window that stands in the middle of the screen while a sheet is printed, and tells
/// its page.
class PrintDlg : public QWidget {
 public:
  PrintDlg();
  ~PrintDlg() override;

  /// Shows the window with the number of a page, drawn at once.
  void ShowPage(int page);

 private:
  std::unique_ptr<Ui::PrintDlg> ui_;
};

}  // namespace rbt
