// SPDX-License-Identifier: MIT
#include "reports/frame/print_jisya.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "platform/numbers/number_words.h"
#include "platform/text/characters.h"
#include "reports/frame/letter_spacing.h"
#include "reports/frame/print_frame.h"

namespace rbt {

namespace {

constexpr std::array<float, 5> kNameSizes{10, 11, 12, 13, 14};
constexpr float kDetailSize = 10;
constexpr float kMailSize = 8;

struct SizeByLength {
  std::size_t over;  ///< characters
  float size;
};
// 7 is the smallest size of the list, and no length reaches it; 15 characters stand larger than 16.
constexpr SizeByLength kAddressSizes[] = {{18, 8}, {16, 9}, {15, 10}, {13, 11}};
constexpr float kLargestAddressSize = 12;

// Twips from a line's X.
constexpr float kPostalShift = -100;
constexpr float kPhoneShift = -350;
constexpr float kContactLabel = 1560;
constexpr float kPhoneText = 500;  ///< behind the label
constexpr float kMailText = 650;

// A step to the next line: so many twips a point of the current size, and the gap.
constexpr float kAddressStep = 20;
constexpr float kFirstPhoneStep = 18;
constexpr float kPhoneStep = 16;
constexpr float kMailStep = 14;

std::string SizeText(float size) { return ShortestDecimal(size); }

float AddressSize(std::string_view text) {
  const std::size_t characters = CharacterCount(text);
  for (const SizeByLength& row : kAddressSizes) {
    if (characters > row.over) return row.size;
  }
  return kLargestAddressSize;
}

/// Prints the label and leaves the surface in the size of the address.
float PrintAddressLabel(PrinterSurface& Printer, float X, float Y, std::string_view label,
                        std::string_view text, std::string_view font, float size) {
  MeasureLine(Printer);
  if (size == 0) size = AddressSize(text);
  Printer.FontName = font;
  Printer.FontBold = false;
  Printer.FontSize = size;
  PrintAt(Printer, X, Y, {label});
  return size;
}

float NameBoxWidth(std::string_view label1, std::string_view label2) {
  return label1.empty() && label2.empty() ? kAddressBox : kBlockWidth;
}

/// Index of the largest size of a name that fits the width, 0 when none above the smallest does.
std::size_t NameSizeIndex(std::string_view name, float width) {
  std::size_t index = kNameSizes.size() - 1;
  while (index > 0 && width - TextWidthAt(kNameSizes[index], name) < 0) --index;
  return index;
}

/// The block while it is drawn: the line it stands on, and the size by which the next line steps.
class Block {
 public:
  /// Without a printer nothing is drawn, and only the lines are found.
  Block(PrinterSurface* Printer, const OwnCompany& company, float x, float y, const OwnCompanyStyle& style)
      : Printer_(Printer), company_(company), style_(style), x_(x), y_(y) {}

  /// Returns the Y below which nothing of it stands.
  float Draw() {
    Shift();
    Name();
    Addresses();
    Contacts();
    SecondOffice();
    Rule();
    return foot_;
  }

 private:
  void Shift() {
    constexpr std::int32_t kFullBlock = 11;
    constexpr std::int32_t kLinesInPlace = 8;
    const std::int32_t lines = LineCountOf(company_);
    y_ += lines >= kFullBlock ? -300.0F : static_cast<float>(kLinesInPlace - lines) * 100.0F;
  }

  void Step(float twips_per_point, float more = 0.0F) {
    y_ += step_size_ * twips_per_point + style_.line_gap + more;
  }

  /// A line of this size stands here.
  void Reach(float size) { foot_ = std::max(foot_, y_ + LineHeight(size)); }

  void Name() {
    const std::size_t index = NameSizeIndex(company_.name, NameBoxWidth(company_.label1, company_.label2));
    step_size_ = kNameSizes[index];
    Reach(kNameSizes[company_.name_in_one_piece ? std::max<std::size_t>(index, 1) : index]);
    if (Printer_ == nullptr) return;
    Print_JisyaName(*Printer_, x_, y_, company_.name, company_.label1, company_.label2, style_.name_font,
                    style_.name_bold, company_.name_in_one_piece);
  }

