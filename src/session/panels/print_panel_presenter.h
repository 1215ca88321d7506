// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "session/panels/date_entry.h"
#include "session/panels/printer_notice.h"
#include "session/panels/views.h"

namespace rbt {

/// The print panel of a screen: whether it is open, the sheets that it offers, the memo line, the date, the
/// choice to look at a sheet before it is printed, and what is to be said of the printer. What was typed and
/// ticked stays while the screen is open.
class PrintPanelPresenter {
 public:
  bool IsOpen() const { return open_; }
  /// Fills the empty date boxes with today and looks for the printer. Returns where the focus goes.
  FocusTarget Open(Papers papers);
  void Close() { open_ = false; }

  /// Lets the user take another printer where that of the settings is not there: `ask` gives one of the
  /// names, or none.
  using AskPrinter = std::function<std::optional<std::string>(const std::vector<std::string>& printers)>;
  void OfferPrinters(AskPrinter ask) { ask_printer_ = std::move(ask); }
  /// Asks for a printer and makes it that of the settings. Faults: `file`.
  void ChoosePrinter();

  Papers Offered() const { return papers_; }
  void OfferPapers(Papers papers) { papers_ = papers; }

  void TypeMemo(std::string text) { memo_ = std::move(text); }
  void SetPreview(bool preview) { preview_ = preview; }
  void TogglePreview() { preview_ = !preview_; }
  DateEntry& Date() { return date_; }

  PrintPanelView View() const {
    return {.open = open_,
            .papers = papers_,
            .preview = preview_,
            .memo = memo_,
            .date = date_.Texts(),
            .printer_notice = printer_.text,
            .offers_printers = ask_printer_ && !printer_.printers.empty()};
  }

 private:
  bool open_ = false;
  Papers papers_ = Papers::all;
  bool preview_ = false;
  std::string memo_;
  DateEntry date_;
  PrinterNotice printer_;
  AskPrinter ask_printer_;
};

}  // namespace rbt
