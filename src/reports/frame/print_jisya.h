// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/print/printer_surface.h"
#include "reports/frame/own_company.h"

namespace rbt {

/// Widths of the own-company block in twips: the whole, its label column and the address box behind that.
inline constexpr float kBlockWidth = 4320.0F;
inline constexpr float kLabelColumn = 960.0F;
inline constexpr float kAddressBox = 3360.0F;

/// How the block is printed.
struct OwnCompanyStyle {
  std::string_view name_font;
  std::string_view label_font;
  std::string_view address_font;
  bool name_bold = true;
  std::int32_t rule_width = 0;  ///< DrawWidth of a rule under the block, 0 for none
  float line_gap = 0.0F;        ///< twips between lines, beside the step of each line
};

/// Draws the block at X, Y (twips, its top left before the shift by its number of lines).
void DrawOwnCompany(PrinterSurface& Printer, const OwnCompany& company, float X, float Y,
                    const OwnCompanyStyle& style);

/// Y below which nothing of the block stands.
float OwnCompanyBottom(const OwnCompany& company, float Y, float line_gap);

/// Reads the firm's data and draws its block. `NameBold` is a number as text, "0" for a name that is not
/// bold. Returns the length reported for the last value of STEEL.INI that was read.
std::int32_t Print_Jisya(PrinterSurface& Printer, float X, float Y, std::string_view NameFont,
                         std::string_view LabelFont, std::string_view AddressFont, std::string_view NameBold,
                         std::int32_t RuleWidth, float LineGap);
/// Twips between lines in the reports.
inline constexpr float kReportLineGap = 10.0F;
/// The block as the reports of a tally carry it.
void PrintOwnCompany(PrinterSurface& Printer, float X, float Y, std::string_view label_font);

/// Prints the company's name in the largest of its sizes that fits the box, at 10 with its letters pressed
/// together when none does; in one piece, a name that fits no size stays at 11. Returns the size by which the
/// next line steps. The box is the address box where neither label is there, else the whole block.
float Print_JisyaName(PrinterSurface& Printer, float X, float Y, std::string_view Name,
                      std::string_view Label1, std::string_view Label2, std::string_view Font, bool Bold,
                      bool in_one_piece);
/// An address behind its label, spread over the box or (B) in one piece. Size 0 is chosen by the number of
/// characters. Returns the size.
float Print_JisyaJyusyo(PrinterSurface& Printer, float X, float Y, std::string_view Label,
                        std::string_view Text, std::string_view AddressFont, std::string_view LabelFont,
                        float Size);
float Print_JisyaJyusyoB(PrinterSurface& Printer, float X, float Y, std::string_view Label,
                         std::string_view Text, std::string_view AddressFont, std::string_view LabelFont,
                         float Size);
/// A telephone or fax number behind its label; `X` is 350 left of the block's.
void Print_JisyaTel(PrinterSurface& Printer, float X, float Y, std::string_view Label, std::string_view Text,
                    std::string_view Font);
void Print_JisyaMail(PrinterSurface& Printer, float X, float Y, std::string_view Label, std::string_view Text,
                     std::string_view Font);

}  // namespace rbt
