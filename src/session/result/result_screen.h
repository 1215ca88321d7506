// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "data/form_mask.h"
#include "session/result/print_order.h"
#include "tally/kinds/tally_kinds.h"

namespace rbt {

/// A text that belongs to a control.
struct ControlText {
  std::string_view control;
  std::string_view text;
};

/// What tells one result screen from another. Controls are named as in the layout that all share.
struct ResultScreen {
  std::string_view name;  ///< object name of the form
  std::string_view title;
  TallyKind kind = TallyKind::bulk;
  std::span<const std::string_view> absent;          ///< controls that this screen does not have
  std::span<const ControlText> captions = {};        ///< where they differ from the layout's
  std::span<const ControlText> names = {};           ///< object names, likewise
  std::string_view (*form_caption)(FormMask forms);  ///< for Label9
  void (*before_first_run)() = nullptr;              ///< of a range, the range standing in the selection
};

extern const ResultScreen kBulkScreen;       ///< JS
extern const ResultScreen kPageScreen;       ///< PGJS
extern const ResultScreen kShapeScreen;      ///< KEIJOJS
extern const ResultScreen kPageShapeScreen;  ///< PKEIJOJS

/// The range that the screen asks for before it tallies.
TallyRange RangeOf(const ResultScreen& screen);

/// False for a control that the shared layout has and this screen does not.
bool HasControl(const ResultScreen& screen, std::string_view control);

/// What a result form leans on beside the tally. An empty one is not ready yet: its button says so.
struct ResultParts {
  std::function<void()> choose_kinds;   ///< the dialog of material kinds, on the selection
  std::function<void()> choose_forms;   ///< the dialog of material forms
  std::function<void()> open_settings;  ///< SETJS
  std::function<void(const PrintOrder&)> print;
  std::function<void()> open_detail;          ///< ZAIMEI in place of the form
  std::function<void()> toggle_accumulation;  ///< of several sites
};

/// The selection as a result screen begins: everything included, `MaterialCalcChoice` kept while sites are
/// being added up.
void SetSelectionDefaults();

/// True for the whole picture: only that may be printed and added up across sites.
bool ShowsWholePicture(bool ulbon_view);

}  // namespace rbt
