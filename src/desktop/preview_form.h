// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QWidget>

#include "platform/print/printed_document.h"

namespace Ui {
class PreviewForm;
}

namespace rbt {

/// What the preview leans on, so that a test can stand in for it.
struct PreviewParts {
  /// Names of the printers of the system, without this program's own PDF device.
  std::vector<std::string> printers;
  std::string settings_printer = {};  ///< that the settings name, there or not; any other keeps its own paper
  std::function<void(const std::string& device_name, const PrintedDocument& document)> print;
  /// Asks which of the printers to take; nothing when the user turns back.
  std::function<std::optional<std::string>(const std::vector<std::string>& printers)> choose_printer;
  /// Asks for the file to write, `offered` at first; nothing when the user turns back.
  std::function<std::optional<std::filesystem::path>(QWidget& form, const std::filesystem::path& offered)>
      ask_file;
};

/// The printers in force and the program's own dialogs.
PreviewParts SystemPreviewParts();

/// Documents as their sheets will look, page after page, before paper moves: the user turns pages and zooms,
/// then prints, saves as PDF or turns back.
class PreviewForm : public QWidget {
 public:
  /// At least one document with a page.
  PreviewForm(std::vector<PrintedDocument> documents, PreviewParts parts);
  ~PreviewForm() override;

  /// Every key of the form, of the Qt::Key enumeration.
  static std::vector<int> Keys();

  void ShowPreviousPage();
  void ShowNextPage();
  void ShowFirstPage();
  void ShowLastPage();
  void ZoomIn();
  void ZoomOut();
  void ShowWholePage();
  void ShowPageWidth();
  void ShowActualSize();
  void Print();
  void Save();
  void Leave();

 private:
  /// Where a page of the walk through all documents stands.
  struct PagePlace {
    std::size_t document;
    std::size_t page;
  };

  void ConnectControls();
  void TakeStartSize();
  void ShowPage(std::size_t page);
  void ShowZoom();
  std::string OwnPaperNote(const std::string& printer) const;
  void ShowPrinter();
  std::optional<std::string> OwnPrinter() const;

  std::vector<PrintedDocument> documents_;
  PreviewParts parts_;
  std::vector<PagePlace> pages_;
  std::size_t page_ = 0;
  std::unique_ptr<Ui::PreviewForm> ui_;
};

/// Shows all pages of all documents in their order, in a window over all others, and returns when it is
/// closed. Where there is no page, nothing is shown.
void ShowPreview(std::vector<PrintedDocument> documents);

}  // namespace rbt
