// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "platform/numbers/value.h"
#include "store/database.h"
#include "support/root_folder.h"

namespace rbt::test {

using Fields = std::vector<std::pair<std::string, Value>>;

inline Value Number(std::int64_t number) { return Value{number}; }
inline const Value kNull{};

/// A root folder with the site 001 alone, bound and open, the selection and the settings at their defaults: a
/// small schedule that a test fills row by row, with what a tally reads and nothing else.
class ScheduleSite {
 public:
  /// `absent`: columns that the schedule of an older file lacks.
  explicit ScheduleSite(const std::vector<std::string>& absent = {});
  ScheduleSite(const ScheduleSite&) = delete;
  ScheduleSite& operator=(const ScheduleSite&) = delete;
  ~ScheduleSite();

  /// Adds a row: D19, kind 1, 4 pieces of 3.0 m out of 2 bars of 6.0 m, straight, part 1, page 1, its own
  /// line; other values as given.
  void AddRow(const Fields& fields = {});
  /// Puts a text into a column of every row, whatever the column's type, as another program could.
  void PutText(const std::string& column, const std::string& text);
  /// Adds a row to スパイラル of the companion file; the table is made with the first.
  void AddSpiral(const Value& material, const Value& diameter, double weight);

  /// Adds a row to 登録名 of the companion file; the table is made with the first.
  void AddName(const Value& number, const std::string& name, const Value& mark);

  Database& Work();
  const RootFolder& Folder() const { return folder_; }

 private:
  RootFolder folder_;
  std::int64_t rows_ = 0;
  std::vector<std::string> absent_;
};

}  // namespace rbt::test
