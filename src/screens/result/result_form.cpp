// SPDX-License-Identifier: MIT
#include "screens/result/result_form.h"

#include <array>
#include <string>

#include <QCheckBox>
#include <QCloseEvent>
#include <QPushButton>

#include "data/reference.h"
#include "desktop/colour.h"
#include "desktop/form.h"
#include "desktop/texts.h"
#include "platform/numbers/number_mask.h"
#include "platform/numbers/number_words.h"
#include "platform/system/message.h"
#include "screens/panels/digit_box.h"
#include "screens/panels/page_range_panel.h"
#include "screens/panels/shape_range_panel.h"
#include "screens/result/busy_notice.h"
#include "shell/config/setting_keys.h"
#include "shell/config/settings.h"
#include "shell/context/reference_names.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/selection.h"
#include "tally/views/result_views.h"
#include "ui_result_form.h"

namespace rbt {

namespace {

constexpr int kPercentDigits = 6;
constexpr const char* kUlbonPrintCaption = "ｳﾙﾎﾞﾝ印字(F1)";

/// Half-width characters that a column shows; the first holds the grade name and the diameter.
constexpr std::array<int, 6> kColumnCharacters{26, 18, 18, 16, 14, 14};

void SayNotReady(const char* what, std::string_view title) {
  MsgBox("「" + std::string(what) + "」は、まだご利用いただけません。", title);
}

/// Calls a function when the scope is left, whatever ends it.
class AtEnd {
 public:
  explicit AtEnd(std::function<void()> call) : call_(std::move(call)) {}
  AtEnd(const AtEnd&) = delete;
  AtEnd& operator=(const AtEnd&) = delete;
  ~AtEnd() { call_(); }

