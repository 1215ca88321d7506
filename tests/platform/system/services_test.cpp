// SPDX-License-Identifier: MIT
#include "platform/system/services.h"

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/system/printing.h"
#include "support/kept_services.h"

namespace rbt {
namespace {

TEST(Services, AreAtFirstThoseOfTheCommandLine) {
  const test::KeptServices services;
  Services = ServicesData();
  EXPECT_EQ(Printers().Current().DeviceName(), kPdfDeviceName);
  EXPECT_THROW(WritePdf({}, "a.pdf"), Fault);
  EXPECT_EQ(ChooseColour("色選択", 255), std::nullopt);
  EXPECT_NO_THROW(RunPendingEvents());
  EXPECT_EQ(FamilyDirectory(), std::nullopt);
}

TEST(Services, AreAllBroughtBackByWhoeverKeepsThem) {
  const ServicesData before = Services;
  {
    const test::KeptServices services;
    Services.Root = "/elsewhere";
    Services.Clock = test::StandingClock({2026, 1, 1, 0, 0, 0});
    Services.Colours = [](std::string_view, std::int32_t rgb) { return std::optional(rgb + 1); };
    EXPECT_EQ(ChooseColour("色選択", 1), 2);
    Services.Printers = PdfDeviceAlone([](const PrintedDocument&) {});
  }
  EXPECT_EQ(Services.Root, before.Root);
  EXPECT_GE(Now().year, 2026);
  EXPECT_EQ(ChooseColour("色選択", 1), std::nullopt);
  Printers().Current().Print({"一"});
  EXPECT_ANY_THROW(Printers().Current().EndDoc()) << "the first list delivers nowhere";
}

}  // namespace
}  // namespace rbt
