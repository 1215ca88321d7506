// SPDX-License-Identifier: MIT
#include "platform/system/services.h"

namespace rbt {

ServicesData Services;

}  // namespace rbt
