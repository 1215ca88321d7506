// SPDX-License-Identifier: MIT
#include "tally/names/name_statements.h"

#include <algorithm>
#include <string_view>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "tally/clauses.h"

namespace rbt {

namespace {

/// All kinds are asked for by their numbers too: a kind that nobody knows is in no tally of names.
constexpr std::string_view kEveryKind =
    " AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=4 or 予備2=5 or 予備2=2)";

/// What the statement so far ends in has a blank of its own.
std::string_view FormsOf(FormMask forms) {
  std::string_view clause = FormClause(forms);
  if (clause.starts_with(' ')) clause.remove_prefix(1);
  return clause;
}

std::string_view KindsOf(KindMask kinds) { return kinds == kAllKinds ? kEveryKind : KindClause(kinds); }

}  // namespace

std::vector<std::span<const std::int32_t>> BlocksOf(std::span<const std::int32_t> numbers) {
  std::vector<std::span<const std::int32_t>> blocks;
  blocks.reserve(numbers.size() / kNamesInBlock + 1);
  for (; !numbers.empty(); numbers = numbers.subspan(blocks.back().size())) {
    blocks.push_back(numbers.first(std::min(numbers.size(), kNamesInBlock)));
  }
  return blocks;
}

std::string NameStatementSoFar(const SelectionData& selection, std::span<const std::int32_t> block) {
  std::string statement =
      fmt::format("SELECT * FROM 加工テーブル WHERE ((登録名={}))", fmt::join(block, ") OR (登録名="));
  statement += " AND (太さ is not NULL AND 伸定尺 is not NULL AND 本数 is not NULL ";
  statement += FormsOf(selection.MaterialFormMask);
  statement += KindsOf(selection.MaterialKindMask);
  // Closes what the forms and kinds stand in: the Ulbon rows of slit bars alone stay those of the names.
  statement += ")";
  return statement;
}

std::string NameStatement(const SelectionData& selection, std::span<const std::int32_t> block) {
  std::string statement = NameStatementSoFar(selection, block);
  statement += HoopClause(selection.HoopMode);
  statement += AnchorPlateClause(selection.AnchorPlateMode);
  return statement;
}

}  // namespace rbt
