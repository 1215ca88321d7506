// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rbt::planning {

/// Which floors share bars.
class Scopes {
 public:
  /// "site", "floor", or ranges of floor codes: "-1..2/3..5"; a single code is its own range. Nothing for any
  /// other text, a range that runs backwards, or ranges that overlap.
  static std::optional<Scopes> Of(std::string_view text);

  /// A scope by its place in the order in which plans tell them, and its name.
  struct Scope {
    int place = 0;
    std::string name;
  };
  /// The scope of a floor code; nothing when it belongs to none.
  std::optional<Scope> ScopeOf(int floor) const;

 private:
  struct Range {
    int first = 0;
    int last = 0;
    std::string name;
  };
  enum class Kind { site, floors, ranges };

  Kind kind_ = Kind::site;
  std::vector<Range> ranges_;
};

}  // namespace rbt::planning
