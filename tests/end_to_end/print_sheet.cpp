// SPDX-License-Identifier: MIT
// The print buttons of the bulk tally without their window: prints the sheets of the named buttons, one after
// the other in one process, on the printers of the system, dated 2026/11/21; `list` tells what printers there
// are.
#include <cstdlib>
#include <iostream>
#include <span>
#include <string_view>

#include <QGuiApplication>

#include "platform/desktop/system_printers.h"
#include "platform/fault.h"
#include "platform/print/printer_list.h"
#include "reports/print_buttons.h"
#include "shell/startup/startup.h"
#include "tally/bulk_tally.h"

namespace rbt {

namespace {

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
  Jyuuryo_Syukei();
  for (const std::string_view button : buttons) {
    PrintComparison(FindPrintButton(button), {"", "2026", "11", "21", 1, 0});
  }
}

int Run(std::span<char*> words) {
  try {
    UseSystemPrinters([](const PrintedDocument& document) {
      throw Fault(FaultKind::file, document.device_name + ": this program prints on installed printers only");
    });
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
  const QGuiApplication application(own_name_only, argv);
  return rbt::Run(words.subspan(1));
}