  void Postal(std::string_view code) {
    Reach(kDetailSize);
    if (Printer_ == nullptr) return;
    const float size = Printer_->FontSize;
    Printer_->FontName = style_.address_font;
    Printer_->FontSize = kDetailSize;
    Printer_->FontBold = false;
    PrintAt(*Printer_, x_ + kPostalShift, y_, {"〒", code});
    Printer_->FontSize = size;
  }

  void Address(decltype(Print_JisyaJyusyo) print, std::string_view label, std::string_view text,
               float at_most) {
    const float size = std::min(AddressSize(text), at_most);
    Reach(size);
    if (Printer_ == nullptr) return;
    print(*Printer_, x_, y_, label, text, style_.address_font, style_.label_font, size);
  }

  void Phone(std::string_view label, std::string_view number) {
    Reach(kDetailSize);
    if (Printer_ == nullptr) return;
    Print_JisyaTel(*Printer_, x_ + kPhoneShift, y_, label, number, style_.address_font);
  }

  void Mail(std::string_view address) {
    Reach(kMailSize);
    if (Printer_ == nullptr) return;
    Print_JisyaMail(*Printer_, x_, y_, "E-mail: ", address, style_.address_font);
  }

  void Addresses() {
    const auto& [first, second, third] = company_.addresses;
    if (!first.empty()) {
      Step(kAddressStep);
      Address(Print_JisyaJyusyo, company_.label1, first, kLargestAddressSize);
      step_size_ = kDetailSize;
      if (PostalStandsByAddress()) Postal(company_.postal[0]);
    }
    if (second.empty()) return;
    Step(kAddressStep);
    Address(company_.address2_in_one_piece ? Print_JisyaJyusyoB : Print_JisyaJyusyo, "", second, kDetailSize);
    // The second code calls for the mark and the first stands behind it: the sheets in use show it so.
    if (!company_.postal[1].empty() && company_.label1.empty()) Postal(company_.postal[0]);
  }

  bool PostalStandsByAddress() const {
    return !company_.postal[0].empty() && company_.label1.empty() && !company_.addresses[0].empty();
  }

  void Contacts() {
    if (!company_.phones[0].empty()) {
      Step(kFirstPhoneStep);
      Phone("TEL", company_.phones[0]);
      if (!company_.postal[0].empty() && !PostalStandsByAddress()) Postal(company_.postal[0]);
    }
    if (!company_.phones[1].empty()) {
      Step(kPhoneStep);
      Phone("TEL", company_.phones[1]);
    }
    if (!company_.faxes[0].empty()) {
      Step(kPhoneStep);
      Phone("FAX", company_.faxes[0]);
    }
    if (!company_.mails[0].empty()) {
      Step(kMailStep);
      Mail(company_.mails[0]);
    }
  }

  void SecondOffice() {
    const std::string& address = company_.addresses[2];
    const std::string& code = company_.postal[1];
    const bool labelled = !Trim(company_.label2).empty();
    if (!company_.label2.empty() || !address.empty()) {
      Step(kMailStep, 40.0F);
      Address(Print_JisyaJyusyo, company_.label2, address, kDetailSize);
      step_size_ = kDetailSize;
    }
    if (!code.empty() && !labelled && !address.empty()) Postal(code);
    if (!company_.phones[2].empty()) {
      Step(kFirstPhoneStep);
      Phone("TEL", company_.phones[2]);
      if (!code.empty() && labelled) Postal(code);
    }
    if (!company_.faxes[1].empty()) {
      Step(kPhoneStep);
      Phone("FAX", company_.faxes[1]);
    }
    if (!company_.mails[1].empty()) {
      Step(kMailStep, 50.0F);
      Mail(company_.mails[1]);
    }
  }

  void Rule() {
    if (style_.rule_width == 0) return;
    Step(kPhoneStep);
    foot_ = std::max(foot_, y_);
    if (Printer_ == nullptr) return;
    Printer_->DrawWidth = style_.rule_width;
    const float right = x_ + kBlockWidth;
    Printer_->Line(right - NameBoxWidth(company_.label1, company_.label2), y_, right, y_);
  }

