// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "session/names/names_view.h"
#include "store/database.h"
#include "tally/names/name_list.h"

namespace rbt {

/// What the screen of registered names leans on. An empty one is not ready yet: its button says so.
struct NamesParts {
  std::function<void()> open_tally;   ///< JS over the marked names, until it is closed
  std::function<void()> open_shapes;  ///< KEIJOJS, likewise
  /// The dialog of CSV files, on all names by their numbers.
  std::function<void(std::vector<RegisteredName> names)> save_csv;
};

/// The screen `touroku` without its window: the registered names of the site with their weights, which the
/// user marks and sends to a tally. Marks are kept in the site's companion file. A name without a number
/// cannot be marked. Every intent may throw what the store, a tally or a setting throws; the view is whole
/// all the same.
///
/// Another site may be chosen while the screen is open, and a tally screen binds it. The work begins anew
/// there then, and what was meant for a line or a range of the former list is not done.
class NamesPresenter {
 public:
  /// Loads: binds the chosen site, prepares its schedule, weighs the names and takes all marks away. Throws
  /// what keeps it from that.
  explicit NamesPresenter(NamesParts parts);

  /// What the screen shows now. The focus is asked for once: the next view leaves it where it is.
  NamesView View();
  /// Called in the midst of an intent that takes its time, with a view to show meanwhile.
  void OnShow(std::function<void()> show) { show_ = std::move(show); }

  /// Enter or a click on the mark of a line.
  void Flip(std::size_t row);
  /// By number or by name, in turn; marks stay.
  void Sort();

  // The range of numbers.
  void TypeRangeStart(std::string text) { range_start_ = std::move(text); }
  void TypeRangeEnd(std::string text) { range_end_ = std::move(text); }
  /// Enter: on to the end; past the range where it is 0 or empty.
  void EnterRangeStart();
  /// Enter: marks the names of the range. An end below the start keeps the focus.
  void EnterRangeEnd();
  /// Up in the end: back to the start.
  void BackToRangeStart();

  // The comparison item.
  void TypeItem(std::string text) { item_ = std::move(text); }
  /// Enter: 1 to 3 is kept in the settings; another text keeps the focus.
  void EnterItem();

  /// The focus has come to a control, which may have words of its own.
  void Reach(std::string_view control);
  /// What `MSGB` says.
  std::string_view Message() const { return message_; }

  // Buttons.
  void Tally() { SendToTally(TallyOfNames::as_marked); }
  void TallyShapes() { SendToTally(TallyOfNames::by_shape); }
  void SaveCsv();
  /// Once: what the work leaves behind goes, the marks stay, the site's database is closed.
  void Leave();

 private:
  enum class TallyOfNames { as_marked, by_shape };
  void SendToTally(TallyOfNames tally);
  void OpenTally(const std::function<void()>& open);
  void BeginWork();
  void FollowChosenSite();
  bool BeginsAnew();
  Database& Names();
  void ResumeWork();
  void ReadList();

  NamesParts parts_;
  std::function<void()> show_;
  HeadView head_;
  NameOrder order_ = NameOrder::by_number;
  std::vector<RegisteredName> names_;  ///< in the order of the list
  std::vector<std::string> selected_;
  std::string range_start_;
  std::string range_end_;
  std::string item_;
  std::string_view message_;
  std::string_view focus_;
  bool to_first_row_ = true;
  bool busy_ = false;
  bool left_ = false;
};

}  // namespace rbt
