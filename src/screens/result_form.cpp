// SPDX-License-Identifier: MIT
#include "screens/result_form.h"

#include <array>
#include <string>

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>

#include "data/grade_names.h"
#include "data/reference.h"
#include "data/run_state.h"
#include "data/site_context.h"
#include "platform/desktop/action.h"
#include "platform/desktop/form.h"
#include "platform/desktop/key_table.h"
#include "platform/numbers/number_mask.h"
#include "platform/numbers/number_words.h"
#include "platform/system/message.h"
#include "platform/system/process.h"
#include "screens/digit_box.h"
#include "shell/config/setting_keys.h"
#include "shell/config/settings.h"
#include "tally/captions.h"
#include "tally/result_grid.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"
#include "ui_result_form.h"

namespace rbt {

namespace {

constexpr int kAllMask = 15;
constexpr std::array kModeCaptions{"含む", "含まず", "のみ"};
constexpr const char* kUlbonPrintCaption = "ｳﾙﾎﾞﾝ印字(F1)";

/// Half-width characters that a column shows; the first holds the grade name and the diameter.
constexpr std::array<int, 6> kColumnCharacters{26, 18, 18, 16, 14, 14};

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A colour as it stands in the settings: red in the low byte.
QColor ColourOf(std::int32_t rgb) { return {rgb & 0xFF, (rgb >> 8) & 0xFF, (rgb >> 16) & 0xFF}; }

/// The start modes whose programs offer no filter on shapes.
bool OffersShapeFilters() {
  return Selection.StartMode != 1 && Selection.StartMode != 3 && Selection.StartMode != 4;
}

void SayNotReady(const char* what, std::string_view title) {
  MsgBox("「" + std::string(what) + "」は、まだご利用いただけません。", title);
}

}  // namespace

struct ResultForm::Action {
  QPushButton* Ui::ResultForm::*button;
  int key;  ///< 0 when it has none
  void (ResultForm::*handler)();
};

const std::vector<ResultForm::Action>& ResultForm::Actions() {
  using F = ResultForm;
  using U = Ui::ResultForm;
  static const std::vector<Action> actions{
      {&U::cmdPrint, Qt::Key_F1, &F::cmdPrint_Click},
      {&U::cmdUSum, Qt::Key_F2, &F::cmdUSum_Click},
      {&U::cmdurubon, Qt::Key_F3, &F::cmdurubon_Click},
      {&U::cmdPrint2, 0, &F::cmdPrint2_Click},
      {&U::CmdVReturn, 0, &F::CmdVReturn_Click},
      {&U::cmdMeisai, Qt::Key_F5, &F::cmdMeisai_Click},
      {&U::Command6, Qt::Key_F6, &F::Command6_Click},
      {&U::cmdExit, Qt::Key_Escape, &F::cmdExit_Click},
      {&U::Command1, 0, &F::Command1_Click},
      {&U::Command2, 0, &F::Command2_Click},
      {&U::Command3, 0, &F::Command3_Click},
      {&U::cmdHoop, 0, &F::cmdHoop_Click},
      {&U::cmdTei, 0, &F::cmdTei_Click},
      {&U::btnA4Y, Qt::Key_F1, &F::btnA4Y_Click},
      {&U::btnA4T, Qt::Key_F3, &F::btnA4T_Click},
      {&U::btnB5Y, Qt::Key_F5, &F::btnB5Y_Click},
      {&U::btnSettei, Qt::Key_F7, &F::btnSettei_Click},
      {&U::btnReturn, Qt::Key_Escape, &F::btnReturn_Click},
  };
  return actions;
}

/// While a tally runs: filter buttons out of sight, the others out of reach, the wait panel shown. Everything
/// comes back as it stood, the focus too, whatever ends the tally.
class ResultForm::Busy {
 public:
  explicit Busy(ResultForm& form) : ui_(*form.ui_), focus_(form.focusWidget()) {
    for (std::size_t i = 0; i < kHidden.size(); ++i) {
      shown_[i] = !(ui_.*kHidden[i])->isHidden();
      (ui_.*kHidden[i])->hide();
    }
    for (QPushButton* Ui::ResultForm::*button : kDisabled) (ui_.*button)->setEnabled(false);
    ui_.SSPanel4->show();
    RunPendingEvents();
  }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;
  ~Busy() {
    for (std::size_t i = 0; i < kHidden.size(); ++i) (ui_.*kHidden[i])->setVisible(shown_[i]);
    for (QPushButton* Ui::ResultForm::*button : kDisabled) (ui_.*button)->setEnabled(true);
    ui_.SSPanel4->hide();
    if (focus_ != nullptr && focus_->isVisible()) focus_->setFocus();
  }

