// SPDX-License-Identifier: MIT
#include "screens/floorpart/floorpart_forms.h"

#include "desktop/preview_form.h"
#include "screens/floorpart/floorpart_form.h"
#include "screens/floorpart/print_dlg.h"
#include "screens/selection/selection_dialogs.h"

namespace rbt {

namespace {

std::unique_ptr<QWidget> Make(const FloorPartScreen& screen) {
  FloorPartParts parts;
  parts.choose_kinds = ChooseKindsOfFloorsAndParts;
  parts.choose_forms = ChooseForms;
  parts.print = [](const FloorPartOrder& order) {
    std::unique_ptr<PrintDlg> dialog;
    CarryOut(order, ShowPreview, [&dialog](bool prints) {
      dialog = prints ? std::make_unique<PrintDlg>() : nullptr;
      if (dialog) dialog->ShowPage(1);
    });
  };
  return std::make_unique<FloorPartForm>(screen, std::move(parts));
}

}  // namespace

std::unique_ptr<QWidget> MakeKAIJS() { return Make(kFloorScreen); }
std::unique_ptr<QWidget> MakeBUIJS() { return Make(kPartScreen); }

}  // namespace rbt
