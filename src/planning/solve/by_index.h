// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace rbt::planning {

/// A vector whose elements are counted by int too: items, bars and capacities are.
template <typename T>
class ByIndex : public std::vector<T> {
 public:
  using std::vector<T>::vector;
  using std::vector<T>::operator[];
  explicit ByIndex(std::vector<T> values) : std::vector<T>(std::move(values)) {}

  decltype(auto) operator[](int index) { return (*this)[static_cast<std::size_t>(index)]; }
  decltype(auto) operator[](int index) const { return (*this)[static_cast<std::size_t>(index)]; }
};

/// A look at such values.
template <typename T>
class ViewByIndex : public std::span<T> {
 public:
  using std::span<T>::span;
  using std::span<T>::operator[];
  explicit(false) ViewByIndex(std::span<T> values)  // NOLINT(google-explicit-constructor): it is the same
      : std::span<T>(values) {}

  decltype(auto) operator[](int index) const { return (*this)[static_cast<std::size_t>(index)]; }
};

}  // namespace rbt::planning
