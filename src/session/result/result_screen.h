// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "data/form_mask.h"
#include "session/accumulation/site_choice.h"
#include "session/panels/print_panel_presenter.h"
#include "session/panels/views.h"
#include "session/result/print_order.h"
#include "tally/kinds/tally_kinds.h"

namespace rbt {

/// What one result screen offers and another does not.
struct ResultOffers {
  bool ulbon_view = false;      ///< the Ulbon rows alone
  bool uplift = false;          ///< of the Ulbon rows by a percentage, and the way back
  bool ulbon_print = false;     ///< the Ulbon report of today by one button
  bool deformed_print = false;  ///< the report without Ulbon
  bool accumulation = false;    ///< of several sites
  bool plan = false;            ///< the cutting plan of the whole site
  bool range_change = false;
  bool form_choice = false;
  bool stock_warning = false;  ///< tells of a row whose stock length has no column
};

/// What tells one result screen from another.
struct ResultScreen {
  std::string_view name;  ///< object name of the form
  std::string_view title;
  TallyKind kind = TallyKind::bulk;
  ResultOffers offers;
  std::string_view kinds_at_start;                   ///< how the kinds are told until they are chosen
  std::string_view (*form_caption)(FormMask forms);  ///< how the forms are told
  void (*before_first_run)() = nullptr;              ///< of a range, the range standing in the selection
  std::span<const ControlText> captions = {};        ///< where they differ from the layout's
  std::span<const ControlText> names = {};           ///< object names, likewise

  /// The tally runs over a range that is asked for first.
  bool IsScoped() const { return Range() != TallyRange::whole_site && Range() != TallyRange::names; }
  TallyRange Range() const { return RowOf(kind).range; }
};

/// Those that the menu opens, each under a name of its own.
std::span<const ResultScreen* const> ResultScreens();

extern const ResultScreen kBulkScreen;       ///< JS
extern const ResultScreen kPageScreen;       ///< PGJS
extern const ResultScreen kShapeScreen;      ///< KEIJOJS
extern const ResultScreen kPageShapeScreen;  ///< PKEIJOJS
extern const ResultScreen kNameScreen;       ///< JS over the marked registered names; no sites are added up

/// What a result screen leans on beside the tally. An empty one is not ready yet: its button says so.
struct ResultParts {
  std::function<void()> choose_kinds;   ///< the dialog of material kinds, on the selection
  std::function<void()> choose_forms;   ///< the dialog of material forms
  std::function<void()> open_settings;  ///< SETJS
  /// Gives the printer that took the sheet, empty for none.
  std::function<std::string(const PrintOrder&)> print;
  PrintPanelPresenter::AskPrinter choose_printer = {};  ///< in place of one that is not there
  /// ZAIMEI in place of the form: gives the result as it is left there.
  std::function<TallyResult(TallyResult result)> open_detail;
  std::function<SiteChoice()> choose_site;  ///< BACKUP2 in place of the form
  std::function<void()> open_plan;          ///< in place of the form
};

/// The selection as a result screen begins: everything included, `MaterialCalcChoice` kept while sites are
/// being added up.
void SetSelectionDefaults();

/// True while no filter narrows the picture of a selection: only the whole one may be printed and added up
/// across sites.
bool ShowsWholePicture(const SelectionData& selection);

}  // namespace rbt
