// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "store/dialect/expression_writer.h"
#include "store/schema/schema.h"

namespace rbt::dialect {

/// A value as a field takes it. Whole types round halves to even, CURRENCY to four places; outside the type's
/// range `overflow`; a text longer than its field is refused; a text goes into a number field when it is a
/// number, else `type mismatch`; null passes. What fits by its declared type or as it is written goes in as
/// it is, everything else through a checking function when the statement runs. Refuses at once what no value
/// of that class can become.
WrittenValue AssignedValue(const WrittenValue& value, const FieldDef& target, std::string_view statement,
                           Place place);

}  // namespace rbt::dialect
