// SPDX-License-Identifier: MIT
#include "session/panels/print_panel_presenter.h"

namespace rbt {

FocusTarget PrintPanelPresenter::Open(Papers papers) {
  open_ = true;
  papers_ = papers;
  date_.FillEmpty();
  printer_ = LookForPrinter();
  switch (papers) {
    case Papers::ulbon:
      return FocusTarget::a4_portrait;
    case Papers::none:
      return FocusTarget::settings;
    case Papers::all:
    case Papers::a4:
      break;
  }
  return FocusTarget::a4_landscape;
}

void PrintPanelPresenter::ChoosePrinter() {
  if (!ask_printer_ || printer_.printers.empty()) return;
  if (const std::optional<std::string> taken = ask_printer_(printer_.printers)) TakePrinter(*taken);
  printer_ = LookForPrinter();
}

}  // namespace rbt
