// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace rbt {

inline constexpr std::string_view kCsvRecordEnd = "\r\n";

/// A cell of a CSV record (RFC 4180): in double quotes, inner ones doubled, where it holds a comma, a quote
/// or a line break, else as it is.
std::string CsvCell(std::string_view text);
/// A text as a cell in double quotes, whatever it holds, inner ones doubled.
std::string QuotedCsvCell(std::string_view text);

/// One record, cell after cell.
class CsvRecord {
 public:
  CsvRecord& Add(std::string_view text) { return AddWritten(CsvCell(text)); }
  /// A cell that stands as it is to be read.
  CsvRecord& AddWritten(std::string_view cell);

  /// The record with its end.
  std::string Text() const { return text_ + std::string(kCsvRecordEnd); }

 private:
  std::string text_;
  bool empty_ = true;
};

}  // namespace rbt
