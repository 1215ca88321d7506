// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QWidget>

#include "screens/result/filter_panel.h"
#include "screens/result/print_panel.h"
#include "session/result/result_screen.h"

namespace Ui {
class ResultForm;
}

namespace rbt {

class RangePanel;

/// A tally as a grid of diameters by weights. The user narrows it, raises the Ulbon rows by a percentage and
/// passes on to printing, detail and accumulation. A scoped screen asks for its range first; grid and filters
/// show once the tally has run. Keys work while their button can be pressed: those of the print panel when it
/// is open, else those of the main buttons.
class ResultForm : public QWidget {
 public:
  /// Loads: binds the site, sets the selection's defaults, then runs the tally and fills the grid, or fills
  /// the range in. Throws what keeps it from that.
  ResultForm(const ResultScreen& screen, ResultParts parts);
  ~ResultForm() override;

  /// Every key of a screen, of the Qt::Key enumeration.
  static std::vector<int> Keys(const ResultScreen& screen);

  /// As Enter in the last box of a range; nothing on the bulk screen.
  void TakeRange();

  void cmdPrint_Click();
  void cmdPrint2_Click();
  void cmdUSum_Click();
  void cmdurubon_Click();
  void CmdVReturn_Click();
  void cmdMeisai_Click();
  void cmdPGChange_Click();
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
  void chkPreview_Press();
  void txtPercent_Enter();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  struct Action;
  static const std::vector<Action>& Actions();

  void TakeControls();
  void PlaceRange();
  void ConnectControls();
  bool AnswerPress(const QKeyEvent& press);

  void Load();
  void ShowHead();
  void LayOutGrid();

  void FirstRun();
  void RunRange();
  void AskForRange();
  void ResetFilters();
  void ShowState();
  void FocusWork();

  void Tally();
  void Fill();
  void Recalculate(const std::function<void()>& change);
  void ShowAvailability();
  void ShowWarning();

  void OpenPrintPanel(int report_body);
  Papers PapersNow() const;
  void PrintPaper(ReportPaper paper);
  void PrintUlbon();
  bool Print(const PrintOrder& order);

  ResultScreen screen_;
  ResultParts parts_;
  std::unique_ptr<Ui::ResultForm> ui_;
  FilterPanel filters_;
  QWidget* absent_;  ///< hidden parent of the controls that this screen does not have
  std::unique_ptr<PrintPanel> print_panel_;
  RangePanel* range_ = nullptr;  ///< null on the bulk screen
  bool show_ulbon_only_ = false;
  TallyResult shown_;  ///< what the grid shows
  bool tally_ran_ = false;
  bool ended_ = false;
};

}  // namespace rbt
