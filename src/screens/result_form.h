// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QWidget>

#include "screens/result_screen.h"

namespace Ui {
class ResultForm;
}

namespace rbt {

/// A tally as a grid of diameters by weights. The user narrows it, raises the Ulbon rows by a percentage and
/// passes on to printing, detail and accumulation. Keys work while their button can be pressed: those of the
/// print panel when it is open, else those of the main buttons.
class ResultForm : public QWidget {
 public:
  /// Loads: binds the site, sets the selection's defaults, runs the tally and fills the grid. Throws what
  /// keeps it from that.
  ResultForm(const ResultScreen& screen, ResultParts parts);
  ~ResultForm() override;

  /// Every key of the form, of the Qt::Key enumeration.
  static std::vector<int> Keys();

  void cmdPrint_Click();
  void cmdPrint2_Click();
  void cmdUSum_Click();
  void cmdurubon_Click();
  void CmdVReturn_Click();
  void cmdMeisai_Click();
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command6_Click();
  void cmdHoop_Click();
  void cmdTei_Click();
  void cmdExit_Click();
  void btnA4Y_Click();
  void btnA4T_Click();
  void btnB5Y_Click();
  void btnSettei_Click();
  void btnReturn_Click();
  void txtPercent_Enter();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  class Busy;
  friend class Busy;
  struct Action;
  static const std::vector<Action>& Actions();

  void Load();
  void SetDefaults();
  void ShowHead();
  void LayOutGrid();
  void ConnectControls();
  bool AnswerPress(const QKeyEvent& press);

  void Tally();
  void Fill();
  double Percent() const;
  void Recalculate(const std::function<void()>& change);
  void ShowKindCaption();
  void ShowModeCaptions();
  void ShowAvailability();
  void ShowWarning();
  void OpenPrintPanel(int report_body);
  void Print(const char* button);

  ResultScreen screen_;
  ResultParts parts_;
  std::unique_ptr<Ui::ResultForm> ui_;
  DateBoxes* dates_ = nullptr;
  bool show_ulbon_only_ = false;
  bool ended_ = false;
};

}  // namespace rbt
