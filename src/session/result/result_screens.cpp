// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>

#include "session/result/range_rules.h"
#include "session/result/result_screen.h"
#include "shell/context/site_context.h"
#include "tally/captions.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt {

namespace {

constexpr std::array<std::string_view, 1> kNotOnBulk{"cmdPGChange"};
constexpr std::array<std::string_view, 8> kNotOnPage{"cmdUSum",  "cmdurubon", "cmdPrint2",  "CmdVReturn",
                                                     "Command6", "lblUper",   "txtPercent", "hozon"};
constexpr std::array<std::string_view, 10> kNotOnPageShape{
    "cmdUSum", "cmdurubon",  "cmdPrint2", "CmdVReturn", "Command6",
    "lblUper", "txtPercent", "hozon",     "Command2",   "Lwarning"};
constexpr std::array<std::string_view, 9> kNotOnShape{"cmdUSum",  "cmdPrint2", "CmdVReturn",
                                                      "Command6", "lblUper",   "txtPercent",
                                                      "hozon",    "Lwarning",  "cmdPGChange"};

constexpr std::array<ControlText, 4> kPageCaptions{{{"cmdPrint", "印     字 （F1）"},
                                                    {"cmdMeisai", "明 細 表 示 （F5）"},
                                                    {"cmdExit", "終    了 （Esc）"},
                                                    {"Label8", "異形･高強度･ネジ･スリット"}}};
constexpr std::array<ControlText, 5> kPageShapeCaptions{{{"cmdPrint", "印     字 （F1）"},
                                                         {"cmdMeisai", "明 細 表 示 （F5）"},
                                                         {"cmdExit", "終    了 （Esc）"},
                                                         {"Label8", "異形･高強度･ネジ･スリット"},
                                                         {"WaitMsgL", "計算中！！"}}};
constexpr std::array<ControlText, 6> kShapeCaptions{{{"cmdPrint", "印     字 （F1）"},
                                                     {"cmdurubon", "ｳﾙﾎﾞﾝ印字 （F3）"},
                                                     {"cmdMeisai", "明 細 表 示 （F5）"},
                                                     {"cmdExit", "終    了 （Esc）"},
                                                     {"Label8", "異形･高強度･ネジ･スリット"},
                                                     {"WaitMsgL", "計算中！！"}}};

/// `SSPanel4` is the range panel of the scoped screens.
constexpr std::array<ControlText, 2> kScopedNames{{{"Label4", "Label11"}, {"SSPanel4", "waitPanel"}}};

/// The shape screen offers one form alone; the shape tally takes none, so only the caption changes.
std::string_view SingleFormCaption(FormMask forms) { return FormCaption(forms.IsOne() ? forms : kAllForms); }

/// The shape tally itself only notes whether the site has any.
void CountHighStrengthRows() {
  Recordset rows =
      SiteContext.WorkDatabase->OpenSnapshot(HighStrengthRowsOf({Selection.ShapeStart, Selection.ShapeEnd}));
  TallyGrid.HighStrengthRowCount = static_cast<std::int32_t>(rows.RecordCount());
}

}  // namespace

constinit const ResultScreen kBulkScreen{.name = "JS",
                                         .title = "重量集計",
                                         .kind = TallyKind::bulk,
                                         .absent = kNotOnBulk,
                                         .form_caption = FormCaption};

constinit const ResultScreen kPageScreen{.name = "PGJS",
                                         .title = "頁行別重量集計",
                                         .kind = TallyKind::page,
                                         .absent = kNotOnPage,
                                         .captions = kPageCaptions,
                                         .names = kScopedNames,
                                         .form_caption = ShortFormCaption};

constinit const ResultScreen kShapeScreen{.name = "KEIJOJS",
                                          .title = "形状重量集計",
                                          .kind = TallyKind::shape,
                                          .absent = kNotOnShape,
                                          .captions = kShapeCaptions,
                                          .names = kScopedNames,
                                          .form_caption = SingleFormCaption,
                                          .before_first_run = CountHighStrengthRows};

constinit const ResultScreen kPageShapeScreen{.name = "PKEIJOJS",
                                              .title = "頁行別形状重量集計",
                                              .kind = TallyKind::page_shape,
                                              .absent = kNotOnPageShape,
                                              .captions = kPageShapeCaptions,
                                              .names = kScopedNames,
                                              .form_caption = FormCaption};

TallyRange RangeOf(const ResultScreen& screen) { return RowOf(screen.kind).range; }

bool HasControl(const ResultScreen& screen, std::string_view control) {
  return std::find(screen.absent.begin(), screen.absent.end(), control) == screen.absent.end();
}

}  // namespace rbt
