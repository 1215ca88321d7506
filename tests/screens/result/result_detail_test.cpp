// SPDX-License-Identifier: MIT
// F5 of the result screens, from the key to the purchase list and back.
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/detail/detail_form.h"
#include "screens/detail/detail_forms.h"
#include "screens/result/result_form_driver.h"
#include "tally/selection.h"

namespace rbt::test {

namespace {

using testing::StartsWith;

/// A result screen that shows the result of its default range, and what is done in the purchase list behind
/// F5.
class DetailOfResult : public ResultFormDriver {
 public:
  explicit DetailOfResult(const ResultScreen& screen) {
    parts.open_detail = OpenZAIMEI;
    Open(screen);
    form->TakeRange();
    Settle();
  }

  /// Opens the list, works it and leaves it by Esc.
  void InTheList(const std::function<void(DetailForm&)>& work) {
    constexpr int kMilliseconds = 30;
    QTimer::singleShot(kMilliseconds, [this, &work] {
      auto* list = dynamic_cast<DetailForm*>(QApplication::activeModalWidget());
      ASSERT_NE(list, nullptr);
      EXPECT_FALSE(form->isVisible()) << "the list stands in its place";
      work(*list);
      Press(*list, Qt::Key_Escape);
      if (list->isVisible()) Press(*list, Qt::Key_Escape);
    });
    Key(Qt::Key_F5);
  }
};

void RaiseByHalf(DetailForm& list) {
  Press(list, Qt::Key_F1);
  list.findChild<QLineEdit*>("txtPercent")->setText("50");
  Press(list, Qt::Key_Return);
}

}  // namespace

TEST(DetailOfResults, F5OpensTheListOfTheScreensResultInItsPlaceAndEscLeadsBack) {
  for (const ResultScreen* screen : ResultScreens()) {
    DetailOfResult js(*screen);
    TallyKind kind{};
    js.InTheList([&kind](DetailForm& list) { kind = list.Result().kind; });
    EXPECT_EQ(kind, screen->kind) << screen->name;
    EXPECT_TRUE(js.form->isVisible());
    EXPECT_EQ(QApplication::activeWindow(), js.form.get());
    EXPECT_EQ(js.Focused(), "dbgJS");
    EXPECT_THAT(js.Row("D19"), StartsWith("135 |"));
  }
}

TEST(DetailOfResults, TheScreenShowsWhatTheListHasMadeOfItsResult) {
  for (const ResultScreen* screen : ResultScreens()) {
    DetailOfResult js(*screen);
    js.InTheList(RaiseByHalf);
    EXPECT_THAT(js.Row("D19"), StartsWith("203 |")) << screen->name;  // 15 x 13.5 kg
    js.InTheList(RaiseByHalf);
    EXPECT_THAT(js.Row("D19"), StartsWith("311 |")) << "the list goes on from there";  // 23 x 13.5 kg
  }
}

TEST(DetailOfResults, ValuesAreRestoredInTheListOfABulkTally) {
  DetailOfResult js(kBulkScreen);
  js.InTheList(RaiseByHalf);
  js.InTheList([](DetailForm& list) { Press(list, Qt::Key_F3); });
  EXPECT_EQ(js.site.Messages().back().text, "全てのデータを上乗せ前の値に戻します。");
  EXPECT_THAT(js.Row("D19"), StartsWith("135 |"));
}

}  // namespace rbt::test
