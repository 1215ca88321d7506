// SPDX-License-Identifier: MIT
#include "platform/system/message.h"

#include <gtest/gtest.h>

#include "support/kept_services.h"

namespace rbt {
namespace {

TEST(MsgBox, WithoutAWindowIsOneLineOnStandardErrorAndTheDefaultAnswer) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(MsgBox("登録されていません。\r\n続けますか", "確認", MessageButtons::yes_no_cancel),
            MessageAnswer::yes);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "確認: 登録されていません。 続けますか\n");
}

TEST(MsgBox, WithNoAsTheDefaultIsAnsweredNo) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(MsgBox("続けますか", "", MessageButtons::yes_no_default_no), MessageAnswer::no);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "続けますか\n");
}

TEST(MsgBox, WithoutATitleIsTheTextAlone) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(MsgBox("終わりました", "", MessageButtons::ok_cancel), MessageAnswer::ok);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "終わりました\n");
}

TEST(MsgBox, WithoutAWindowTriesNothingAgain) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(MsgBox("a", "", MessageButtons::retry_abort), MessageAnswer::cancel);
  EXPECT_EQ(MsgBox("a", "", MessageButtons::retry_exit), MessageAnswer::cancel);
  EXPECT_EQ(MsgBox("a", "", MessageButtons::ok_to_warning), MessageAnswer::ok);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "a\na\na\n");
}

TEST(MsgBox, GoesToTheServiceInPlace) {
  const test::KeptServices services;
  std::string seen;
  Services.Messages = [&](std::string_view text, std::string_view title, MessageButtons buttons) {
    seen = std::string(title) + "/" + std::string(text);
    return buttons == MessageButtons::yes_no ? MessageAnswer::no : MessageAnswer::cancel;
  };
  EXPECT_EQ(MsgBox("a", "b", MessageButtons::yes_no), MessageAnswer::no);
  EXPECT_EQ(seen, "b/a");
}

}  // namespace
}  // namespace rbt
