// SPDX-License-Identifier: MIT
#include "showroom/preview_forms.h"

#include <initializer_list>
#include <string_view>

#include "desktop/preview_form.h"
#include "desktop/printer_choice.h"
#include "platform/print/printer_surface.h"
#include "platform/system/clock.h"
#include "reports/forms/report_forms.h"
#include "reports/frame/print_frame.h"
#include "screens/result/result_forms.h"
#include "session/result/result_screen.h"
#include "tally/kinds/tally_kinds.h"

namespace rbt {

namespace {

constexpr std::string_view kA4Portrait = "taihi-a-a4t";
constexpr std::string_view kA4Landscape = "taihi-a-a4y";
constexpr std::string_view kB5Landscape = "taihi-a-b5y";

std::vector<std::string> SamplePrinters() { return {"事務所レーザー", "現場 A3 プリンタ", "EPSON VP-4200"}; }

PrintedDocument Drawn(std::string_view word, const TallyResult& result) {
  const ReportForm& form = FindReportForm(word);
  const PaperSetting paper = SettingOf(form.paper);
  PrintedDocument drawn;
  PrinterSurface printer(std::string(kPdfDeviceName), DeviceKind::pdf,
                         [&drawn](const PrintedDocument& document) { drawn = document; });
  printer.Orientation = paper.orientation;
  printer.PaperSize = PaperCodeOfKind(paper.paper_kind);
  const DateTexts date = DefaultDateTexts(Now());
  form.draw(printer, {.SubProject = {}, .Year = date.year, .Month = date.month, .Day = date.day}, result);
  return drawn;
}

std::unique_ptr<QWidget> Make(std::initializer_list<std::string_view> forms,
                              std::vector<std::string> printers) {
  MakeResultForm(kBulkScreen);  // binds the site
  const TallyResult result = CountTally(TallyKind::bulk);
  std::vector<PrintedDocument> documents;
  for (const std::string_view word : forms) documents.push_back(Drawn(word, result));
  PreviewParts parts = SystemPreviewParts();
  parts.printers = std::move(printers);
  parts.print = [](const std::string&, const PrintedDocument&) {};
  return std::make_unique<PreviewForm>(std::move(documents), std::move(parts));
}

PreviewForm& PreviewIn(QWidget& form) { return static_cast<PreviewForm&>(form); }

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
                 {"actual-size", [](QWidget& form) { PreviewIn(form).ShowActualSize(); }},
                 {"page-width", [](QWidget& form) { PreviewIn(form).ShowPageWidth(); }},
                 {"zoomed",
                  [](QWidget& form) {
                    PreviewIn(form).ShowActualSize();
                    for (int step = 0; step < 3; ++step) PreviewIn(form).ZoomIn();
                  }}}),
          Entry([] { return Make({kA4Landscape}, {}); }, {{"landscape-without-a-printer", [](QWidget&) {}}}),
          Entry(
              [] {
                return Make({kA4Portrait, kB5Landscape, kA4Landscape}, SamplePrinters());
              },
              {{"first-of-three", [](QWidget&) {}},
               {"second-of-three", [](QWidget& form) { PreviewIn(form).ShowNextPage(); }}}),
          {.name = "PrinterChoice",
           .make = [] { return std::make_unique<PrinterChoice>(SamplePrinters()); },
           .first_focus = "lstPrinter",
           .keys = PrinterChoice::Keys(),
           .states = {{"normal", [](QWidget&) {}}}}};
}

}  // namespace rbt
