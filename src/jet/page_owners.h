// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

namespace rbt::jet {

/// Who owns which page of a file; a page with two owners is told.
class PageOwners {
 public:
  PageOwners(std::uint32_t page_count, std::function<void(std::string)> tell_damage);

  void Own(std::uint32_t page, const std::string& owner);
  /// Null when nobody owns the page.
  const std::string* Find(std::uint32_t page) const;

 private:
  std::vector<std::uint32_t> owners_;  ///< by page: place in `names_`, 0 nobody
  std::vector<std::string> names_;
  std::unordered_map<std::string, std::uint32_t> numbers_;
  std::function<void(std::string)> tell_damage_;
};

}  // namespace rbt::jet