 private:
  using Button = QPushButton* Ui::ResultForm::*;
  static constexpr std::array<Button, 5> kHidden{&Ui::ResultForm::Command1, &Ui::ResultForm::Command2,
                                                 &Ui::ResultForm::Command3, &Ui::ResultForm::cmdHoop,
                                                 &Ui::ResultForm::cmdTei};
  static constexpr std::array<Button, 6> kDisabled{&Ui::ResultForm::cmdPrint,  &Ui::ResultForm::cmdurubon,
                                                   &Ui::ResultForm::cmdMeisai, &Ui::ResultForm::cmdExit,
                                                   &Ui::ResultForm::cmdPrint2, &Ui::ResultForm::Command6};
  Ui::ResultForm& ui_;
  QWidget* focus_;
  std::array<bool, 5> shown_{};
};

ResultForm::ResultForm(const ResultScreen& screen, ResultParts parts)
    : screen_(screen), parts_(std::move(parts)), ui_(std::make_unique<Ui::ResultForm>()) {
  ui_->setupUi(this);
  setObjectName(Text(screen_.name));
  setWindowTitle(Text(screen_.title));
  PrepareForm(*this);
  dates_ =
      new DateBoxes(*ui_->txtYear, *ui_->txtMonth, *ui_->txtDay, [] { return ReadSetting(kDateStyleKey); });
  TakeDigitsOnly(*ui_->txtPercent, 6);
  ConnectControls();
  Load();
}

ResultForm::~ResultForm() = default;

std::vector<int> ResultForm::Keys() {
  std::vector<int> keys;
  for (const Action& action : Actions()) {
    if (action.key != 0) keys.push_back(action.key);
  }
  return keys;
}

void ResultForm::ConnectControls() {
  for (const Action& action : Actions()) {
    connect((*ui_).*action.button, &QPushButton::clicked, this,
            [this, handler = action.handler] { RunAction(*this, [&] { (this->*handler)(); }); });
  }
  connect(ui_->txtPercent, &QLineEdit::returnPressed, this,
          [this] { RunAction(*this, [this] { txtPercent_Enter(); }); });
  new KeyPreview(*this, [this](const QKeyEvent& press) { return AnswerPress(press); });
}

bool ResultForm::AnswerPress(const QKeyEvent& press) {
  const bool panel_open = !ui_->SSPanel3->isHidden();
  bool ours = false;
  for (const Action& action : Actions()) {
    if (action.key == 0 || !IsPress(press, action.key)) continue;
    ours = true;
    const QPushButton* button = (*ui_).*action.button;
    if (panel_open != ui_->SSPanel3->isAncestorOf(button)) continue;
    if (!IsRepeat(press) && button->isVisibleTo(this) && button->isEnabled()) (this->*action.handler)();
    break;
  }
  return ours;
}

void ResultForm::Load() {
  SetDefaults();
  SelectSite(ReadSteelIni(kSelectedDbNameKey));
  OpenWorkDatabase();
  if (!SiteContext.MasterDatabase) OpenMasterDatabase();
  ShowHead();
  LayOutGrid();
  for (QWidget* hidden :
       std::initializer_list<QWidget*>{ui_->SSPanel3, ui_->SSPanel4, ui_->Command1, ui_->txtPercent,
                                       ui_->lblUper, ui_->lblSubKojNa, ui_->txtSubKojNa}) {
    hidden->hide();
  }
  dates_->SetEnabled(false);
  Tally();
  Fill();
  ShowModeCaptions();
  ui_->Label8->setText(Text(kAllKindsAtDesign));
  ui_->Label9->setText(Text(FormCaption(Selection.MaterialFormMask)));
  ui_->hozon->setVisible(RunState.AccumulateFlag != 0);
  const bool plates = RunState.HasAnchorPlateRows && OffersShapeFilters();
  const bool hoops = RunState.HasHoopRows && OffersShapeFilters();
  for (QWidget* control : std::initializer_list<QWidget*>{ui_->cmdTei, ui_->Label5})
    control->setVisible(plates);
  for (QWidget* control : std::initializer_list<QWidget*>{ui_->cmdHoop, ui_->Label3, ui_->Label4}) {
    control->setVisible(hoops);
  }
  ui_->dbgJS->setFocus();
}

void ResultForm::SetDefaults() {
  constexpr std::int16_t kHighStrengthWithOthers = 2;
  Selection.MaterialKindMask = kAllMask;
  Selection.MaterialFormMask = kAllMask;
  Selection.PrevMaterialKindMask = kAllMask;
  Selection.IncludeUlbon = 1;
  if (RunState.AccumulateFlag == 0) Selection.MaterialCalcChoice = kHighStrengthWithOthers;
  Selection.HoopMode = 0;
  Selection.AnchorPlateMode = 0;
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
  for (std::size_t i = 0; i < kResultCaptions.size(); ++i) {
    columns.push_back({std::string(kResultCaptions[i]), kColumnCharacters[i],
                       i == 0 ? Qt::AlignLeft : Qt::AlignRight, true, true});
  }
  ui_->dbgJS->SetColumns(std::move(columns));
}

void ResultForm::Tally() { screen_.tally(); }

double ResultForm::Percent() const { return Int(LeadingNumber(ui_->txtPercent->text().toStdString())); }

void ResultForm::Fill() {
  ui_->dbgJS->SetRows(ShowTally(TallyGrid, Selection, {show_ulbon_only_, Percent(), DiameterGradeNames()}));
  const bool alternate = Settings.AlternateRowColours == 1;
  ui_->dbgJS->SetAlternateColours(alternate ? ColourOf(Settings.GridRowBackColor) : QColor(),
                                  alternate ? ColourOf(Settings.GridRowForeColor) : QColor());
  ShowWarning();
}

void ResultForm::ShowWarning() {
  ui_->Lwarning->setText(Text(TallyGrid.StockWarningText));
  ui_->Lwarning->setVisible(!TallyGrid.StockWarningText.empty());
}

void ResultForm::Recalculate(const std::function<void()>& change) {
  const Busy busy(*this);
  change();
  ResetMeaninglessModes(Selection);
  Tally();
  Fill();
  ShowKindCaption();
  ui_->Label9->setText(Text(FormCaption(Selection.MaterialFormMask)));
  ShowModeCaptions();
  ShowAvailability();
  Selection.PrevMaterialKindMask = Selection.MaterialKindMask;
}

void ResultForm::ShowKindCaption() {
  const std::string_view caption = KindCaption(Selection.MaterialKindMask);
  // After a recalculation the slit word goes in the full program too; the total row keeps it there.
  const bool strips = Selection.StartMode == -1 || ShowsNoSlitWord(Selection.StartMode);
  ui_->Label8->setText(strips ? Text(StripSlitWord(caption)) : Text(caption));
}

void ResultForm::ShowModeCaptions() {
  constexpr int kOnly = 2;
  ui_->cmdHoop->setText(kModeCaptions.at(static_cast<std::size_t>(Selection.HoopMode)));
  ui_->Label4->setText(Selection.HoopMode == kOnly ? "(形状No87)" : "(形状No87)を");
  ui_->cmdTei->setText(kModeCaptions.at(static_cast<std::size_t>(Selection.AnchorPlateMode)));
}

void ResultForm::ShowAvailability() {
  const bool whole = ShowsWholePicture(show_ulbon_only_);
  for (QPushButton* button : {ui_->Command6, ui_->cmdPrint, ui_->cmdPrint2}) button->setVisible(whole);
}

void ResultForm::Command1_Click() {
  Recalculate([] {});
}

void ResultForm::Command2_Click() {
  if (!parts_.choose_forms) return SayNotReady("材料変更", screen_.title);
  Recalculate([this] {
    parts_.choose_forms();
    Selection.MaterialCalcChoice = static_cast<std::int16_t>(CalcChoiceOf(Selection.MaterialKindMask));
  });
}

void ResultForm::Command3_Click() {
  if (!parts_.choose_kinds) return SayNotReady("材質変更", screen_.title);
  parts_.choose_kinds();
  Command1_Click();
}

void ResultForm::cmdHoop_Click() {
  Recalculate([] { Selection.HoopMode = (Selection.HoopMode + 1) % 3; });
}

void ResultForm::cmdTei_Click() {
  Recalculate([] { Selection.AnchorPlateMode = (Selection.AnchorPlateMode + 1) % 3; });
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

void ResultForm::Command6_Click() {
  if (!parts_.toggle_accumulation) return SayNotReady("集計加算", screen_.title);
  parts_.toggle_accumulation();
}

void ResultForm::cmdPrint_Click() { OpenPrintPanel(1); }

void ResultForm::cmdPrint2_Click() { OpenPrintPanel(0); }

void ResultForm::OpenPrintPanel(int report_body) {
  RunState.ReportBody = report_body;
  ui_->SSPanel2->hide();
  ui_->SSPanel3->show();
  ui_->lblSubKojNa->show();
  ui_->txtSubKojNa->show();
  ui_->btnA4Y->setVisible(!show_ulbon_only_);
  ui_->btnB5Y->setVisible(!show_ulbon_only_);
  dates_->SetEnabled(true);
  dates_->FillEmpty();
  (show_ulbon_only_ ? ui_->btnA4T : ui_->btnA4Y)->setFocus();
}

void ResultForm::btnReturn_Click() {
  ui_->SSPanel3->hide();
  ui_->SSPanel2->show();
  ui_->lblSubKojNa->hide();
  ui_->txtSubKojNa->hide();
  dates_->SetEnabled(false);
  ui_->dbgJS->setFocus();
}

void ResultForm::btnA4Y_Click() { Print("btnA4Y"); }
void ResultForm::btnA4T_Click() { Print("btnA4T"); }
void ResultForm::btnB5Y_Click() { Print("btnB5Y"); }

void ResultForm::Print(const char* button) {
  if (!dates_->CheckYear()) return;
  if (!parts_.print) return SayNotReady("印字", screen_.title);
  parts_.print({button, show_ulbon_only_, dates_->Texts(), ui_->txtSubKojNa->text().trimmed().toStdString(),
                Percent()});
  btnReturn_Click();
}

void ResultForm::btnSettei_Click() {
  if (!parts_.open_settings) return SayNotReady("設定", screen_.title);
  parts_.open_settings();
  dates_->FollowStyle();
  Fill();
}

void ResultForm::cmdExit_Click() { close(); }

void ResultForm::closeEvent(QCloseEvent* event) {
  if (!ended_) {
    ended_ = true;
    Selection.MaterialCalcChoice = 0;
    Selection.MaterialFormMask = kAllMask;
    SiteContext.WorkDatabase.reset();
  }
  QWidget::closeEvent(event);
}

}  // namespace rbt
