// SPDX-License-Identifier: MIT
#include "session/floorpart/floorpart_order.h"

#include "session/panels/at_end.h"

namespace rbt {

void CarryOut(const FloorPartOrder& order, const Preview& preview,
              const std::function<void(bool prints)>& tell_printing) {
  const ReportArguments arguments{.SubProject = "",
                                  .Year = order.date.year,
                                  .Month = order.date.month,
                                  .Day = order.date.day,
                                  .FloorOrPart = order.floor_or_part};
  const auto print = [&] {
    const AtEnd printed([&] {
      if (order.tells_printing) tell_printing(false);
    });
    if (order.tells_printing) tell_printing(true);
    PrintForm(order.form, arguments, order.result);
  };
  PrintOrShow(false, print, preview);
}

}  // namespace rbt
