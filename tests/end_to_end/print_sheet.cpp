// SPDX-License-Identifier: MIT
// The bulk result screen without a display: opens it on $RBK_ROOT and prints the sheets of the named buttons
// by their keys, one after the other, on the printers of the system. `list` tells what printers there are. A
// message of the screen is a line on standard error.
#include <array>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include <QApplication>
#include <QWidget>

#include "desktop/look.h"
#include "desktop/pending_events.h"
#include "desktop/system_printers.h"
#include "platform/fault.h"
#include "platform/system/printing.h"
#include "platform/system/services.h"
#include "screens/result/result_forms.h"
#include "session/result/result_screen.h"
#include "session/startup/startup.h"
#include "support/desktop/key_press.h"

namespace rbt {

namespace {

constexpr Qt::Key kPrintPanelKey = Qt::Key_F1;

struct PaperKey {
  std::string_view button;
  Qt::Key key;
};
constexpr std::array kPaperKeys{PaperKey{"btnA4T", Qt::Key_F3}, PaperKey{"btnA4Y", Qt::Key_F1},
                                PaperKey{"btnB5Y", Qt::Key_F5}};

Qt::Key KeyOf(std::string_view button) {
  for (const PaperKey& paper : kPaperKeys) {
    if (paper.button == button) return paper.key;
  }
  throw Fault(FaultKind::subscript_out_of_range, "print button " + std::string(button));
}

/// A line for each printer: name, paper code, orientation, sides of a custom sheet in twips.
void TellPrinters() {
  RefreshPrinters();
  for (const PrinterSurface& printer : Printers().Installed()) {
    std::cout << printer.DeviceName() << '\t' << printer.PaperSize << '\t' << printer.Orientation << '\t'
              << printer.PageWidth << '\t' << printer.PageHeight << '\n';
  }
}

void PrintSheets(std::span<char*> buttons) {
  StartOptions options;
  options.command_line = true;
  LoadSite(options);
  ActivateMenu(options);
  const std::unique_ptr<QWidget> screen = MakeResultForm(kBulkScreen);
  screen->show();
  test::Settle();
  for (const std::string_view button : buttons) {
    test::Press(*screen, kPrintPanelKey);
    test::Settle();
    test::Press(*screen, KeyOf(button));
    test::Settle();
  }
}

int Run(std::span<char*> words) {
  try {
    const auto preview = [](const PrintedDocument& document) {
      throw Fault(FaultKind::file, document.device_name + ": a preview has nobody to look at it here");
    };
    Services.PendingEvents = ProcessEventsWithoutInput;
    Services.Printers = PdfDeviceAlone(preview);
    Services.FindPrinters = [preview] { return SystemPrinters(preview); };
    if (words.size() == 1 && std::string_view(words[0]) == "list") {
      TellPrinters();
    } else {
      PrintSheets(words);
    }
    return EXIT_SUCCESS;
  } catch (const std::exception& fault) {
    std::cerr << "print_sheet: " << fault.what() << '\n';
    return EXIT_FAILURE;
  }
}

}  // namespace

}  // namespace rbt

int main(int argc, char** argv) {
  const std::span<char*> words(argv, static_cast<std::size_t>(argc));
  int own_name_only = 1;
  const QApplication application(own_name_only, argv);
  rbt::PrepareDesktop();
  return rbt::Run(words.subspan(1));
}
