// SPDX-License-Identifier: MIT
#include "showroom/preview_forms.h"

#include <initializer_list>
#include <string_view>

#include "desktop/preview_form.h"
#include "desktop/printer_choice.h"
#include "platform/print/printer_surface.h"
#include "platform/system/clock.h"
#include "reports/forms/print_buttons.h"
#include "reports/frame/print_frame.h"
#include "screens/result/result_forms.h"

namespace rbt {

namespace {

constexpr std::string_view kA4Portrait = "btnA4T";
constexpr std::string_view kA4Landscape = "btnA4Y";
constexpr std::string_view kB5Landscape = "btnB5Y";

std::vector<std::string> SamplePrinters() { return {"事務所レーザー", "現場 A3 プリンタ", "EPSON VP-4200"}; }

PrintedDocument Drawn(std::string_view paper_button) {
  const PrintButton& button = FindPrintButton(paper_button);
  PrintedDocument drawn;
  PrinterSurface printer(std::string(kPdfDeviceName), DeviceKind::pdf,
                         [&drawn](const PrintedDocument& document) { drawn = document; });
  printer.Orientation = button.orientation;
  printer.PaperSize = PaperCodeOfKind(button.paper_kind);
  const DateTexts date = DefaultDateTexts(Now());
  button.kind_a(printer, {.SubProject = {}, .Year = date.year, .Month = date.month, .Day = date.day});
  return drawn;
}

std::unique_ptr<QWidget> Make(std::initializer_list<std::string_view> paper_buttons,
                              std::vector<std::string> printers) {
  MakeJS();  // fills the table that the sheets show
  std::vector<PrintedDocument> documents;
  for (const std::string_view button : paper_buttons) documents.push_back(Drawn(button));
  PreviewParts parts = SystemPreviewParts();
  parts.printers = std::move(printers);
  parts.print = [](const std::string&, const PrintedDocument&) {};
  return std::make_unique<PreviewForm>(std::move(documents), std::move(parts));
}

PreviewForm& Preview(QWidget& form) { return static_cast<PreviewForm&>(form); }

FormEntry Entry(std::function<std::unique_ptr<QWidget>()> make, std::vector<FormState> states) {
  return {.name = "PreviewForm",
          .make = std::move(make),
          .first_focus = "picSheet",
          .keys = PreviewForm::Keys(),
          .states = std::move(states)};
}

}  // namespace

std::vector<FormEntry> PreviewForms() {
  return {Entry([] { return Make({kA4Portrait}, SamplePrinters()); },
                {{"portrait", [](QWidget&) {}},
                 {"actual-size", [](QWidget& form) { Preview(form).cmdActual_Click(); }},
                 {"page-width", [](QWidget& form) { Preview(form).cmdWidth_Click(); }},
                 {"zoomed",
                  [](QWidget& form) {
                    Preview(form).cmdActual_Click();
                    for (int step = 0; step < 3; ++step) Preview(form).cmdZoomIn_Click();
                  }}}),
          Entry([] { return Make({kA4Landscape}, {}); }, {{"landscape-without-a-printer", [](QWidget&) {}}}),
          Entry(
              [] {
                return Make({kA4Portrait, kB5Landscape, kA4Landscape}, SamplePrinters());
              },
              {{"first-of-three", [](QWidget&) {}},
               {"second-of-three", [](QWidget& form) { Preview(form).cmdNext_Click(); }}}),
          {.name = "PrinterChoice",
           .make = [] { return std::make_unique<PrinterChoice>(SamplePrinters()); },
           .first_focus = "lstPrinter",
           .keys = PrinterChoice::Keys(),
           .states = {{"normal", [](QWidget&) {}}}}};
}

}  // namespace rbt
