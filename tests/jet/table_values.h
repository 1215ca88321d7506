// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "jet/table.h"

namespace rbt::test {

inline Value Words(std::string text) { return Value{std::move(text)}; }
inline Value Whole(std::int64_t number) { return Value{number}; }

/// The rows of a table as they are read.
inline std::vector<std::vector<Value>> RowsOf(jet::JetFile& file, const std::string& name) {
  std::vector<std::vector<Value>> rows;
  jet::ScanTable(file, jet::FindTable(file, name),
                 [&](jet::RowPointer, std::vector<Value>& fields) { rows.push_back(fields); });
  return rows;
}

}  // namespace rbt::test
