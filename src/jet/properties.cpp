// SPDX-License-Identifier: MIT
#include "jet/properties.h"

#include <algorithm>

namespace rbt::jet {

namespace {

constexpr std::uint16_t kNameBlock = 0x80;
constexpr std::size_t kBlockHead = 6;  // length and sort

/// Reads the blocks of a property field: first one with all names, then one a table or column with its
/// values, which name their property by its place among the names.
class PropertyReader {
 public:
  PropertyReader(const JetFile& file, const PageView& bytes) : file_(file), bytes_(bytes) {}

  std::vector<PropertyMap> Read() {
    const std::string mark(bytes_.Part(0, 4).Bytes().begin(), bytes_.Part(0, 4).Bytes().end());
    if (mark != std::string("MR2\0", 4) && mark != std::string("KKD\0", 4)) {
      bytes_.Damaged("the properties of an object have no mark");
    }
    for (std::size_t at = 4; at < bytes_.size();) {
      const std::size_t length = bytes_.U32(at);
      if (length < kBlockHead) bytes_.Damaged("a block of properties has no length");
      const PageView block = bytes_.Part(at, length);
      if (block.U16(4) == kNameBlock) {
        ReadNames(block);
      } else {
        ReadValues(block);
      }
      at += length;
    }
    return std::move(maps_);
  }

 private:
  std::string NameAt(const PageView& block, std::size_t at) const {
    return file_.TextOfBytes(block.Part(at + 2, block.U16(at)).Bytes()).text;
  }

  void ReadNames(const PageView& block) {
    for (std::size_t at = kBlockHead; at < block.size(); at += 2 + block.U16(at)) {
      names_.push_back(NameAt(block, at));
    }
  }

  void ReadValues(const PageView& block) {
    PropertyMap map;
    const std::size_t owner_length = block.U32(kBlockHead);
    if (owner_length > 6) map.owner = NameAt(block, kBlockHead + 4);
    for (std::size_t at = kBlockHead + owner_length; at < block.size();) {
      const std::size_t length = block.U16(at);
      if (length < 8) block.Damaged("a property has no length");
      map.properties.push_back(ReadProperty(block.Part(at, length)));
      at += length;
    }
    maps_.push_back(std::move(map));
  }

  Property ReadProperty(const PageView& record) const {
    const std::size_t name = record.U16(4);
    if (name >= names_.size()) record.Damaged("a property without a name");
    const auto value = record.Part(8, record.U16(6)).Bytes();
    return {names_[name], static_cast<ColumnType>(record.U8(3)), Bytes(value.begin(), value.end())};
  }

  const JetFile& file_;
  PageView bytes_;
  std::vector<std::string> names_;
  std::vector<PropertyMap> maps_;
};

}  // namespace

const Property* PropertyMap::Find(std::string_view name) const {
  const auto found = std::find_if(properties.begin(), properties.end(),
                                  [&](const Property& property) { return property.name == name; });
  return found == properties.end() ? nullptr : &*found;
}

std::vector<PropertyMap> ReadProperties(const JetFile& file, const Bytes& bytes) {
  if (bytes.empty()) return {};
  return PropertyReader(file, PageView(bytes, &file.Name(), kCatalogPage)).Read();
}

std::string PropertyText(const JetFile& file, const PropertyMap& map, std::string_view name) {
  const Property* property = map.Find(name);
  if (property == nullptr || (property->type != ColumnType::text && property->type != ColumnType::memo))
    return "";
  return file.TextOfBytes(property->value).text;
}

bool PropertyIsSet(const PropertyMap& map, std::string_view name) {
  const Property* property = map.Find(name);
  return property != nullptr && property->type == ColumnType::boolean && !property->value.empty() &&
         property->value.front() != 0;
}

}  // namespace rbt::jet
