// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "reports/frame/report_site.h"

namespace rbt {

/// The name of the project, in the form in which the site has it.
struct ShortName {
  std::string name;
};
struct OneLineName {
  std::string name;
};
struct BrokenName {  ///< a long name on two lines
  std::string first;
  std::string rest;
};
using ProjectName = std::variant<ShortName, OneLineName, BrokenName>;
/// A site without a long name has its short one; a long one is broken at 長い工事名's break, if it has one.
ProjectName ProjectNameOf(const ReportSite& site);

/// A date as it was typed: of an era date the year is that of the era.
struct ReportDate {
  bool western = true;
  std::string year;
  std::string month;
  std::string day;
};
/// "2026 年  1 月  2 日", "令和 08 年  1 月  2 日". Texts wider than their places lose their first
/// characters.
std::string DateText(const ReportDate& date);

/// What the head of a page says; where it stands there tells the report's `HeadLayout`.
struct ReportHead {
  std::string title = {};
  bool spreads_title = false;       ///< over the width that the layout gives, letter by letter
  std::string document_title = {};  ///< what a print queue and a file call the sheets
  std::string client = {};          ///< empty: no client line
  ProjectName project = {};
  std::string sub_project = {};  ///< empty: none
  ReportDate date = {};
  std::string scope = {};                                 ///< what part of the site the sheets tell of
  std::optional<double> total_weight = std::nullopt;      ///< kilograms
  std::optional<double> installed_weight = std::nullopt;  ///< kilograms
};
/// The head that a report of this title has for a site, without scope and weights.
ReportHead HeadOf(std::string_view title, const ReportSite& site, const ReportArguments& arguments);

}  // namespace rbt
