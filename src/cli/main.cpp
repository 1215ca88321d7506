// SPDX-License-Identifier: MIT
#include <algorithm>
#include <csignal>
#include <exception>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "cli/output.h"
#ifdef RBTALLY_PAINTS_PDF
#include "desktop/painting_surface.h"
#include "platform/print/pdf_writer.h"
#endif

namespace rbt {

namespace {

constexpr int kSucceeded = 0;
constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

/// False when help was asked for and given. Wrong usage leaves as `UsageError`, whose text names the word.
bool Parse(CLI::App& app, int argc, char** argv) {
  // A word that is no command would only be told as a missing one.
  const std::string first = argc > 1 ? argv[1] : "";
  const auto named_so = [&](const Command& command) { return command.name == first; };
  if (!first.empty() && first[0] != '-' && std::ranges::none_of(Commands(), named_so)) {
    throw UsageError("unknown command " + first);
  }
  try {
    app.parse(argc, argv);
    return true;
  } catch (const CLI::CallForHelp&) {
    WriteResult(app.help());
    return false;
  } catch (const CLI::ExtrasError&) {
    throw UsageError("unexpected argument " + app.remaining(true).front());
  } catch (const CLI::ParseError& error) {
    throw UsageError(error.what());
  }
}

/// Reads the command line and runs the command given. Wrong usage and faults leave as exceptions.
void Run(int argc, char** argv) {
  CLI::App app("Tallies the reinforcing bars of a construction site from its bar schedule.", "rbtally");
  app.require_subcommand(1);
  std::vector<std::pair<CLI::App*, Action>> commands;
  for (const Command& command : Commands()) {
    CLI::App* line = app.add_subcommand(std::string(command.name), std::string(command.description));
    commands.emplace_back(line, command.define(*line));
  }
  if (!Parse(app, argc, argv)) return;
  for (const auto& [line, action] : commands) {
    if (line->parsed()) action();
  }
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
  rbt::SetPdfWriter(rbt::PaintPdf);
#endif
  return rbt::ExitStatusOf(argc, argv);
}
