// SPDX-License-Identifier: MIT
#include "desktop/preview_form.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPushButton>
#include <QScreen>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/key_card.h"
#include "desktop/key_table.h"
#include "desktop/preview_save.h"
#include "desktop/printer_choice.h"
#include "desktop/system_printers.h"
#include "platform/print/paper.h"
#include "platform/system/message.h"
#include "platform/system/printing.h"
#include "shell/config/settings.h"
#include "ui_preview_form.h"

namespace rbt {

namespace {

constexpr const char* kNoPrinter = "プリンタがないため、印刷できません。";

/// Keys that move through the sheets; held down they go on.
constexpr std::array<KeyBinding<PreviewForm>, 6> kMoveKeys{{
    {Qt::Key_PageUp, &PreviewForm::ShowPreviousPage},
    {Qt::Key_PageDown, &PreviewForm::ShowNextPage},
    {Qt::Key_Home, &PreviewForm::ShowFirstPage},
    {Qt::Key_End, &PreviewForm::ShowLastPage},
    {Qt::Key_Plus, &PreviewForm::ZoomIn},
    {Qt::Key_Minus, &PreviewForm::ZoomOut},
}};

constexpr std::array<KeyBinding<PreviewForm>, 8> kActionKeys{{
    {Qt::Key_F2, &PreviewForm::ShowActualSize},
    {Qt::Key_F3, &PreviewForm::ShowWholePage},
    {Qt::Key_F4, &PreviewForm::ShowPageWidth},
    {Qt::Key_F5, &PreviewForm::Print},
    {Qt::Key_P, &PreviewForm::Print},
    {Qt::Key_F7, &PreviewForm::Save},
    {Qt::Key_S, &PreviewForm::Save},
    {Qt::Key_Escape, &PreviewForm::Leave},
}};

struct CardKey {
  int key;
  const char* button;
};

/// The keys in the order of their buttons.
constexpr std::array<CardKey, 12> kCardKeys{{
    {Qt::Key_PageUp, "cmdPrev"},
    {Qt::Key_PageDown, "cmdNext"},
    {Qt::Key_Home, "cmdFirst"},
    {Qt::Key_End, "cmdLast"},
    {Qt::Key_Plus, "cmdZoomIn"},
    {Qt::Key_Minus, "cmdZoomOut"},
    {Qt::Key_F3, "cmdWhole"},
    {Qt::Key_F4, "cmdWidth"},
    {Qt::Key_F2, "cmdActual"},
    {Qt::Key_F5, "cmdPrint"},
    {Qt::Key_F7, "cmdSave"},
    {Qt::Key_Escape, "cmdEnd"},
}};

void ShowCard(const PreviewForm& form) {
  std::vector<KeyCardRow> rows;
  rows.reserve(kCardKeys.size());
  for (const CardKey& row : kCardKeys) {
    const auto* button = form.findChild<QPushButton*>(QString::fromLatin1(row.button));
    if (!button->isEnabled()) continue;
    rows.push_back({QKeySequence(row.key).toString(), button->text().simplified(), button->toolTip()});
  }
  ShowKeyCard(form.windowTitle(), rows);
}

bool AnswerPress(PreviewForm& form, const QKeyEvent& press) {
  if (press.modifiers().testFlag(Qt::ShiftModifier) && IsPress(press, Qt::Key_F1)) {
    if (!IsRepeat(press)) ShowCard(form);
    return true;
  }
  for (const auto& binding : kMoveKeys) {
    if (!IsPress(press, binding.key)) continue;
    (form.*binding.handler)();
    return true;
  }
  return AnswerKey<PreviewForm>(form, kActionKeys, press);
}

}  // namespace

PreviewParts SystemPreviewParts() {
  PreviewParts parts;
  for (const PrinterSurface& printer : Printers().Installed()) {
    if (printer.Kind() == DeviceKind::installed_printer) parts.printers.push_back(printer.DeviceName());
  }
  parts.settings_printer = Settings.TallyPrinter;
  parts.print = PrintDocument;
  parts.choose_printer = ChoosePrinter;
  parts.ask_file = AskPdfFile;
  return parts;
}

PreviewForm::PreviewForm(std::vector<PrintedDocument> documents, PreviewParts parts)
    : documents_(std::move(documents)), parts_(std::move(parts)), ui_(std::make_unique<Ui::PreviewForm>()) {
  for (std::size_t document = 0; document < documents_.size(); ++document) {
    for (std::size_t page = 0; page < documents_[document].pages.size(); ++page) {
      pages_.push_back({document, page});
    }
  }
  ui_->setupUi(this);
  PrepareForm(*this);
  ConnectControls();
  if (pages_.size() == 1) {
    for (QPushButton* button : {ui_->cmdPrev, ui_->cmdNext, ui_->cmdFirst, ui_->cmdLast}) {
      button->setEnabled(false);
    }
  }
  ShowPrinter();
  ShowPage(0);
  TakeStartSize();
  ui_->picSheet->setFocus();
}

PreviewForm::~PreviewForm() = default;

std::vector<int> PreviewForm::Keys() {
  std::vector<int> keys = KeysOf<PreviewForm>(kMoveKeys);
  for (const int key : KeysOf<PreviewForm>(kActionKeys)) keys.push_back(key);
  return keys;
}

void PreviewForm::ConnectControls() {
  using F = PreviewForm;
  const std::array<std::pair<QPushButton*, void (F::*)()>, 12> clicks{{
      {ui_->cmdPrev, &F::ShowPreviousPage},
      {ui_->cmdNext, &F::ShowNextPage},
      {ui_->cmdFirst, &F::ShowFirstPage},
      {ui_->cmdLast, &F::ShowLastPage},
      {ui_->cmdZoomIn, &F::ZoomIn},
      {ui_->cmdZoomOut, &F::ZoomOut},
      {ui_->cmdWhole, &F::ShowWholePage},
      {ui_->cmdWidth, &F::ShowPageWidth},
      {ui_->cmdActual, &F::ShowActualSize},
      {ui_->cmdPrint, &F::Print},
      {ui_->cmdSave, &F::Save},
      {ui_->cmdEnd, &F::Leave},
  }};
  for (const auto& [button, handler] : clicks) {
    connect(button, &QPushButton::clicked, this,
            [this, handler = handler] { RunAction(*this, [&] { (this->*handler)(); }); });
  }
  new KeyPreview(*this, [this](const QKeyEvent& press) { return AnswerPress(*this, press); });
  ui_->picSheet->on_zoom = [this] { ShowZoom(); };
  ui_->picSheet->on_turn = [this](int pages) { pages < 0 ? ShowPreviousPage() : ShowNextPage(); };
}

/// As high as the screen allows, and as wide as the first sheet then needs: it shows whole from the start.
void PreviewForm::TakeStartSize() {
  constexpr int kFrame = 48;  // what the desktop puts around a window
  const PrintedDocument& document = documents_[pages_.front().document];
  const SheetSize sheet = SheetOf(document.paper_code, document.orientation);
  const QSize screen = this->screen()->availableGeometry().size();
  ensurePolished();
  resize(width(), screen.height() - kFrame);
  layout()->activate();
  const QSize around = size() - ui_->picSheet->size();
  const int margins = 2 * PreviewSheet::Margin();
  const double sheet_height = height() - around.height() - margins;
  const int width = around.width() + margins + qRound(sheet_height * sheet.width / sheet.height);
  resize(std::min(width, screen.width()), height());
}

void PreviewForm::ShowPage(std::size_t page) {
  page_ = page;
  const PagePlace place = pages_[page];
  const PrintedDocument& document = documents_[place.document];
  ui_->lblPage->setText(QStringLiteral("頁 %1 / %2").arg(page + 1).arg(pages_.size()));
  ui_->picSheet->ShowPage(document.pages[place.page], SheetOf(document.paper_code, document.orientation));
}

void PreviewForm::ShowZoom() {
  constexpr std::array kFits{"", "全体 ", "頁幅 "};
  const char* fit = kFits.at(static_cast<std::size_t>(ui_->picSheet->FitMode()));
  ui_->lblZoom->setText(
      QStringLiteral("%1%2 %").arg(QString::fromUtf8(fit)).arg(qRound(ui_->picSheet->Percent())));
}

void PreviewForm::ShowPreviousPage() {
  if (page_ > 0) ShowPage(page_ - 1);
}

void PreviewForm::ShowNextPage() {
  if (page_ + 1 < pages_.size()) ShowPage(page_ + 1);
}

void PreviewForm::ShowFirstPage() { ShowPage(0); }
void PreviewForm::ShowLastPage() { ShowPage(pages_.size() - 1); }
void PreviewForm::ZoomIn() { ui_->picSheet->ZoomIn(); }
void PreviewForm::ZoomOut() { ui_->picSheet->ZoomOut(); }
void PreviewForm::ShowWholePage() { ui_->picSheet->SetFit(PreviewSheet::Fit::whole); }
void PreviewForm::ShowPageWidth() { ui_->picSheet->SetFit(PreviewSheet::Fit::width); }
void PreviewForm::ShowActualSize() { ui_->picSheet->SetPercent(100.0); }

/// The installed printer that all documents were made for; nothing when there is no such one.
std::optional<std::string> PreviewForm::OwnPrinter() const {
  const std::string& name = documents_[pages_.front().document].device_name;
  const bool shared = std::all_of(documents_.begin(), documents_.end(),
                                  [&](const PrintedDocument& each) { return each.device_name == name; });
  const bool installed =
      std::find(parts_.printers.begin(), parts_.printers.end(), name) != parts_.printers.end();
  return shared && installed ? std::optional(name) : std::nullopt;
}

/// A printer that is not the one of the settings prints on what lies in it.
std::string PreviewForm::OwnPaperNote(const std::string& printer) const {
  if (parts_.settings_printer.empty() || printer == parts_.settings_printer) return "";
  const PrintedDocument& document = documents_[pages_.front().document];
  return "（今の用紙 " + PaperCaption(document.paper_code, document.orientation) +
         " のまま：入らない部分は切れます）";
}

void PreviewForm::ShowPrinter() {
  const bool can_print = !parts_.printers.empty();
  ui_->cmdPrint->setEnabled(can_print);
  if (!can_print) ui_->cmdPrint->setToolTip(QString::fromUtf8(kNoPrinter));
  const std::optional<std::string> printer = OwnPrinter();
  const std::string target =
      printer ? "印刷先：" + *printer + OwnPaperNote(*printer) : "印刷先：印刷の時に選びます。";
  ui_->lblStatus->setText(QString::fromStdString(can_print ? target : kNoPrinter));
}

void PreviewForm::Print() {
  if (!ui_->cmdPrint->isEnabled()) {
    MsgBox(kNoPrinter, windowTitle().toStdString());
    return;
  }
  std::optional<std::string> printer = OwnPrinter();
  if (!printer) printer = parts_.choose_printer(parts_.printers);
  if (!printer) return;
  for (const PrintedDocument& document : documents_) {
    if (!document.pages.empty()) parts_.print(*printer, document);
  }
  ui_->lblStatus->setText(QString::fromStdString("「" + *printer + "」に送りました。"));
}

void PreviewForm::Save() { SaveAsPdf(*this, documents_, parts_.ask_file); }

void PreviewForm::Leave() { hide(); }

void ShowPreview(std::vector<PrintedDocument> documents) {
  const bool empty = std::all_of(documents.begin(), documents.end(),
                                 [](const PrintedDocument& document) { return document.pages.empty(); });
  if (empty) return;
  PreviewForm form(std::move(documents), SystemPreviewParts());
  ShowModally(form);
}

}  // namespace rbt
