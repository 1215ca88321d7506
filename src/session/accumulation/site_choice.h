// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "data/reference.h"

namespace rbt {

/// A site that is to be added.
struct AddedSite {
  std::int32_t number = 0;    ///< 番号
  std::string name;           ///< 工事名
  std::string KasanDataPath;  ///< データパス, trimmed, not empty
};

/// There are no sites: they are to be made, and the program ends.
struct ProgramEnds {};

/// What comes of the dialog: nothing, as long as it is open and where it is left without a site.
using SiteChoice = std::variant<std::monostate, AddedSite, ProgramEnds>;

/// Where the focus of `BACKUP2` goes.
enum class SiteChoiceFocus { stays, sites, number };

/// All that `BACKUP2` shows.
struct SiteChoiceView {
  std::vector<std::vector<std::string>> rows;      ///< number and name of every site
  std::optional<std::size_t> current;              ///< row of the site that is chosen
  std::string number;                              ///< as it is typed, or of that site
  SiteChoiceFocus focus = SiteChoiceFocus::stays;  ///< asked for once
  bool left = false;                               ///< the dialog is to be closed
};

/// The dialog `BACKUP2` without its window: which site is added next.
class SiteChoicePresenter {
 public:
  /// Reads the sites of the open master database. Without any site database the tool that makes them is run,
  /// and the program is ending then.
  SiteChoicePresenter();

  SiteChoiceView View();
  /// A number that a site has chooses it.
  void TypeNumber(std::string number);
  /// The user has gone to a row.
  void GoTo(std::size_t row);
  /// Takes the site of the number; the dialog ends with it. A number that no site has, and a site without
  /// data, are told.
  void Execute();
  void Leave() { left_ = true; }

  const SiteChoice& Choice() const { return choice_; }

 private:
  void SendForSites();
  void ReadSites();

  std::vector<SiteHead> sites_;
  std::optional<std::size_t> current_;
  std::string number_;
  SiteChoiceFocus focus_ = SiteChoiceFocus::sites;
  SiteChoice choice_;
  bool left_ = false;
};

inline constexpr std::string_view kSiteChoiceTitle = "集計を加算する現場";

}  // namespace rbt
