// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace rbt {

/// What a saved tally is known by.
struct TallyPlace {
  std::string date;  ///< "yyyymmdd"
  std::string time;  ///< "hhnnss"
  std::string name;

  friend bool operator==(const TallyPlace&, const TallyPlace&) = default;
};

/// Finds moments and names for tallies beside others.
class FreePlace {
 public:
  /// `name_size`: characters that a name may have; 0: as many as the program takes.
  explicit FreePlace(std::size_t name_size);

  void NoteMoment(const std::string& date, const std::string& time);
  /// Names are one another's own within a kind.
  void NoteName(std::string_view name, std::string_view kind);

  /// The place itself where moment and name are free, or the one beside it, see `WriteSavedHere`; it is taken
  /// from then on.
  TallyPlace Take(TallyPlace wanted, std::string_view kind);

 private:
  bool IsNameTaken(std::string_view name, std::string_view kind) const;
  std::string KeptName(std::string_view name, std::string_view kind) const;

  std::size_t name_size_;
  std::set<std::pair<std::string, std::string>> moments_;
  std::set<std::pair<std::string, std::string>> names_;  ///< kind, name without outer blanks in small letters
};

}  // namespace rbt