 private:
  std::function<void()> call_;
};

}  // namespace

ResultForm::ResultForm(const ResultScreen& screen, ResultParts parts)
    : screen_(screen),
      parts_(std::move(parts)),
      ui_(std::make_unique<Ui::ResultForm>()),
      filters_(*ui_, screen_),
      absent_(new QWidget(this)) {
  ui_->setupUi(this);
  setObjectName(Text(screen_.name));
  setWindowTitle(Text(screen_.title));
  TakeControls();
  PlaceRange();
  PrepareForm(*this);
  print_panel_ = std::make_unique<PrintPanel>(*ui_);
  TakeDigitsOnly(*ui_->txtPercent, kPercentDigits);
  ConnectControls();
  Load();
}

ResultForm::~ResultForm() = default;

void ResultForm::TakeControls() {
  const auto control = [this](std::string_view name) { return findChild<QWidget*>(Text(name)); };
  absent_->hide();
  // Under a hidden parent no later rule brings a control back.
  for (const std::string_view name : screen_.absent) control(name)->setParent(absent_);
  for (const auto& [name, text] : screen_.captions) control(name)->setProperty("text", Text(text));
  for (const auto& [name, own] : screen_.names) control(name)->setObjectName(Text(own));
}

void ResultForm::PlaceRange() {
  if (RangeOf(screen_) == TallyRange::whole_site) return;
  // Positions stand in the grid's place until the tally has run, shapes above the filters all the time.
  QWidget* before = nullptr;
  if (RangeOf(screen_) == TallyRange::positions) {
    before = ui_->cmdTei;
    range_ = new PageRangePanel(this);
    range_->setObjectName("SSPanel4");
    ui_->formLayout->insertWidget(ui_->formLayout->indexOf(ui_->dbgJS), range_);
  } else {
    before = ui_->txtDay;
    range_ = new ShapeRangePanel(this);
    ui_->formLayout->insertWidget(ui_->formLayout->indexOf(ui_->filterPanel), range_, 0, Qt::AlignTop);
  }
  for (QLineEdit* box : range_->Boxes()) {
    setTabOrder(before, box);
    before = box;
  }
  range_->OnTaken([this] { RunRange(); });
}

void ResultForm::Load() {
  SetSelectionDefaults();
  SelectSite(ReadSteelIni(kSelectedDbNameKey));
  OpenWorkDatabase();
  if (!SiteContext.MasterDatabase) OpenMasterDatabase();
  ShowHead();
  LayOutGrid();
  for (QWidget* hidden :
       std::initializer_list<QWidget*>{ui_->SSPanel4, ui_->Command1, ui_->txtPercent, ui_->lblUper}) {
    hidden->hide();
  }
  filters_.ShowForms();
  ui_->hozon->setVisible(RunState.AccumulateFlag != 0);
  if (range_ == nullptr) {
    FirstRun();
  } else {
    range_->FillFromSchedule(*SiteContext.WorkDatabase);
    ShowState();
  }
  FocusWork();
}

void ResultForm::ShowHead() {
  Database& master = *SiteContext.MasterDatabase;
  const SiteHead head = ReadSiteHead(master, SiteContext.SelectedDbName);
  ui_->lblKojNo->setText(Text(FormatNumber(std::int64_t{head.number}, "000")));
  ui_->lblKojNa->setText(Text(head.name));
  ui_->lblKykCd->setText(QString::number(head.client_code));
  ui_->lblKykNa->setText(Text(ClientName(master, head.client_code)));
  ui_->LabelCD->setText(Text(RunState.RunDate));
  ui_->LabelCT->setText(Text(RunState.RunTime));
}

void ResultForm::LayOutGrid() {
  std::vector<GridColumn> columns;
  columns.reserve(kResultCaptions.size());
  for (std::size_t i = 0; i < kResultCaptions.size(); ++i) {
    columns.push_back({std::string(kResultCaptions[i]), kColumnCharacters[i],
                       i == 0 ? Qt::AlignLeft : Qt::AlignRight, true, true});
  }
  ui_->dbgJS->SetColumns(std::move(columns));
}

void ResultForm::FirstRun() {
  Tally();
  Fill();
  filters_.ShowModes();
  filters_.OfferModes();
}

void ResultForm::TakeRange() {
  if (range_ != nullptr) range_->TakeRange();
}

void ResultForm::RunRange() {
  if (range_->GivesWay()) range_->hide();
  Recalculate([this] {
    if (RangeOf(screen_) == TallyRange::shapes) ResetFilters();
    if (screen_.before_first_run != nullptr) screen_.before_first_run();
  });
  filters_.OfferModes();
  FocusWork();
}

void ResultForm::AskForRange() {
  ResetFilters();
  Selection.MaterialFormMask = kAllForms;
  RunState.HasAnchorPlateRows = false;
  tally_ran_ = false;
  filters_.ShowForms();
  ShowAvailability();
  ShowState();
  FocusWork();
}

void ResultForm::ResetFilters() {
  Selection.MaterialKindMask = kAllKinds;
  Selection.AnchorPlateMode = ShapeFilter::with_others;
  Selection.HoopMode = ShapeFilter::with_others;
  filters_.ShowAllKinds();
  filters_.ShowModes();
}

void ResultForm::ShowState() {
  range_->setVisible(!tally_ran_ || !range_->GivesWay());
  ui_->formLayout->setStretchFactor(range_, tally_ran_ ? 0 : 1);
  for (QWidget* result : std::initializer_list<QWidget*>{ui_->filterPanel, ui_->dbgJS}) {
    result->setVisible(tally_ran_);
  }
  for (QPushButton* button : {ui_->cmdurubon, ui_->cmdMeisai, ui_->cmdPGChange}) {
    button->setEnabled(tally_ran_);
  }
}

void ResultForm::FocusWork() {
  if (range_ == nullptr || tally_ran_) {
    ui_->dbgJS->setFocus();
  } else if (!range_->FocusBox(0)) {
    ui_->cmdExit->setFocus();
  }
}

void ResultForm::Tally() {
  tally_ran_ = false;
  shown_ = CountTally(screen_.kind);
  tally_ran_ = true;
}

void ResultForm::Fill() {
  const double percent = LeadingNumber(ui_->txtPercent->text().toStdString());
  shown_ = WithUlbonRaised(shown_, static_cast<std::int32_t>(percent));
  ui_->dbgJS->SetRows(ResultRows(shown_, {show_ulbon_only_, DiameterGradeNames()}));
  const bool alternate = Settings.AlternateRowColours == 1;
  ui_->dbgJS->SetAlternateColours(alternate ? ColourOfRgb(Settings.GridRowBackColor) : QColor(),
                                  alternate ? ColourOfRgb(Settings.GridRowForeColor) : QColor());
  ShowWarning();
}

void ResultForm::ShowWarning() {
  ui_->Lwarning->setText(Text(shown_.Grid().StockWarningText));
  ui_->Lwarning->setVisible(!shown_.Grid().StockWarningText.empty());
}

void ResultForm::Recalculate(const std::function<void()>& change) {
  const AtEnd show_state([this] {
    if (range_ == nullptr) return;
    if (tally_ran_) return ShowState();
    AskForRange();  // a fault leaves nothing to look at
  });
  const BusyNotice busy(*ui_, *this, range_);
  change();
  ResetMeaninglessModes(Selection);
  Tally();
  Fill();
  // The scoped screens name the kinds after a choice of kinds alone.
  if (range_ == nullptr) filters_.ShowKinds();
  filters_.ShowForms();
  filters_.ShowModes();
  ShowAvailability();
  Selection.PrevMaterialKindMask = Selection.MaterialKindMask;
}

void ResultForm::ShowAvailability() {
  const bool whole = ShowsWholePicture(show_ulbon_only_);
  if (range_ != nullptr) ui_->cmdurubon->setVisible(whole);  // prints there
  for (QPushButton* button : {ui_->Command6, ui_->cmdPrint, ui_->cmdPrint2}) button->setVisible(whole);
  if (print_panel_->IsOpen()) print_panel_->OfferPapers(PapersNow());
}

void ResultForm::Command1_Click() {
  Recalculate([] {});
}

void ResultForm::Command2_Click() {
  if (!parts_.choose_forms) return SayNotReady("材料変更", screen_.title);
  Recalculate([this] {
    parts_.choose_forms();
    Selection.MaterialCalcChoice = CalcChoiceOf(Selection.MaterialKindMask);
  });
}

void ResultForm::Command3_Click() {
  if (!parts_.choose_kinds) return SayNotReady("材質変更", screen_.title);
  parts_.choose_kinds();
  Command1_Click();
  filters_.ShowKinds();
}

void ResultForm::cmdHoop_Click() {
  Recalculate([] { Selection.HoopMode = Next(Selection.HoopMode); });
}

void ResultForm::cmdTei_Click() {
  Recalculate([] { Selection.AnchorPlateMode = Next(Selection.AnchorPlateMode); });
}

void ResultForm::cmdUSum_Click() {
  LayOutGrid();
  Tally();
  show_ulbon_only_ = true;
  Fill();
  ui_->cmdPrint->setText(kUlbonPrintCaption);
  ui_->cmdUSum->hide();
  ui_->Command6->hide();
  ui_->dbgJS->setFocus();
}

void ResultForm::cmdurubon_Click() {
  if (range_ != nullptr) return PrintUlbon();
  ui_->lblUper->show();
  ui_->txtPercent->show();
  ui_->txtPercent->setEnabled(true);
  ui_->txtPercent->setFocus();
  ui_->txtPercent->selectAll();
}

void ResultForm::txtPercent_Enter() {
  Fill();
  ui_->txtPercent->setEnabled(false);
  ui_->dbgJS->setFocus();
}

void ResultForm::CmdVReturn_Click() {
  ui_->txtPercent->clear();
  ui_->txtPercent->hide();
  ui_->lblUper->hide();
  Tally();
  Fill();
  ui_->dbgJS->setFocus();
}

void ResultForm::cmdMeisai_Click() {
  if (!parts_.open_detail) return SayNotReady("明細表示", screen_.title);
  parts_.open_detail();
}

void ResultForm::cmdPGChange_Click() { AskForRange(); }

void ResultForm::Command6_Click() {
  if (!parts_.toggle_accumulation) return SayNotReady("集計加算", screen_.title);
  parts_.toggle_accumulation();
}

void ResultForm::cmdPrint_Click() { OpenPrintPanel(1); }

void ResultForm::cmdPrint2_Click() { OpenPrintPanel(0); }

void ResultForm::OpenPrintPanel(int report_body) {
  RunState.ReportBody = report_body;
  if (range_ != nullptr) range_->setEnabled(false);
  print_panel_->Open(PapersNow());
}

Papers ResultForm::PapersNow() const {
  if (!tally_ran_ || !ShowsWholePicture(false)) return Papers::none;
  return show_ulbon_only_ ? Papers::ulbon : Papers::all;
}

void ResultForm::btnReturn_Click() {
  print_panel_->Close();
  if (range_ != nullptr) range_->setEnabled(true);
  FocusWork();
}

void ResultForm::btnA4Y_Click() { PrintPaper(ReportPaper::a4y); }
void ResultForm::btnA4T_Click() { PrintPaper(ReportPaper::a4t); }
void ResultForm::btnB5Y_Click() { PrintPaper(ReportPaper::b5y); }

void ResultForm::PrintPaper(ReportPaper paper) {
  if (!print_panel_->Dates().CheckYear()) return;
  const bool printed = Print(print_panel_->Order(shown_, paper, show_ulbon_only_));
  // The scoped screens stay in the panel, for another sheet.
  if (printed && range_ == nullptr) btnReturn_Click();
}

bool ResultForm::Print(const PrintOrder& order) {
  if (!parts_.print) {
    SayNotReady("印字", screen_.title);
    return false;
  }
  parts_.print(order);
  return true;
}

void ResultForm::PrintUlbon() {
  RunState.ReportBody = 1;
  print_panel_->Dates().FillToday();
  Print(print_panel_->Order(shown_, ReportPaper::a4y, true));
}

void ResultForm::btnSettei_Click() {
  if (!parts_.open_settings) return SayNotReady("設定", screen_.title);
  parts_.open_settings();
  print_panel_->Dates().FollowStyle();
  Fill();
}

// A key presses it; the mouse and the blank turn it over without help.
void ResultForm::chkPreview_Press() { ui_->chkPreview->toggle(); }

void ResultForm::cmdExit_Click() { close(); }

void ResultForm::closeEvent(QCloseEvent* event) {
  if (!ended_) {
    ended_ = true;
    Selection.MaterialCalcChoice = CalcChoice::without_high_strength;
    Selection.MaterialFormMask = kAllForms;
    SiteContext.WorkDatabase.reset();
  }
  QWidget::closeEvent(event);
}

}  // namespace rbt
