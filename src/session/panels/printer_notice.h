// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace rbt {

/// Where sheets go now.
struct PrinterNotice {
  std::string text;  ///< empty: to the printer of the settings, on the paper that is asked for
  std::vector<std::string> printers;  ///< installed ones that may be taken instead
};

/// Looks at the printers that there are now. Where none bears the name of the settings, a sheet goes to the
/// current one with the paper that lies in it; where none is installed at all, to the preview.
PrinterNotice LookForPrinter();

/// The printer that takes the sheets, as far as the list in force knows.
std::string PrinterOfSheets();
/// Makes a printer that of the settings. Faults: `file`.
void TakePrinter(const std::string& name);

}  // namespace rbt
