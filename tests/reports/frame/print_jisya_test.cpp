// SPDX-License-Identifier: MIT
#include "reports/frame/print_jisya.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "reports/frame/letter_spacing.h"
#include "reports/frame/print_frame.h"
#include "shell/config/settings.h"
#include "support/drawn_page.h"
#include "support/site_fixture.h"

namespace rbt {
namespace {

constexpr float kX = 6600;
constexpr float kY = 2200;

class PrintJisya : public ::testing::Test {
 protected:
  void Draw(const OwnCompany& company, std::int32_t rule_width = 0) {
    DrawOwnCompany(page_.Printer, company, kX, kY,
                   {ReportFont, ReportFont, ReportFont, true, rule_width, 10});
    page_.Printer.EndDoc();
  }
  /// Draws what STEEL.INI holds.
  void Print() {
    Print_Jisya(page_.Printer, kX, kY, ReportFont, ReportFont, ReportFont, "2", 0, 10);
    page_.Printer.EndDoc();
  }

  test::SiteFixture site_;
  test::DrawnPage page_;
};

OwnCompany NameAlone() {
  OwnCompany company;
  company.name = "みほん鉄筋";
  return company;
}

OwnCompany Complete() {
  OwnCompany company;
  company.name = "株式会社みほん鉄筋";
  company.label1 = "本社";
  company.label2 = "工場";
  company.addresses = {"一丁目", "二丁目", "三丁目"};
  company.phones = {"11-1", "22-2", "33-3"};
  company.faxes = {"44-4", "55-5"};
  company.mails = {"a@b", "c@d"};
  return company;
}

TEST_F(PrintJisya, OnlyTheNameFilledMovesTheBlockDownBy700) {
  EXPECT_EQ(LineCountOf(NameAlone()), 1);
  Draw(NameAlone());
  EXPECT_EQ(page_.TextOf("み").y, kY + 700);
}

TEST_F(PrintJisya, EightLinesStandInPlace) {
  OwnCompany company = NameAlone();
  company.addresses = {"一丁目", "二丁目", "三丁目"};
  company.phones = {"11-1", "22-2", "33-3"};
  company.faxes[0] = "44-4";
  ASSERT_EQ(LineCountOf(company), 8);
  Draw(company);
  EXPECT_EQ(page_.TextOf("み").y, kY);
}

TEST_F(PrintJisya, AllElevenLinesMoveTheBlockUpBy300) {
  ASSERT_EQ(LineCountOf(Complete()), 11);
  Draw(Complete());
  EXPECT_EQ(page_.TextOf("株").y, kY - 300);
}

// Name 14 points: + 290. Later steps are of size 10 and the gap of 10.
TEST_F(PrintJisya, TheLinesOfAFullBlockStepByTheirKinds) {
  Draw(Complete());
  const float address1 = kY - 300 + 14 * 20 + 10;
  EXPECT_EQ(page_.TextOf("本社").y, address1);
  EXPECT_EQ(page_.TextOf("一").y, address1);
  const float address2 = address1 + 10 * 20 + 10;
  EXPECT_EQ(page_.TextOf("二").y, address2);
  const float tel1 = address2 + 10 * 18 + 10;
  EXPECT_EQ(page_.TextOf("TEL").y, tel1);
  const float tel2 = tel1 + 10 * 16 + 10;
  EXPECT_EQ(page_.TextAt(kX - 350 + 1560, tel2), "TEL");
  const float fax1 = tel2 + 10 * 16 + 10;
  EXPECT_EQ(page_.TextOf("FAX").y, fax1);
  const float mail1 = fax1 + 10 * 14 + 10;
  EXPECT_EQ(page_.TextOf("a@b").y, mail1);
  const float address3 = mail1 + 10 * 14 + 10 + 40;
  EXPECT_EQ(page_.TextOf("工場").y, address3);
  const float tel3 = address3 + 10 * 18 + 10;
  EXPECT_EQ(page_.TextAt(kX - 350 + 1560, tel3), "TEL");
  const float fax2 = tel3 + 10 * 16 + 10;
  EXPECT_EQ(page_.TextAt(kX - 350 + 1560, fax2), "FAX");
  EXPECT_EQ(page_.TextOf("c@d").y, fax2 + 10 * 14 + 10 + 50);
}

TEST_F(PrintJisya, WithoutTheFirstAddressTheNextStepTakesTheSizeOfTheName) {
  OwnCompany company = NameAlone();
  company.phones[0] = "11-1";
  Draw(company);
  EXPECT_EQ(page_.TextOf("TEL").y, kY + 600 + 14 * 18 + 10);
}

TEST_F(PrintJisya, WithoutLabelsTheNameStandsInTheAddressBox) {
  Draw(NameAlone());
  EXPECT_EQ(page_.TextOf("み").x, kX + 960);
  // Five characters of 280 twips over 3360 leave 1960 for four gaps.
  EXPECT_EQ(page_.TextOf("ほ").x, kX + 960 + 280 + 490);
  EXPECT_EQ(page_.TextOf("み").font_size, 14);
  EXPECT_TRUE(page_.TextOf("み").font_bold);
}

TEST_F(PrintJisya, WithALabelTheNameHasTheWholeBlock) {
  OwnCompany company = NameAlone();
  company.label2 = "工場";
  company.addresses[2] = "三丁目";
  Draw(company);
  EXPECT_EQ(page_.TextOf("み").x, kX);
}

// 3360 twips hold 12 full-width characters at 14 points, 12.9 at 13, 15.3 at 11.
TEST_F(PrintJisya, TheNameTakesTheLargestSizeThatFitsItsBox) {
  const auto size_of = [&](std::size_t characters) {
    std::string name;
    for (std::size_t i = 0; i < characters; ++i) name += "鉄";
    return Print_JisyaName(page_.Printer, kX, kY, name, "", "", ReportFont, true, false);
  };
  EXPECT_EQ(size_of(12), 14);
  EXPECT_EQ(size_of(13), 12);
  EXPECT_EQ(size_of(14), 12);
  EXPECT_EQ(size_of(15), 11);
  EXPECT_EQ(size_of(16), 10);
}

// 18 characters of 200 twips in 3360: 17 gaps of -240 / 17.
TEST_F(PrintJisya, ANameTooWideAtSize11IsPressedTogetherAtSize10) {
  const std::string name = "みほん鉄筋加工組立運搬据付総合請負業";
  EXPECT_EQ(Print_JisyaName(page_.Printer, 0, 0, name, "", "", ReportFont, true, false), 10);
  page_.Printer.EndDoc();
  const std::vector<PrintedText> texts = page_.Texts();
  EXPECT_EQ(texts.front().font_size, 10);
  EXPECT_LT(texts[1].x - texts[0].x, 200);
  EXPECT_NEAR(texts.back().x + 200, 960 + 3360, 0.1);
}

TEST_F(PrintJisya, ANamePrintedInOnePieceThatFitsNoSizeStaysAt11) {
  const std::string name = "みほん鉄筋加工組立運搬据付総合請負業";
  EXPECT_EQ(Print_JisyaName(page_.Printer, 0, 0, name, "", "", ReportFont, true, true), 10);
  page_.Printer.EndDoc();
  EXPECT_EQ(page_.TextOf(name).font_size, 11);
}

TEST_F(PrintJisya, AddressSizesFollowTheirCharacters) {
  const auto size_of = [&](std::size_t characters) {
    std::string text;
    for (std::size_t i = 0; i < characters; ++i) text += "町";
    return Print_JisyaJyusyo(page_.Printer, kX, kY, "", text, ReportFont, ReportFont, 0);
  };
  EXPECT_EQ(size_of(13), 12);
  EXPECT_EQ(size_of(14), 11);
  EXPECT_EQ(size_of(15), 11);
  EXPECT_EQ(size_of(16), 10);
  EXPECT_EQ(size_of(17), 9);
  EXPECT_EQ(size_of(18), 9);
  EXPECT_EQ(size_of(19), 8);
  EXPECT_EQ(size_of(40), 8);
}

TEST_F(PrintJisya, AnAddressIsSpreadOverItsBoxBehindALabelOfItsSize) {
  EXPECT_EQ(Print_JisyaJyusyo(page_.Printer, kX, kY, "本社", "見本県例示市", ReportFont, ReportFont, 0), 12);
  page_.Printer.EndDoc();
  EXPECT_EQ(page_.TextOf("本社").x, kX);
  EXPECT_EQ(page_.TextOf("本社").font_size, 12);
  EXPECT_FALSE(page_.TextOf("本社").font_bold);
  EXPECT_EQ(page_.TextOf("見").x, kX + 960);
  EXPECT_NEAR(page_.TextOf("市").x + 240, kX + 4320, 0.1);
}

TEST_F(PrintJisya, TheFirstAddressAloneStandsLargerThanSize10) {
  OwnCompany company = Complete();
  company.addresses = {"一丁目", "二丁目", "三丁目四番地五番地六番地七番地八番地"};  // 3, 3 and 18 characters
  for (const bool in_one_piece : {false, true}) {
    company.address2_in_one_piece = in_one_piece;
    Draw(company);
    EXPECT_EQ(page_.TextOf("一").font_size, 12);
    EXPECT_EQ(page_.TextThatStarts("二").font_size, 10);
    EXPECT_EQ(page_.TextOf("三").font_size, 9);
  }
}

TEST_F(PrintJisya, AGivenSizeGoesBeforeTheLength) {
  EXPECT_EQ(Print_JisyaJyusyo(page_.Printer, kX, kY, "", "見本県", ReportFont, ReportFont, 9), 9);
  page_.Printer.EndDoc();
  EXPECT_EQ(page_.TextOf("見").font_size, 9);
}

TEST_F(PrintJisya, TheSecondAddressInOnePieceStandsAt960) {
  OwnCompany company = NameAlone();
  company.addresses = {"一丁目", "見本ビル四階", ""};
  company.address2_in_one_piece = true;
  Draw(company);
  EXPECT_EQ(page_.TextOf("見本ビル四階").x, kX + 960);
}

// Label at X - 350 + 1560; the number over 2260 twips from there + 500.
TEST_F(PrintJisya, PhoneNumbersAreSpreadInSize10BehindTheirLabel) {
  OwnCompany company = NameAlone();
  company.phones[0] = "00-11";
  Draw(company);
  const PrintedText label = page_.TextOf("TEL");
  EXPECT_EQ(label.x, kX + 1210);
  EXPECT_EQ(label.font_size, 10);
  EXPECT_FALSE(label.font_bold);
  EXPECT_EQ(page_.TextBeside(label, kX + 1710), "0");
  EXPECT_EQ(page_.TextBeside(label, kX + 1710 + 100 + (2260 - 500) / 4.0F), "0");
}

TEST_F(PrintJisya, MailAddressesStandInSize8AtTheBlocksOwnX) {
  OwnCompany company = NameAlone();
  company.mails[0] = "a@example.jp";
  Draw(company);
  EXPECT_EQ(page_.TextOf("E-mail: ").x, kX + 1560);
  EXPECT_EQ(page_.TextOf("a@example.jp").x, kX + 2210);
  EXPECT_EQ(page_.TextOf("a@example.jp").font_size, 8);
}

TEST_F(PrintJisya, WithoutALabelThePostalCodeStandsByTheFirstAddress) {
  OwnCompany company = NameAlone();
  company.addresses[0] = "一丁目";
  company.phones[0] = "11-1";
  company.postal[0] = "000-0001";
  Draw(company);
  const PrintedText code = page_.TextOf("〒000-0001");
  EXPECT_EQ(code.x, kX - 100);
  EXPECT_EQ(code.y, page_.TextOf("一").y);
  EXPECT_EQ(code.font_size, 10);
}

TEST_F(PrintJisya, WithALabelThePostalCodeStandsByThePhone) {
  OwnCompany company = Complete();
  company.postal[0] = "000-0001";
  Draw(company);
  EXPECT_EQ(page_.TextOf("〒000-0001").y, page_.TextOf("TEL").y);
}

TEST_F(PrintJisya, APostalCodeWhoseLineIsNotThereIsNotPrinted) {
  OwnCompany company = NameAlone();
  company.label1 = "本社";
  company.addresses[0] = "一丁目";
  company.postal = {"000-0001", "000-0002"};
  Draw(company);
  EXPECT_FALSE(page_.Has("〒"));
}

TEST_F(PrintJisya, TheSecondPostalCodeAloneLeavesABareMarkOnTheSecondAddress) {
  OwnCompany company = NameAlone();
  company.addresses = {"一丁目", "二丁目", ""};
  company.postal[1] = "000-0002";
  Draw(company);
  EXPECT_EQ(page_.TextOf("〒").y, page_.TextOf("二").y);
}

TEST_F(PrintJisya, TheSecondPostalCodeCallsForTheFirstOnTheSecondAddress) {
  OwnCompany company = NameAlone();
  company.addresses = {"一丁目", "二丁目", "三丁目"};
  company.postal = {"000-0001", "000-0002"};
  Draw(company);
  EXPECT_EQ(page_.TextAt(kX - 100, page_.TextOf("一").y), "〒000-0001");
  EXPECT_EQ(page_.TextAt(kX - 100, page_.TextOf("二").y), "〒000-0001");
  EXPECT_EQ(page_.TextAt(kX - 100, page_.TextOf("三").y), "〒000-0002");
}

TEST_F(PrintJisya, TheSecondOfficesCodeStandsByItsPhoneWhereItHasALabel) {
  OwnCompany company = Complete();
  company.postal[1] = "000-0002";
  Draw(company);
  const float office = page_.TextOf("工場").y;
  EXPECT_EQ(page_.TextOf("〒000-0002").y, office + 10 * 18 + 10);
}

TEST_F(PrintJisya, ARuleUnderTheBlockSpansWhatStandsAboveIt) {
  Draw(NameAlone(), 3);
  // From the name, 14 points: 14 x 16 + 10 below.
  EXPECT_EQ(page_.RuleAt(kY + 700 + 234, kX + 960).x2, kX + 4320);
  EXPECT_EQ(page_.Rules().front().draw_width, 3);
}

TEST_F(PrintJisya, ARuleUnderALabelledBlockSpansAllOfIt) {
  Draw(Complete(), 2);
  EXPECT_EQ(page_.Rules().front().x1, kX);
  EXPECT_EQ(page_.Rules().front().x2, kX + 4320);
}

TEST_F(PrintJisya, AOneCharacterNameStandsAtItsBoxAfterTheMessage) {
  OwnCompany company;
  company.name = "社";
  Draw(company);
  EXPECT_EQ(page_.TextOf("社").x, kX + 960);
  ASSERT_EQ(site_.Messages().size(), 1U);
  EXPECT_EQ(site_.Messages()[0].title, "入力エラー");
}

TEST_F(PrintJisya, AMissingSteelIniGivesAnEmptyNameAndTheMessage) {
  std::filesystem::remove(site_.Data(test::kSteelFile));
  Print();
  EXPECT_EQ(site_.Messages().size(), 1U);
  EXPECT_TRUE(page_.documents.empty());
}

TEST_F(PrintJisya, TheFirmIsReadFromSteelIniAndTheRegistry) {
  site_.SetIni(test::kSteelFile, "自社名", "会社名", "みほん鉄筋");
  site_.SetIni(test::kSteelFile, "自社名", "住所2", "みほんビル四階");
  site_.SetIni(test::kSteelFile, "自社名", "MAIL2", "kojo@example.jp");
  SaveSetting("Kakou", "自社名登録", "住所２印刷", "1");
  Print();
  EXPECT_EQ(page_.TextOf("みほんビル四階").x, kX + 960);
  EXPECT_TRUE(page_.Has("kojo@example.jp"));
  EXPECT_TRUE(page_.TextOf("み").font_bold);
}

TEST_F(PrintJisya, AHalfWidthLabelComesOutHalf) {
  site_.SetIni(test::kSteelFile, "自社名", "名称1", "本社工場");
  site_.SetIni(test::kSteelFile, "自社名", "名称2", "Works");
  EXPECT_EQ(ReadOwnCompany().label1, "本社工場");
  EXPECT_EQ(ReadOwnCompany().label2, "Wo");  // 5 bytes / 2
  site_.SetIni(test::kSteelFile, "自社名", "名称2", "W");
  EXPECT_EQ(ReadOwnCompany().label2, "");
}

TEST_F(PrintJisya, ValuesAreCutToTheirBuffers) {
  // A buffer of 20 characters takes 19 bytes, 9 full-width characters; one of 30 takes 29.
  site_.SetIni(test::kSteelFile, "自社名", "名称1", "一二三四五六七八九十");
  site_.SetIni(test::kSteelFile, "自社名", "TEL1", "0123456789012345678901234567890123");
  EXPECT_EQ(ReadOwnCompany().label1, "一二三四五六七八九");
  EXPECT_EQ(ReadOwnCompany().phones[0], "01234567890123456789012345678");
}

TEST_F(PrintJisya, TheLengthOfTheLastValueReadIsReturned) {
  site_.SetIni(test::kSteelFile, "自社名", "会社名", "みほん鉄筋");
  site_.SetIni(test::kSteelFile, "自社名", "MAIL2", "c@example.jp");
  EXPECT_EQ(Print_Jisya(page_.Printer, kX, kY, ReportFont, ReportFont, ReportFont, "0", 0, 10), 12);
  page_.Printer.EndDoc();
  EXPECT_FALSE(page_.TextOf("み").font_bold);
}

TEST_F(PrintJisya, TheBottomOfABlockIsWhereItsLowestLineEnds) {
  OwnCompany name_alone;
  name_alone.name = "みほん鉄筋";
  OwnCompany address_last = name_alone;
  address_last.addresses[2] = "見本県例示市港町";
  OwnCompany phone_last = address_last;
  phone_last.phones[2] = "0000-00-0003";
  for (const OwnCompany& company : {Complete(), name_alone, address_last, phone_last}) {
    Draw(company);
    float bottom = 0;
    for (const PrintedText& text : page_.Texts()) {
      bottom = std::max(bottom, text.y + LineHeight(text.font_size));
    }
    EXPECT_EQ(OwnCompanyBottom(company, kY, 10), bottom);
  }
}

}  // namespace
}  // namespace rbt
