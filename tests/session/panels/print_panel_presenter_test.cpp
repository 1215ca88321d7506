// SPDX-License-Identifier: MIT
#include "session/panels/print_panel_presenter.h"

#include <gtest/gtest.h>

#include "support/site_fixture.h"

namespace rbt::test {

TEST(PrintPanelPresenter, OpensOnTheFirstButtonThatCanBePressed) {
  const SiteFixture site;
  const std::pair<Papers, FocusTarget> cases[] = {{Papers::all, FocusTarget::a4_landscape},
                                                  {Papers::a4, FocusTarget::a4_landscape},
                                                  {Papers::ulbon, FocusTarget::a4_portrait},
                                                  {Papers::none, FocusTarget::settings}};
  for (const auto& [papers, focus] : cases) {
    PrintPanelPresenter panel;
    EXPECT_FALSE(panel.View().open);
    EXPECT_EQ(panel.Open(papers), focus);
    EXPECT_TRUE(panel.View().open);
    EXPECT_EQ(panel.View().papers, papers);
    EXPECT_EQ(panel.View().date.year, "2026");
  }
}

TEST(PrintPanelPresenter, KeepsMemoDateAndTickWhileTheScreenIsOpen) {
  const SiteFixture site;
  PrintPanelPresenter panel;
  panel.Open(Papers::all);
  panel.TypeMemo(" 二期 ");
  panel.Date().Type(2, "5");
  panel.TogglePreview();
  panel.Close();
  EXPECT_FALSE(panel.IsOpen());
  panel.Open(Papers::none);
  EXPECT_EQ(panel.View().memo, " 二期 ");
  EXPECT_EQ(panel.View().date.day, "5");
  EXPECT_TRUE(panel.View().preview);
  panel.TogglePreview();
  EXPECT_FALSE(panel.View().preview);
  panel.SetPreview(true);
  EXPECT_TRUE(panel.View().preview);
}

}  // namespace rbt::test
