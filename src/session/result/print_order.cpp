// SPDX-License-Identifier: MIT
#include "session/result/print_order.h"

namespace rbt {

namespace {

void Print(const PrintOrder& order) {
  const ReportArguments arguments{order.sub_project, order.date.year, order.date.month,
                                  order.date.day,    order.body,      order.result.ulbon_percent};
  PrintForm(order.ulbon ? UlbonForm() : ChosenComparison(order.paper), arguments, order.result);
}

}  // namespace

std::string CarryOut(const PrintOrder& order, const Preview& preview) {
  return PrintOrShow(
      order.preview, [&] { Print(order); }, preview);
}

}  // namespace rbt
