// SPDX-License-Identifier: MIT
#include "session/panels/printer_notice.h"

#include <list>
#include <utility>

#include <gtest/gtest.h>

#include "platform/print/paper.h"
#include "platform/system/services.h"
#include "session/panels/print_panel_presenter.h"
#include "shell/config/settings.h"
#include "support/site_fixture.h"

namespace rbt::test {

namespace {

/// A site whose settings name a printer, and the printers that there are; the first is current, with A4
/// landscape in it.
struct PrinterSite : SiteFixture {
  PrinterSite(std::initializer_list<const char*> names) {
    Settings.TallyPrinter = "事務所";
    std::list<PrinterSurface> printers;
    for (const char* name : names) {
      printers.emplace_back(name, DeviceKind::installed_printer, [](const PrintedDocument&) {});
      printers.back().PaperSize = kPaperA4;
      printers.back().Orientation = kLandscape;
    }
    printers.emplace_back("PDF", DeviceKind::pdf, [](const PrintedDocument&) {});
    Services.Printers = PrinterList(std::move(printers));
  }
};

}  // namespace

TEST(PrinterNotice, IsNoneWhereThePrinterOfTheSettingsIsThere) {
  const PrinterSite site({"現場", "事務所"});
  EXPECT_EQ(LookForPrinter().text, "");
  EXPECT_TRUE(LookForPrinter().printers.empty());
  EXPECT_EQ(PrinterOfSheets(), "事務所");
}

TEST(PrinterNotice, NamesThePrinterThatIsMissingAndThePaperThatIsTakenInstead) {
  const PrinterSite site({"現場", "倉庫"});
  const PrinterNotice notice = LookForPrinter();
  EXPECT_EQ(
      notice.text,
      "プリンタ「事務所」がありません。「現場」の今の用紙（A4 横）のまま印字し、入らない部分は切れます。");
  EXPECT_EQ(notice.printers, (std::vector<std::string>{"現場", "倉庫"}));
  EXPECT_EQ(PrinterOfSheets(), "現場");
}

TEST(PrinterNotice, WithoutAnyPrinterSheetsGoToThePreview) {
  const PrinterSite site({});
  EXPECT_EQ(LookForPrinter().text, "プリンタがありません。印字する表はプレビューに表示します。");
  EXPECT_TRUE(LookForPrinter().printers.empty());
}

TEST(PrinterNotice, APrinterThatIsTakenIsThatOfTheSettingsFromThenOn) {
  const PrinterSite site({"現場", "倉庫"});
  PrintPanelPresenter panel;
  std::optional<std::string> answer;
  panel.OfferPrinters([&answer](const std::vector<std::string>&) { return answer; });
  panel.Open(Papers::all);
  EXPECT_TRUE(panel.View().offers_printers);
  panel.ChoosePrinter();
  EXPECT_TRUE(panel.View().offers_printers) << "the user has turned back";
  answer = "倉庫";
  panel.ChoosePrinter();
  EXPECT_FALSE(panel.View().offers_printers);
  EXPECT_EQ(panel.View().printer_notice, "");
  EXPECT_EQ(ReadSetting(kTallyPrinterKey), "倉庫");
  EXPECT_EQ(Settings.TallyPrinter, "倉庫");
  EXPECT_EQ(PrinterOfSheets(), "倉庫");
}

}  // namespace rbt::test
