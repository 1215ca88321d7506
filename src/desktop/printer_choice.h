// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QWidget>

namespace Ui {
class PrinterChoice;
}

namespace rbt {

/// A list of printers of which the user takes one.
class PrinterChoice : public QWidget {
 public:
  /// At least one printer; the first is offered.
  explicit PrinterChoice(const std::vector<std::string>& printers);
  ~PrinterChoice() override;

  /// Every key of the form, of the Qt::Key enumeration.
  static std::vector<int> Keys();

  void TakePrinter();
  void TurnBack();

  /// The printer that was taken; nothing when the user turned back.
  const std::optional<std::string>& Chosen() const { return chosen_; }

 private:
  std::unique_ptr<Ui::PrinterChoice> ui_;
  std::optional<std::string> chosen_;
};

/// Shows the list over all windows; nothing when the user turns back.
std::optional<std::string> ChoosePrinter(const std::vector<std::string>& printers);

}  // namespace rbt
