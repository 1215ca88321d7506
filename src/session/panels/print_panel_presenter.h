// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "session/panels/date_entry.h"
#include "session/panels/views.h"

namespace rbt {

/// The print panel of a screen: whether it is open, the sheets that it offers, the memo line, the date, and
/// the choice to look at a sheet before it is printed. What was typed and ticked stays while the screen is
/// open.
class PrintPanelPresenter {
 public:
  bool IsOpen() const { return open_; }
  /// Fills the empty date boxes with today. Returns where the focus goes.
  FocusTarget Open(Papers papers);
  void Close() { open_ = false; }

  Papers Offered() const { return papers_; }
  void OfferPapers(Papers papers) { papers_ = papers; }

  void TypeMemo(std::string text) { memo_ = std::move(text); }
  void SetPreview(bool preview) { preview_ = preview; }
  void TogglePreview() { preview_ = !preview_; }
  DateEntry& Date() { return date_; }

  PrintPanelView View() const {
    return {.open = open_, .papers = papers_, .preview = preview_, .memo = memo_, .date = date_.Texts()};
  }

 private:
  bool open_ = false;
  Papers papers_ = Papers::all;
  bool preview_ = false;
  std::string memo_;
  DateEntry date_;
};

}  // namespace rbt
