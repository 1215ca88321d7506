// SPDX-License-Identifier: MIT
// Pictures of every form in every state, for people to look at: rbtally_screenshots FOLDER, on $RBK_ROOT.
#include <filesystem>
#include <iostream>
#include <string>

#include <QApplication>
#include <QPixmap>

#include "desktop/look.h"
#include "desktop/pending_events.h"
#include "platform/fault.h"
#include "platform/system/services.h"
#include "session/startup/startup.h"
#include "showroom/all_forms.h"

namespace rbt {

namespace {

void TakePicture(const FormEntry& entry, const FormState& state, const std::filesystem::path& folder) {
  const std::unique_ptr<QWidget> form = entry.make();
  form->show();
  state.bring(*form);
  QApplication::processEvents();
  const std::filesystem::path file = folder / (entry.name + "-" + state.name + ".png");
  if (!form->grab().save(QString::fromStdString(file.string()))) {
    throw Fault(FaultKind::file, file.string() + ": cannot be written");
  }
}

int TakePictures(const std::filesystem::path& folder) {
  try {
    std::filesystem::create_directories(folder);
    const StartOptions options;
    LoadSite(options);
    ActivateMenu(options);
    for (const FormEntry& entry : AllForms()) {
      for (const FormState& state : entry.states) TakePicture(entry, state, folder);
    }
    return EXIT_SUCCESS;
  } catch (const std::exception& fault) {
    std::cerr << "rbtally_screenshots: " << fault.what() << '\n';
    return EXIT_FAILURE;
  }
}

}  // namespace

}  // namespace rbt

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 2) {
    std::cerr << "usage: rbtally_screenshots FOLDER\n";
    return 2;
  }
  rbt::PrepareDesktop();
  rbt::Services.PendingEvents = rbt::ProcessEventsWithoutInput;
  return rbt::TakePictures(argv[1]);
}
