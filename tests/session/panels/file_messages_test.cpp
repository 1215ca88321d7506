// SPDX-License-Identifier: MIT
#include "session/panels/file_messages.h"

#include <fstream>

#include <gtest/gtest.h>

#include "platform/files/system_error.h"
#include "support/site_fixture.h"
#include "support/temporary_folder.h"

namespace rbt::test {

TEST(MayReplaceFile, AsksOnlyWhereSomethingStandsUnderTheName) {
  SiteFixture site;
  const TemporaryFolder folder;
  const std::filesystem::path file = folder / "a.csv";
  EXPECT_TRUE(MayReplaceFile(file, "t"));
  EXPECT_TRUE(site.Messages().empty());
  std::ofstream(file) << "old";
  site.Answer(MessageAnswer::no);
  EXPECT_FALSE(MayReplaceFile(file, "t"));
  ASSERT_EQ(site.Messages().size(), 1U);
  EXPECT_EQ(site.Messages()[0].text, "「" + file.string() + "」は既にあります。\n置き換えますか？");
  EXPECT_EQ(site.Messages()[0].title, "t");
  EXPECT_EQ(site.Messages()[0].buttons, MessageButtons::yes_no);
  site.Answer(MessageAnswer::yes);
  EXPECT_TRUE(MayReplaceFile(file, "t"));
}

TEST(TellNotSaved, SaysWhatIsWrongAndWhatToDoUnderAWarningSign) {
  const SiteFixture site;
  TellNotSaved("/usb/a.csv", FileFault("/usb/a.csv", "cannot be written", ENOSPC), "t");
  ASSERT_EQ(site.Messages().size(), 1U);
  EXPECT_EQ(site.Messages()[0].text,
            "「/usb/a.csv」に保存できません。\n"
            "「a.csv」\n"
            "ディスクに空きがありません。\n"
            "不要なファイルを消してから、もう一度操作して下さい。\n"
            "\n"
            "/usb/a.csv: cannot be written: No space left on device");
  EXPECT_EQ(site.Messages()[0].buttons, MessageButtons::ok_to_warning);
}

}  // namespace rbt::test
