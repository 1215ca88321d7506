// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>

#include <QFileDialog>
#include <QString>

namespace rbt {

/// The dialog in which a file or a folder is chosen: the same one on every desktop, with the texts of this
/// program. What may be chosen, and where it begins, is set by whoever asks.
class FileChoice : public QFileDialog {
 public:
  FileChoice(QWidget* parent, const QString& title);

  /// Nothing when the user turns back. `accept` is the caption of the button that takes the choice. What is
  /// at work stands still meanwhile.
  std::optional<std::filesystem::path> Ask(const QString& accept);
};

}  // namespace rbt
