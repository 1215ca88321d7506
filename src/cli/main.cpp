// SPDX-License-Identifier: MIT
#include <chrono>
#include <csignal>
#include <exception>
#include <optional>
#include <span>
#include <string>

#include "cli/command_line.h"
#include "cli/output.h"
#include "cli/pdf_library.h"
#include "platform/system/services.h"

namespace rbt {

namespace {

constexpr int kSucceeded = 0;
constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

/// Reads the command line and runs the command given. Wrong usage and faults leave as exceptions.
void Run(int argc, char** argv) {
  const std::optional<Order> order = ReadCommandLine(Commands(), argc, argv);
  if (!order) return;
  if (!order->root.empty()) Services.Root = order->root;
  Services.LockPatience = std::chrono::seconds(order->wait_seconds);
  order->action();
}

/// The program's one border: whatever ended the command becomes one line and an exit status.
int ExitStatusOf(int argc, char** argv) {
  try {
    Run(argc, argv);
    return kSucceeded;
  } catch (const UsageError& error) {
    ReportError(std::string(error.what()) + " (see rbtally --help)");
    return kWrongUsage;
  } catch (const std::exception& error) {
    ReportError(error.what());
    return kFailed;
  }
}

}  // namespace

std::span<const Command> Commands() {
  static constexpr Command kCommands[] = {
      {"demo", "Make a root folder with demonstration sites", DefineDemo},
      {"prepare", "Run the load and activation steps on a site", DefinePrepare},
      {"tally", "Tally a site", DefineTally},
      {"stock", "Choose the stock length for one group of equal pieces", DefineStock},
      {"names", "List the registered names of a site with their weights", DefineNames},
      {"detail", "Tally a site and change its purchase list", DefineDetail},
      {"save", "Tally a site and keep the tally in it under a name", DefineSave},
      {"load", "Show a saved tally", DefineLoad},
      {"list", "List the saved tallies of a site", DefineList},
      {"rename", "Give a saved tally another name", DefineRename},
      {"delete", "Delete saved tallies", DefineDelete},
      {"export", "Write the CSV file of a tally", DefineExport},
      {"accumulate", "Add up the bulk tallies of several sites", DefineAccumulate},
      {"plan", "Plan what to buy and what to cut from each bar, for the whole site", DefinePlan},
      {"report", "Print a report form of a tally to a PDF file", DefineReport},
      {"import", "Take real Jet files into the store", DefineImport},
      {"check", "Look whether a real Jet file is sound", DefineCheck},
      {"dump", "Print the tables or rows of a real Jet file as CSV", DefineDump},
  };
  return kCommands;
}

}  // namespace rbt

int main(int argc, char** argv) {
  // A closed pipe is then reported as a failed write.
  std::signal(SIGPIPE, SIG_IGN);
#ifdef RBTALLY_PAINTS_PDF
  rbt::Services.PaintPdf = rbt::PaintPdfByLibrary;
#endif
  return rbt::ExitStatusOf(argc, argv);
}
