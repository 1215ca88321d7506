// SPDX-License-Identifier: MIT
#include "session/detail/detail_order.h"

namespace rbt {

std::string CarryOut(const DetailOrder& order, const Preview& preview) {
  const ReportArguments arguments{.SubProject = "",
                                  .Year = order.date.year,
                                  .Month = order.date.month,
                                  .Day = order.date.day,
                                  .Detail = order.detail};
  const auto print = [&] { PrintForm(ChosenDetail(order.paper), arguments, order.result); };
  return PrintOrShow(order.preview, print, preview);
}

}  // namespace rbt
