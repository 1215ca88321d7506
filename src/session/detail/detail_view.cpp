// SPDX-License-Identifier: MIT
#include "session/detail/detail_view.h"

#include <utility>

#include "platform/numbers/number_mask.h"
#include "session/detail/detail_presenter.h"
#include "shell/config/settings.h"

namespace rbt {

namespace {

std::string OneOrZero(bool is_one) { return is_one ? "1" : "0"; }

}  // namespace

DetailView DetailPresenter::View() {
  const TallyTable& table = result_.Grid();
  const DetailArguments kept = DetailArgumentsOf(Settings);
  DetailView view;
  view.head = head_;
  view.material = material_;
  view.total_weight = FormatNumber(table.TotalStockWeight, "#,##0") + " ㎏";
  view.layout = DetailLayoutOf(Settings);
  view.captions = DetailCaptions(view.layout);
  view.rows = DetailRows(table, view.layout);
  view.totals = {view.rows.size() - 2, view.rows.size() - 1};
  view.colours = AlternateColours();
  view.mode = mode_;
  view.busy = busy_;
  for (const DetailButtonRow& row : DetailButtons()) {
    view.enabled[static_cast<std::size_t>(row.button)] = IsWithinReach(row.button);
  }
  view.percent = percent_;
  view.memos = memos_;
  view.memo_position = OneOrZero(kept.MemoPosition == MemoPlace::above);
  view.installed = OneOrZero(installed_);
  view.date_place = kept.DatePosition;
  view.notice = notice_;
  view.print_panel = print_panel_.View();
  view.print_panel.has_memo = false;  // the memos have their own fields
  view.fields_enabled = !busy_ && (mode_ == DetailMode::buttons || mode_ == DetailMode::printing);
  view.focus = std::exchange(focus_, {});
  view.left = left_;
  return view;
}

}  // namespace rbt
