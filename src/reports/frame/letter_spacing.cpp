// SPDX-License-Identifier: MIT
#include "reports/frame/letter_spacing.h"

#include "platform/numbers/number_words.h"
#include "platform/system/message.h"
#include "platform/text/characters.h"

namespace rbt {

namespace {

constexpr std::string_view kTooShortTitle = "入力エラー";
constexpr std::string_view kTooShort = "会社名・住所など自社名情報を全角で２文字以上入れてください";

}  // namespace

void PrintAt(PrinterSurface& Printer, float x, float y, std::initializer_list<std::string_view> items) {
  Printer.CurrentX = x;
  Printer.CurrentY = y;
  Printer.Print(items);
}

float MeasureLine(PrinterSurface& Printer) {
  const float x = Printer.CurrentX;
  const float y = Printer.CurrentY;
  Printer.Print();
  const float height = Printer.CurrentY - y;
  Printer.CurrentX = x;
  Printer.CurrentY = y;
  return height;
}

float Get_MojiKankaku(PrinterSurface& Printer, std::string_view FontName, std::string_view FontSize,
                      float Width, std::string_view Text) {
  Printer.FontName = FontName;
  Printer.FontSize = static_cast<float>(LeadingNumber(FontSize));
  const float rest = Width - Printer.TextWidth(Text);
  const std::size_t characters = CharacterCount(Text);
  if (characters > 1) return rest / static_cast<float>(characters - 1);
  MsgBox(kTooShort, kTooShortTitle);
  return 0.0F;
}

void PrintSpread(PrinterSurface& Printer, float x, float y, std::string_view text, float gap) {
  for (const char32_t character : CharactersOf(text)) {
    const std::string piece = Utf8Of(character);
    PrintAt(Printer, x, y, {piece});
    x += Printer.TextWidth(piece) + gap;
  }
}

}  // namespace rbt
