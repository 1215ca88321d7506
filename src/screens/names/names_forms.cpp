// SPDX-License-Identifier: MIT
#include "screens/names/names_forms.h"

#include <utility>

#include "desktop/form.h"
#include "screens/archive/saved_tally_dialogs.h"
#include "screens/names/touroku.h"
#include "screens/result/result_forms.h"
#include "session/result/result_screen.h"

namespace rbt {

namespace {

void OpenTallyScreen(const ResultScreen& screen) {
  const std::unique_ptr<QWidget> form = MakeResultForm(screen);
  ShowInPlace(*form);
}

}  // namespace

std::unique_ptr<Touroku> MakeTouroku() {
  NamesParts parts;
  parts.open_tally = [] { OpenTallyScreen(kNameScreen); };
  parts.open_shapes = [] { OpenTallyScreen(kShapeScreen); };
  parts.save_csv = [](std::vector<RegisteredName> names) { ExportWithDialog(CsvOfNames{std::move(names)}); };
  return std::make_unique<Touroku>(std::move(parts));
}

}  // namespace rbt
