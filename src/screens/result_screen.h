// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "screens/date_boxes.h"

class QWidget;

namespace rbt {

/// What tells one result screen from another.
struct ResultScreen {
  std::string_view name;  ///< object name of the form
  std::string_view title;
  void (*tally)();  ///< fills `TallyGrid` from the selection
};

inline constexpr std::string_view kBulkTitle = "重量集計";

/// A sheet that a paper button asks for.
struct PrintOrder {
  std::string_view button;  ///< btnA4T, btnA4Y or btnB5Y
  bool ulbon = false;       ///< the Ulbon report; else the comparison report of the setting 対比表項目
  DateTexts date;
  std::string sub_project;
  double percent = 0.0;
};

/// What a result form leans on beside the tally. An empty one is not ready yet: its button says so.
struct ResultParts {
  std::function<void()> choose_kinds;   ///< the dialog of material kinds, on the selection
  std::function<void()> choose_forms;   ///< the dialog of material forms
  std::function<void()> open_settings;  ///< SETJS
  std::function<void(const PrintOrder&)> print;
  std::function<void()> open_detail;          ///< ZAIMEI in place of the form
  std::function<void()> toggle_accumulation;  ///< of several sites
};

/// True for the whole picture: only that may be printed and added up across sites.
bool ShowsWholePicture(bool ulbon_view);

/// `MaterialCalcChoice` of a mask of kinds: 0 without high strength, 1 of it alone, 2 with others.
int CalcChoiceOf(int material_kind_mask);

}  // namespace rbt
