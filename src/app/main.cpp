// SPDX-License-Identifier: MIT
#include <chrono>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include <QApplication>
#include <QTimer>

#include "app/arguments.h"
#include "data/start_mode.h"
#include "desktop/action.h"
#include "desktop/colour.h"
#include "desktop/form_place.h"
#include "desktop/lock_question.h"
#include "desktop/look.h"
#include "desktop/message_box.h"
#include "desktop/preview_form.h"
#include "desktop/system_printers.h"
#include "desktop/work_watch.h"
#include "platform/system/message.h"
#include "platform/system/paths.h"
#include "platform/system/services.h"
#include "screens/menu/jsmenu.h"
#include "screens/names/names_forms.h"
#include "screens/names/touroku.h"
#include "screens/panels/reading_notice.h"
#include "session/menu/captions.h"
#include "session/names/name_work.h"

namespace rbt {

namespace {

constexpr int kWrongUsage = 2;
constexpr std::chrono::seconds kLockPatience{3};

/// What can be answered without a window.
std::optional<int> AnswerWithoutWindow(const Arguments& arguments, const ProgramWords& words) {
  if (!arguments.usage_fault.empty()) {
    std::cerr << words.name << ": " << arguments.usage_fault << " (see " << words.name << " --help)\n";
    return kWrongUsage;
  }
  if (arguments.help) {
    std::cout << UsageOf(words);
    return EXIT_SUCCESS;
  }
  if (arguments.version) {
    std::cout << words.name << " " RBTALLY_VERSION "\n";
    return EXIT_SUCCESS;
  }
  return std::nullopt;
}

/// False, after a message, when there is no root folder to work on.
bool UseRoot(const Arguments& arguments, std::string_view title) {
  if (arguments.root) Services.Root = *arguments.root;
  if (Root().empty()) {
    MsgBox("フォルダ「\\RBK」の場所が分かりません。\r\n--root か環境変数 RBK_ROOT で指定して下さい。", title);
    return false;
  }
  if (!std::filesystem::is_directory(Root())) {
    MsgBox("フォルダ「" + Root().string() + "」が見つかりません。", title);
    return false;
  }
  return true;
}

/// What this program has in place of what the command line has.
void SetUpServices() {
  const auto preview = [](const PrintedDocument& document) { ShowPreview({document}); };
  Services.Messages = ShowMessage;
  // A window that stands still tells why after a moment.
  Services.LockPatience = kLockPatience;
  Services.WaitOn = AskToWaitOn;
  Services.OnWait = NoteWaits();
  Services.OnWork = ShowWork();
  Services.OnLongReading = ShowLongReadings();
  Services.ProgramFolder = QCoreApplication::applicationDirPath().toStdString();
  Services.Colours = AskColour;
  Services.PendingEvents = ProcessEventsOfWork;
  Services.Launch = [](std::string_view command_line, WindowStyle style, bool polling) {
    LaunchProgram(command_line, style, polling);
    HideWork();  // the user has worked with the sibling, not waited
  };
  Services.Printers = PdfDeviceAlone(preview);
  Services.FindPrinters = [preview] { return SystemPrinters(preview); };
}

int RunMenu(const Arguments& arguments) {
  bool root_known = false;
  StartOptions options;
  const bool ready = RunAction(kMenuTitle, [&] {
    root_known = UseRoot(arguments, kMenuTitle);
    options.start_mode = TraitsOfStartMode(ParseStartMode(arguments.command_line));
  });
  if (!ready || !root_known) return EXIT_FAILURE;
  JSMENU menu(MenuPartsFor(options, [](int status) { QApplication::exit(status); }), MenuScreens());
  QTimer::singleShot(0, [&menu] { menu.Open(); });
  return QApplication::exec();
}

/// What the menu starts for the work with registered names: their screen is the first form.
int RunNames(const Arguments& arguments) {
  std::unique_ptr<Touroku> form;
  bool handed_over = false;
  RunAction(kNamesTitle, [&] {
    if (!UseRoot(arguments, kNamesTitle)) return;
    handed_over = !LoadSiteForNames(TraitsOfStartMode(ParseStartMode(arguments.command_line)));
    if (!handed_over) form = MakeTouroku();
  });
  if (handed_over) return EXIT_SUCCESS;
  if (!form) return EXIT_FAILURE;
  form->OnLeft([] { QApplication::exit(EXIT_SUCCESS); });
  PlaceForm(*form);
  form->show();
  return QApplication::exec();
}

}  // namespace

}  // namespace rbt

int main(int argc, char** argv) {
  const std::span<char*> words(argv, static_cast<std::size_t>(argc));
  const rbt::Arguments arguments = rbt::ParseArguments(words.subspan(words.empty() ? 0 : 1));
  const std::string_view program = words.empty() ? "" : words[0];
  if (const auto status = rbt::AnswerWithoutWindow(arguments, rbt::WordsOf(program))) return *status;
  int own_name_only = 1;
  const QApplication application(own_name_only, argv);
  rbt::PrepareDesktop();
  rbt::SetUpServices();
  return rbt::WorksWithNames(program) ? rbt::RunNames(arguments) : rbt::RunMenu(arguments);
}
