// SPDX-License-Identifier: MIT
#pragma once

#include "platform/numbers/currency.h"

namespace rbt::test {

inline Currency Kg(double kilograms) { return Currency::FromDouble(kilograms); }

}  // namespace rbt::test
