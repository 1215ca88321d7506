// SPDX-License-Identifier: MIT
#include "jet/page_owners.h"

#include <utility>

#include <fmt/format.h>

namespace rbt::jet {

PageOwners::PageOwners(std::uint32_t page_count, std::function<void(std::string)> tell_damage)
    : owners_(page_count), names_(1), tell_damage_(std::move(tell_damage)) {}

void PageOwners::Own(std::uint32_t page, const std::string& owner) {
  if (page >= owners_.size()) {
    tell_damage_(fmt::format("page {} of {} is not in the file", page, owner));
    return;
  }
  const auto [at, fresh] = numbers_.emplace(owner, static_cast<std::uint32_t>(names_.size()));
  if (fresh) names_.push_back(owner);
  if (owners_[page] == 0) {
    owners_[page] = at->second;
  } else if (owners_[page] != at->second) {
    tell_damage_(fmt::format("page {} belongs to {} and to {}", page, names_[owners_[page]], owner));
  }
}

const std::string* PageOwners::Find(std::uint32_t page) const {
  return owners_[page] == 0 ? nullptr : &names_[owners_[page]];
}

}  // namespace rbt::jet
