// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "reports/frame/number_field.h"
#include "reports/frame/print_frame.h"
#include "reports/frame/report_head.h"
#include "reports/frame/row_grid.h"
#include "reports/frame/ruled_text.h"

namespace rbt {

/// The parts of a head. Places are twips, sizes points, rule widths DrawWidth; a part whose value a head
/// lacks prints nothing.

/// The client between two texts. Its rule is as wide as the whole line, or goes by the client's name alone.
struct ClientPart {
  RuledText place;
  RowPlace row = {};
  float size = 13;
  std::int32_t rule_width = 2;
  std::string_view before = {};
  std::string_view behind = {};
  float text_end = 0;  ///< X beyond which the text does not reach, but shrinks; 0: any
};

/// One form of the project's name: its label, the size from which the name shrinks, and its rule.
struct NameForm {
  std::string_view label;
  float label_size = 12;
  float name_x = 0;
  float size = 12;
  RuleEnd rule_to = {};
};

/// The project line. A long name shrinks until it is at most `long_name_width` wide.
struct ProjectPart {
  float x = 0;  ///< of the labels and the rule
  float long_name_width = 0;
  NameForm short_form;
  NameForm long_form;
  NameForm broken_form;
  RowPlace short_row;
  std::optional<RowPlace> short_rule_row;  ///< none: right under the name
  RowPlace long_row;
  RowPlace long_row_over_sub_project;
  RowPlace first_row;   ///< of a broken name
  RowPlace second_row;  ///< of its rest, and of its label
  std::int32_t rule_width = 2;
  std::int32_t rule_width_without_client = 2;
  float short_name_width = 0;  ///< a short name shrinks until it is at most so wide; 0: it stays as it is
  /// Of the rest of a broken name, before which there is the label where this is empty; else the label stands
  /// before the first piece.
  std::string_view rest_label = {};
};

/// The sub-project text; under a form of the project's name without a row there is no room for it.
struct SubProjectPart {
  float x = 0;
  std::string_view before = "　　　（";
  std::string_view behind = "）";
  std::optional<RowPlace> under_short;
  std::optional<RowPlace> under_long;
  std::optional<RowPlace> under_broken;
  float size = 12;
  float long_text_size = 12;  ///< of more than 22 characters under a long name on one line
  float text_end = 0;         ///< X beyond which the text does not reach, but stands in 7; 0: any
};

/// A total weight of the head with its label.
struct WeightPart {
  std::optional<double> ReportHead::*kilograms = &ReportHead::total_weight;
  RuledText place;
  RowPlace row = {6};
  std::string_view label = "総重量";
  std::string_view tonnes_mask = kTonnesMask;
  float size = 14;
  std::int32_t rule_width = 3;
};

/// The date, Western or of the era, over its rule.
struct DatePart {
  RuledText western;
  RuledText era;
  RowPlace row;
  float size = 12;
  std::int32_t rule_width = 2;
};

/// A text of the head as it stands, such as its scope.
struct TextPart {
  std::string ReportHead::*text = &ReportHead::scope;
  float x = 0;
  RowPlace row;
  float size = 12;
  bool bold = false;
};

/// The number of the page.
struct PagePart {
  float x = 0;
  RowPlace row;
  float size = 11;
};

/// The block of the firm that issues the report.
struct OwnCompanyPart {
  float x = 0;
  float y = 0;
  std::string_view label_font = ReportFont;
  double clear_of_row = 0;  ///< a block that would run into this row of the page moves up; 0: it stays
};

using HeadPart = std::variant<ClientPart, ProjectPart, SubProjectPart, WeightPart, DatePart, TextPart,
                              PagePart, OwnCompanyPart>;

/// The rows of a page, from its title down: a row is as high as a line of `text_size` and `gap` twips; row 0
/// stands so many lines of the title below the title, and so many rows lower where there is a client line.
struct HeadRows {
  float text_size = 0;
  float gap = 0;
  float title_lines = 0;
  float client_rows = 0;
};

/// How the head of a page is laid out: the title's place and Y from the top of the page, the rows, and the
/// parts in the order in which they are drawn.
struct HeadLayout {
  RuledText title;
  float title_y = 0;
  HeadRows rows;
  std::span<const HeadPart> parts;
  float title_width =
      0;  ///< of a title that is spread; its rule ends where `title` has it behind such a text
};

}  // namespace rbt
