// SPDX-License-Identifier: MIT
#include "session/panels/printer_notice.h"

#include <algorithm>

#include <fmt/format.h>

#include "platform/print/paper.h"
#include "platform/system/printing.h"
#include "shell/config/settings.h"

namespace rbt {

namespace {

std::vector<std::string> InstalledPrinters() {
  std::vector<std::string> names;
  for (const PrinterSurface& printer : Printers().Installed()) {
    if (printer.Kind() == DeviceKind::installed_printer) names.push_back(printer.DeviceName());
  }
  return names;
}

bool Has(const std::vector<std::string>& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

PrinterNotice LookForPrinter() {
  RefreshPrinters();
  PrinterNotice notice;
  notice.printers = InstalledPrinters();
  if (notice.printers.empty()) {
    notice.text = "プリンタがありません。印字する表はプレビューに表示します。";
    return notice;
  }
  if (Has(notice.printers, Settings.TallyPrinter)) return {};
  const PrinterSurface& current = Printers().Current();
  notice.text = fmt::format(
      "プリンタ「{}」がありません。「{}」の今の用紙（{}）のまま印字し、入らない部分は切れます。",
      Settings.TallyPrinter, current.DeviceName(), PaperCaption(current.PaperSize, current.Orientation));
  return notice;
}

std::string PrinterOfSheets() {
  return Has(InstalledPrinters(), Settings.TallyPrinter) ? Settings.TallyPrinter
                                                         : Printers().Current().DeviceName();
}

void TakePrinter(const std::string& name) {
  SaveSetting(kTallyPrinterKey, name);
  Settings.TallyPrinter = name;
}

}  // namespace rbt
