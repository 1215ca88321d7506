// SPDX-License-Identifier: MIT
#pragma once

#include "platform/system/services.h"

namespace rbt::test {

/// Brings the services back, all of them, as they were before the life of the object.
class KeptServices {
 public:
  KeptServices() : before_(Services) {}
  KeptServices(const KeptServices&) = delete;
  KeptServices& operator=(const KeptServices&) = delete;
  ~KeptServices() { Services = before_; }

 private:
  ServicesData before_;
};

/// A clock that stands still.
inline std::function<DateTime()> StandingClock(const DateTime& at) {
  return [at] { return at; };
}

}  // namespace rbt::test
