// SPDX-License-Identifier: MIT
#include "planning/input/scopes.h"

#include <algorithm>

#include "platform/numbers/decimal_text.h"

namespace rbt::planning {
namespace {

constexpr std::string_view kSite = "site";
constexpr std::string_view kFloor = "floor";
constexpr std::string_view kTo = "..";

}  // namespace

std::optional<Scopes> Scopes::Of(std::string_view text) {
  Scopes scopes;
  if (text == kSite) return scopes;
  if (text == kFloor) {
    scopes.kind_ = Kind::floors;
    return scopes;
  }
  scopes.kind_ = Kind::ranges;
  for (bool more = true; more;) {
    const std::size_t slash = text.find('/');
    more = slash != std::string_view::npos;
    const std::string_view name = text.substr(0, slash);
    const std::size_t to = name.find(kTo);
    const auto first = WholeNumber(name.substr(0, to));
    const auto last = to == std::string_view::npos ? first : WholeNumber(name.substr(to + kTo.size()));
    if (!first || !last || *first > *last) return std::nullopt;
    const auto overlaps = [&](const Range& range) { return range.first <= *last && *first <= range.last; };
    if (std::ranges::any_of(scopes.ranges_, overlaps)) return std::nullopt;
    scopes.ranges_.push_back({*first, *last, std::string(name)});
    if (more) text.remove_prefix(slash + 1);
  }
  return scopes;
}

std::optional<Scopes::Scope> Scopes::ScopeOf(int floor) const {
  if (kind_ == Kind::site) return Scope{0, std::string(kSite)};
  if (kind_ == Kind::floors) return Scope{floor, std::to_string(floor)};
  for (std::size_t place = 0; place < ranges_.size(); ++place) {
    const Range& range = ranges_[place];
    if (floor >= range.first && floor <= range.last) return Scope{static_cast<int>(place), range.name};
  }
  return std::nullopt;
}

}  // namespace rbt::planning