  PrinterSurface* Printer_;
  const OwnCompany& company_;
  const OwnCompanyStyle& style_;
  float x_;
  float y_;
  float foot_ = 0.0F;
  float step_size_ = kDetailSize;
};

}  // namespace

float Print_JisyaName(PrinterSurface& Printer, float X, float Y, std::string_view Name,
                      std::string_view Label1, std::string_view Label2, std::string_view Font, bool Bold,
                      bool in_one_piece) {
  MeasureLine(Printer);
  const float width = NameBoxWidth(Label1, Label2);
  const float x = X + kBlockWidth - width;
  const std::size_t index = NameSizeIndex(Name, width);
  Printer.FontName = Font;
  Printer.FontBold = Bold;
  // In one piece, a name that fits no size keeps the last one tried.
  Printer.FontSize = kNameSizes[std::max<std::size_t>(index, 1)];
  if (in_one_piece) {
    PrintAt(Printer, x, Y, {Name});
  } else {
    const float gap = Get_MojiKankaku(Printer, Font, SizeText(kNameSizes[index]), width, Name);
    PrintSpread(Printer, x, Y, Name, gap);
  }
  return kNameSizes[index];
}

float Print_JisyaJyusyo(PrinterSurface& Printer, float X, float Y, std::string_view Label,
                        std::string_view Text, std::string_view AddressFont, std::string_view LabelFont,
                        float Size) {
  const float size = PrintAddressLabel(Printer, X, Y, Label, Text, LabelFont, Size);
  const float gap = Get_MojiKankaku(Printer, AddressFont, SizeText(size), kAddressBox, Text);
  PrintSpread(Printer, X + kLabelColumn, Y, Text, gap);
  return size;
}

float Print_JisyaJyusyoB(PrinterSurface& Printer, float X, float Y, std::string_view Label,
                         std::string_view Text, std::string_view AddressFont, std::string_view LabelFont,
                         float Size) {
  const float size = PrintAddressLabel(Printer, X, Y, Label, Text, LabelFont, Size);
  Printer.FontName = AddressFont;
  PrintAt(Printer, X + kLabelColumn, Y, {Text});
  return size;
}

void Print_JisyaTel(PrinterSurface& Printer, float X, float Y, std::string_view Label, std::string_view Text,
                    std::string_view Font) {
  MeasureLine(Printer);
  Printer.FontName = Font;
  Printer.FontSize = kDetailSize;
  Printer.FontBold = false;
  PrintAt(Printer, X + kContactLabel, Y, {Label});
  constexpr float kNumberBox = kBlockWidth - kContactLabel - kPhoneText;
  const float gap = Get_MojiKankaku(Printer, Font, SizeText(kDetailSize), kNumberBox, Text);
  PrintSpread(Printer, X + kContactLabel + kPhoneText, Y, Text, gap);
}

void Print_JisyaMail(PrinterSurface& Printer, float X, float Y, std::string_view Label, std::string_view Text,
                     std::string_view Font) {
  MeasureLine(Printer);
  const float size = Printer.FontSize;
  Printer.FontName = Font;
  Printer.FontSize = kMailSize;
  Printer.FontBold = false;
  PrintAt(Printer, X + kContactLabel, Y, {Label});
  PrintAt(Printer, X + kContactLabel + kMailText, Y, {Text});
  Printer.FontSize = size;
}

void DrawOwnCompany(PrinterSurface& Printer, const OwnCompany& company, float X, float Y,
                    const OwnCompanyStyle& style) {
  Block(&Printer, company, X, Y, style).Draw();
}

float OwnCompanyBottom(const OwnCompany& company, float Y, float line_gap) {
  OwnCompanyStyle style;
  style.line_gap = line_gap;
  return Block(nullptr, company, 0, Y, style).Draw();
}

std::int32_t Print_Jisya(PrinterSurface& Printer, float X, float Y, std::string_view NameFont,
                         std::string_view LabelFont, std::string_view AddressFont, std::string_view NameBold,
                         std::int32_t RuleWidth, float LineGap) {
  const OwnCompany company = ReadOwnCompany();
  DrawOwnCompany(Printer, company, X, Y,
                 {NameFont, LabelFont, AddressFont, LeadingNumber(NameBold) != 0.0, RuleWidth, LineGap});
  return company.last_length;
}

void PrintOwnCompany(PrinterSurface& Printer, float X, float Y, std::string_view label_font) {
  Print_Jisya(Printer, X, Y, ReportFont, label_font, ReportFont, "2", 0, kReportLineGap);
}

}  // namespace rbt
