// SPDX-License-Identifier: MIT
#include "platform/system/work.h"

#include "platform/fault.h"
#include "platform/system/services.h"

namespace rbt {

bool WorkOn(const WorkNews& /*news*/) { return false; }

bool StopAsked(const WorkNews& news) {
  const bool may_stop = news.may_stop && Services.WorkThatMustFinish == 0;
  return Services.OnWork({.may_stop = may_stop, .page = news.page}) && may_stop;
}

void NotePage(std::int64_t page) {
  if (StopAsked({.page = page})) throw Fault(FaultKind::stopped, "the work was stopped by its user");
}

int WorkPace() { return Services.WorkPace; }

MustFinish::MustFinish() {
  ++Services.WorkThatMustFinish;
  StopAsked();
}

MustFinish::~MustFinish() { --Services.WorkThatMustFinish; }

}  // namespace rbt
