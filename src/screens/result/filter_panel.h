// SPDX-License-Identifier: MIT
#pragma once

#include "session/result/result_screen.h"

namespace Ui {
class ResultForm;
}

namespace rbt {

/// What the filter panel tells of the selection: kinds, forms, and the modes of hoops and plates.
class FilterPanel {
 public:
  FilterPanel(Ui::ResultForm& ui, const ResultScreen& screen) : ui_(ui), screen_(screen) {}

  void ShowKinds();
  /// All kinds, in the words of a range that begins anew.
  void ShowAllKinds();
  void ShowForms();
  void ShowModes();
  /// The buttons of hoops and plates, where the last tally's rows hold such shapes. A mode that leaves none
  /// of them must be taken back, so this belongs to the first run alone.
  void OfferModes();

 private:
  Ui::ResultForm& ui_;
  const ResultScreen& screen_;
};

}  // namespace rbt
