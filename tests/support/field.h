// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "store/schema/schema.h"

namespace rbt::test {

inline FieldDef Field(std::string name, FieldType type, int size = 0, int scale = 0) {
  FieldDef field;
  field.name = std::move(name);
  field.type = type;
  field.size = size;
  field.scale = scale;
  return field;
}

}  // namespace rbt::test
