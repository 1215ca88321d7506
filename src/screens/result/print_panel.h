// SPDX-License-Identifier: MIT
#pragma once

#include "screens/panels/date_boxes.h"
#include "session/result/print_order.h"

namespace Ui {
class ResultForm;
}

namespace rbt {

/// Sheets that can be printed now.
enum class Papers {
  all,
  ulbon,  ///< the Ulbon view: one paper button
  none    ///< nothing was tallied: settings and return alone
};

/// The print buttons in place of the main ones, with the date boxes and the memo line of the head, and the
/// choice to look at a sheet before it is printed.
class PrintPanel {
 public:
  explicit PrintPanel(Ui::ResultForm& ui);

  bool IsOpen() const;
  void Open(Papers papers);
  void Close();
  void OfferPapers(Papers papers);

  DateBoxes& Dates() { return *dates_; }
  /// What a paper button asks for, as the boxes stand.
  PrintOrder Order(const TallyResult& result, ReportPaper paper, bool ulbon) const;

 private:
  Ui::ResultForm& ui_;
  DateBoxes* dates_;
};

}  // namespace rbt
