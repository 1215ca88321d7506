// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "jet/jet_file.h"
#include "jet/table_definition.h"
#include "platform/numbers/value.h"

namespace rbt::jet {

struct Property {
  std::string name;
  ColumnType type = ColumnType::text;
  Bytes value;  ///< as it stands, without a length
};

/// The properties of a table (no owner) or of one of its columns.
struct PropertyMap {
  std::string owner;
  std::vector<Property> properties;

  const Property* Find(std::string_view name) const;
};

/// The properties of an object as its catalog entry carries them; none for no bytes. Bytes that are no
/// properties throw `Fault` of kind `file`.
std::vector<PropertyMap> ReadProperties(const JetFile& file, const Bytes& bytes);

/// The text of a property; empty when it has none or is no text.
std::string PropertyText(const JetFile& file, const PropertyMap& map, std::string_view name);
/// True when the property is there and set.
bool PropertyIsSet(const PropertyMap& map, std::string_view name);

}  // namespace rbt::jet
