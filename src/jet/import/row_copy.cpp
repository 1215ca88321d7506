// SPDX-License-Identifier: MIT
#include "jet/import/row_copy.h"

#include <algorithm>

#include <fmt/format.h>

#include "jet/index.h"
#include "platform/fault.h"
#include "platform/pass_over_faults.h"

namespace rbt::jet {

namespace {

constexpr std::size_t kMostNamedRefusals = 10000;

/// The live rows in the order of the key; what the key's index lacks comes behind.
std::vector<RowPointer> InKeyOrder(JetFile& file, const TableMapping& mapping, std::vector<RowPointer> places,
                                   std::vector<std::string>& warnings) {
  if (!mapping.key) return places;
  std::vector<RowPointer> ordered;
  ordered.reserve(places.size());
  std::vector<bool> taken(places.size());
  std::vector<unsigned char> last_key;
  const auto take = [&](const IndexEntry& entry) {
    if (entry.key < last_key) file.Damaged(entry.row.page, "entries of an index are out of order");
    last_key = entry.key;
    const auto found = std::lower_bound(places.begin(), places.end(), entry.row);
    if (found == places.end() || *found != entry.row) return;
    const auto at = static_cast<std::size_t>(found - places.begin());
    if (!taken[at]) ordered.push_back(entry.row);
    taken[at] = true;
  };
  const auto walk = [&] { WalkIndex(file, mapping.source.physical_indexes[*mapping.key], take); };
  if (const auto fault = PassOverFaultsOfContent(walk)) {
    warnings.push_back(fmt::format("the primary key of {} is damaged ({}); rows stand as they lie",
                                   mapping.source.name, fault->what()));
    return places;
  }
  if (ordered.size() < places.size()) {
    warnings.push_back(fmt::format("the primary key of {} lacks {} rows, which stand behind the others",
                                   mapping.source.name, places.size() - ordered.size()));
  }
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (!taken[i]) ordered.push_back(places[i]);
  }
  return ordered;
}

/// The key of a row, or its first two values, so that people find it.
std::string RowName(const TableMapping& mapping, RowPointer place, std::size_t number,
                    const std::vector<Value>& values) {
  std::vector<std::string> names;
  if (mapping.key) {
    for (const IndexColumn& key : mapping.source.physical_indexes[*mapping.key].columns) {
      names.push_back(mapping.source.FindNumber(key.number)->name);
    }
  } else {
    for (std::size_t i = 0; i < std::min<std::size_t>(2, mapping.source.columns.size()); ++i) {
      names.push_back(mapping.source.columns[i].name);
    }
  }
  std::string text = fmt::format("page {}, row {}", place.page, number);
  for (const std::string& name : names) {
    const auto at = static_cast<std::size_t>(mapping.source.Find(name) - mapping.source.columns.data());
    const bool bytes = std::holds_alternative<Bytes>(values[at]);
    text += fmt::format(", {} {}", name,
                        IsNull(values[at]) ? "null"
                        : bytes            ? "(bytes)"
                                           : TextOf(values[at]));
  }
  return text;
}

}  // namespace

RowCopy::RowCopy(JetFile& file, const TableMapping& mapping, Database& target,
                 std::vector<std::string>& warnings)
    : file_(file), mapping_(mapping), insert_(target, mapping.target) {
  imported_.name = mapping.source.name;
  std::string warning;
  places_ = PlacesOfRows(file, mapping.source, warning);
  if (!warning.empty()) warnings.push_back(warning);
  places_ = InKeyOrder(file, mapping, std::move(places_), warnings);
}

bool RowCopy::ReadNext() {
  if (next_ == places_.size()) return false;
  values_ = ReadRow(file_, mapping_.source, places_[next_++]);
  return true;
}

std::optional<std::int64_t> RowCopy::Append() {
  const auto refusal = insert_.Append(values_);
  if (!refusal) {
    ++imported_.rows;
    return insert_.LastRow();
  }
  if (++imported_.refused <= kMostNamedRefusals) {
    imported_.refused_rows.push_back(
        fmt::format("{}: {}", RowName(mapping_, Place(), next_, values_), *refusal));
  }
  return std::nullopt;
}

void RowCopy::Finish() { insert_.NumberFrom(mapping_.source.last_autonumber); }

}  // namespace rbt::jet
