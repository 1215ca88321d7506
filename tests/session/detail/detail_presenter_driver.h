// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "session/detail/detail_presenter.h"
#include "session/result/result_site.h"
#include "shell/context/site_context.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/selection.h"

namespace rbt::test {

/// A detail presenter over a small site: ten bars of 6.0 m each of D13 (5.97 kg: 60 kg), D19 (13.5 kg: 135
/// kg) and D25 (23.9 kg: 239 kg), with 3 welds each. What it leans on is kept as a list of calls.
class Detailed {
 public:
  explicit Detailed(TallyKind kind = TallyKind::bulk) {
    ResultSite::Load();
    SiteContext.WorkDatabase.reset();
    OpenWorkDatabase();
    SetSelection(kind);
    counted = CountTally(kind);
    parts.open_settings = [this] { Call("settings"); };
    parts.print = [this](const DetailOrder& order) {
      orders.push_back(order);
      Call("print");
      return printer;
    };
  }

  /// Anew where it was open before: a table of states takes one site.
  DetailPresenter& Open() {
    told_before_ = site.Messages().size();
    presenter = std::make_unique<DetailPresenter>(counted, parts);
    return *presenter;
  }
  DetailView View() const { return presenter->View(); }
  /// The bars of D19 by 6.0 m as the grid shows them: line 3 or, with weights, 6, and column 7.
  std::string D19() const {
    const DetailView view = View();
    return view.rows[view.layout.with_weights ? 6 : 3][7];
  }
  /// The messages since it was opened.
  std::vector<ShownMessage> Messages() const {
    return {site.Messages().begin() + static_cast<std::ptrdiff_t>(told_before_), site.Messages().end()};
  }

  ResultSite site;
  TallyResult counted;
  DetailParts parts;
  std::unique_ptr<DetailPresenter> presenter;
  std::function<void()> settings;  ///< what the form does
  std::vector<std::string> calls;
  std::vector<DetailOrder> orders;
  std::string printer;  ///< that takes the sheets

 private:
  static void SetSelection(TallyKind kind) {
    Selection.TallyKind = kind;
    Selection.ShapeStart = 1;
    Selection.ShapeEnd = 200;
    Selection.StartPage = Selection.EndPage = 1;
    Selection.StartLine = 1;
    Selection.EndLine = 4;
  }

  void Call(const std::string& name) {
    calls.push_back(name);
    if (name == "settings" && settings) settings();
  }

  std::size_t told_before_ = 0;
};

/// The buttons of the view within reach, by their controls.
inline std::string ButtonsWithinReach(const DetailView& view) {
  std::string text;
  for (const DetailButtonRow& row : DetailButtons()) {
    if (view.IsEnabled(row.button)) text.append(text.empty() ? "" : " ").append(row.control);
  }
  return text;
}

}  // namespace rbt::test
