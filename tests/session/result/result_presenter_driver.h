// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "session/result/result_presenter.h"
#include "session/result/result_site.h"
#include "tally/selection.h"

namespace rbt::test {

/// A result presenter over a small site; beside the bars of `ResultSite` page 2 has a D32 and page 4 a D10 in
/// line 7. What it leans on is kept as a list of calls, and its views in the midst of an intent are kept.
class Presented {
 public:
  explicit Presented(const ResultScreen& screen, std::int32_t start_mode = kNoStartMode) : screen_(screen) {
    site.AddRows({At(TenBars(32, 1, 3), 2, 1), At(TenBars(10, 5, 3), 4, 7)});
    ResultSite::Load(start_mode);
    parts.choose_kinds = [this] { Call("kinds", kinds); };
    parts.choose_forms = [this] { Call("forms", forms); };
    parts.open_settings = [this] { Call("settings", settings); };
    parts.open_detail = [this](TallyResult result) {
      Selection.MaterialKindMask = kAllKinds;  // as the purchase list selects
      Call("detail", {});
      return detail ? detail(std::move(result)) : result;
    };
    parts.choose_site = [this] {
      Call("site", {});
      return SiteChoice();
    };
    parts.print = [this](const PrintOrder& order) {
      orders.push_back(order);
      Call("print", {});
      return printer;
    };
  }

  /// Anew where it was open before: a table of states takes one site.
  ResultPresenter& Open() {
    told_before_ = site.Messages().size();
    presenter = std::make_unique<ResultPresenter>(screen_, parts);
    presenter->OnShow([this] { meanwhile.push_back(presenter->View()); });
    return *presenter;
  }
  /// The default range where there is one.
  ResultPresenter& OpenWithResult() {
    Open().TakeRange();
    meanwhile.clear();
    return *presenter;
  }
  ResultScreenView View() const { return presenter->View(); }
  /// Takes a range by its boxes, as the user fills them in.
  void Enter(const std::vector<int>& numbers) const {
    for (std::size_t box = 0; box < numbers.size(); ++box) {
      presenter->TypeRange(box, std::to_string(numbers[box]));
      presenter->EnterRangeBox(box);
    }
  }
  /// The row whose first cell ends in `label`, as one text; empty when there is none.
  std::string Row(const std::string& label) const {
    for (const std::vector<std::string>& row : View().rows) {
      if (!row.front().ends_with(label)) continue;
      std::string text;
      for (std::size_t column = 1; column < row.size(); ++column) text += row[column] + "|";
      return text;
    }
    return "";
  }
  /// The last message since it was opened.
  std::string Message() const {
    return site.Messages().size() == told_before_ ? "" : site.Messages().back().text;
  }

  ResultSite site;
  ResultParts parts;
  std::unique_ptr<ResultPresenter> presenter;
  std::function<void()> kinds;  ///< what the dialogs do
  std::function<void()> forms;
  std::function<void()> settings;
  std::function<TallyResult(TallyResult result)> detail;  ///< what comes of a result in the purchase list
  std::vector<std::string> calls;
  std::vector<PrintOrder> orders;
  std::string printer;  ///< that takes the sheets; none: the preview
  std::vector<ResultScreenView> meanwhile;

 private:
  void Call(const char* name, const std::function<void()>& act) {
    calls.emplace_back(name);
    if (act) act();
  }

  const ResultScreen& screen_;
  std::size_t told_before_ = 0;
};

/// The main buttons that are in sight, one that is out of reach in brackets.
inline std::string MainButtons(const ResultScreenView& view) {
  const std::pair<const char*, const ButtonView*> buttons[] = {{"print", &view.print},
                                                               {"ulbon-view", &view.show_ulbon_view},
                                                               {"ulbon", &view.ulbon},
                                                               {"deformed", &view.print_deformed},
                                                               {"restore", &view.restore_values},
                                                               {"detail", &view.show_detail},
                                                               {"range", &view.change_range},
                                                               {"add", &view.toggle_accumulation},
                                                               {"leave", &view.leave}};
  std::string text;
  for (const auto& [name, button] : buttons) {
    if (!button->shown) continue;
    if (!text.empty()) text += ' ';
    text += button->enabled ? std::string(name) : "(" + std::string(name) + ")";
  }
  return text;
}

/// The filter buttons that are in sight.
inline std::string FilterButtons(const ResultScreenView& view) {
  const FilterView& filters = view.filters;
  const std::pair<const char*, const ButtonView*> buttons[] = {{"kinds", &filters.choose_kinds},
                                                               {"forms", &filters.choose_forms},
                                                               {"worker", &filters.recalculate},
                                                               {"hoops", &filters.cycle_hoops},
                                                               {"plates", &filters.cycle_plates}};
  std::string text;
  for (const auto& [name, button] : buttons) {
    if (button->shown) text += (text.empty() ? "" : " ") + std::string(name);
  }
  return text;
}

}  // namespace rbt::test
