// SPDX-License-Identifier: MIT
#include <array>

#include "session/result/range_rules.h"
#include "session/result/result_screen.h"
#include "shell/context/site_context.h"
#include "tally/captions.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt {

namespace {

constexpr std::string_view kAllKindsAtStart = "異形･高強度･ネジ･スリット";

constexpr std::array<ControlText, 3> kPageCaptions{
    {{"cmdPrint", "印     字 （F1）"}, {"cmdMeisai", "明 細 表 示 （F5）"}, {"cmdExit", "終    了 （Esc）"}}};
constexpr std::array<ControlText, 4> kPageShapeCaptions{{{"cmdPrint", "印     字 （F1）"},
                                                         {"cmdMeisai", "明 細 表 示 （F5）"},
                                                         {"cmdExit", "終    了 （Esc）"},
                                                         {"WaitMsgL", "計算中！！"}}};
constexpr std::array<ControlText, 5> kShapeCaptions{{{"cmdPrint", "印     字 （F1）"},
                                                     {"cmdurubon", "ｳﾙﾎﾞﾝ印字 （F3）"},
                                                     {"cmdMeisai", "明 細 表 示 （F5）"},
                                                     {"cmdExit", "終    了 （Esc）"},
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
                                         .offers = {.ulbon_view = true,
                                                    .uplift = true,
                                                    .deformed_print = true,
                                                    .accumulation = true,
                                                    .plan = true,
                                                    .form_choice = true,
                                                    .stock_warning = true},
                                         .kinds_at_start = kAllKindsAtDesign,
                                         .form_caption = FormCaption};

constinit const ResultScreen kPageScreen{
    .name = "PGJS",
    .title = "頁行別重量集計",
    .kind = TallyKind::page,
    .offers = {.range_change = true, .form_choice = true, .stock_warning = true},
    .kinds_at_start = kAllKindsAtStart,
    .form_caption = ShortFormCaption,
    .captions = kPageCaptions,
    .names = kScopedNames};

constinit const ResultScreen kShapeScreen{.name = "KEIJOJS",
                                          .title = "形状重量集計",
                                          .kind = TallyKind::shape,
                                          .offers = {.ulbon_print = true, .form_choice = true},
                                          .kinds_at_start = kAllKindsAtStart,
                                          .form_caption = SingleFormCaption,
                                          .before_first_run = CountHighStrengthRows,
                                          .captions = kShapeCaptions,
                                          .names = kScopedNames};

constinit const ResultScreen kPageShapeScreen{.name = "PKEIJOJS",
                                              .title = "頁行別形状重量集計",
                                              .kind = TallyKind::page_shape,
                                              .offers = {.range_change = true},
                                              .kinds_at_start = kAllKindsAtStart,
                                              .form_caption = FormCaption,
                                              .captions = kPageShapeCaptions,
                                              .names = kScopedNames};

constinit const ResultScreen kNameScreen{.name = "JS",
                                         .title = "重量集計",
                                         .kind = TallyKind::names,
                                         .offers = {.ulbon_view = true,
                                                    .uplift = true,
                                                    .deformed_print = true,
                                                    .form_choice = true,
                                                    .stock_warning = true},
                                         .kinds_at_start = kAllKindsAtDesign,
                                         .form_caption = FormCaption};

std::span<const ResultScreen* const> ResultScreens() {
  static constexpr std::array<const ResultScreen*, 4> kScreens{&kBulkScreen, &kPageScreen, &kShapeScreen,
                                                               &kPageShapeScreen};
  return kScreens;
}

}  // namespace rbt
