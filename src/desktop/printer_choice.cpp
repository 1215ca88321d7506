// SPDX-License-Identifier: MIT
#include "desktop/printer_choice.h"

#include <array>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/key_table.h"
#include "ui_printer_choice.h"

namespace rbt {

namespace {

constexpr std::array<KeyBinding<PrinterChoice>, 2> kKeyTable{{
    {Qt::Key_F1, &PrinterChoice::TakePrinter},
    {Qt::Key_Escape, &PrinterChoice::TurnBack},
}};

}  // namespace

PrinterChoice::PrinterChoice(const std::vector<std::string>& printers)
    : ui_(std::make_unique<Ui::PrinterChoice>()) {
  ui_->setupUi(this);
  PrepareForm(*this);
  for (const std::string& printer : printers) ui_->lstPrinter->addItem(QString::fromStdString(printer));
  ui_->lstPrinter->setCurrentRow(0);
  const auto take = [this] { RunAction(*this, [this] { TakePrinter(); }); };
  connect(ui_->cmdOk, &QPushButton::clicked, this, take);
  // Enter in the list, and a double click.
  connect(ui_->lstPrinter, &QListWidget::itemActivated, this, take);
  connect(ui_->cmdEnd, &QPushButton::clicked, this, [this] { RunAction(*this, [this] { TurnBack(); }); });
  new KeyPreview(
      *this, [this](const QKeyEvent& press) { return AnswerKey<PrinterChoice>(*this, kKeyTable, press); });
  ui_->lstPrinter->setFocus();
}

PrinterChoice::~PrinterChoice() = default;

std::vector<int> PrinterChoice::Keys() { return KeysOf<PrinterChoice>(kKeyTable); }

void PrinterChoice::TakePrinter() {
  const QListWidgetItem* item = ui_->lstPrinter->currentItem();
  if (item == nullptr) return;
  chosen_ = item->text().toStdString();
  hide();
}

void PrinterChoice::TurnBack() { hide(); }

std::optional<std::string> ChoosePrinter(const std::vector<std::string>& printers) {
  PrinterChoice form(printers);
  ShowModally(form);
  return form.Chosen();
}

}  // namespace rbt
