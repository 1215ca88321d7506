// SPDX-License-Identifier: MIT
#include "app/arguments.h"

#include <filesystem>
#include <string_view>

#include "platform/text/characters.h"
#include "session/menu/captions.h"
#include "session/names/names_view.h"

namespace rbt {

Arguments ParseArguments(std::span<const char* const> words) {
  constexpr std::string_view kRoot = "--root";
  constexpr std::string_view kRootIs = "--root=";
  Arguments arguments;
  bool first = true;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string_view word = words[i];
    if (word == "--help" || word == "-h") {
      arguments.help = true;
    } else if (word == "--version") {
      arguments.version = true;
    } else if (word.starts_with(kRootIs)) {
      arguments.root = word.substr(kRootIs.size());
    } else if (word == kRoot && i + 1 < words.size()) {
      arguments.root = words[++i];
    } else if (word == kRoot) {
      arguments.usage_fault = "--root needs a folder";
    } else if (word.starts_with("--")) {
      arguments.usage_fault = "unknown option " + std::string(word);
    } else {
      if (!first) arguments.command_line += ' ';
      arguments.command_line += word;
      first = false;
    }
  }
  return arguments;
}

const ProgramWords& WordsOf(std::string_view program) {
  static constexpr ProgramWords kOfMenu{
      "rbtally1", kMenuTitle,
      "Opens the tally menu of the site that another program of the family has chosen."};
  static constexpr ProgramWords kOfNames{
      "rbtally2", kNamesTitle,
      "Opens the registered names of the site that another program of the family has chosen."};
  return WorksWithNames(program) ? kOfNames : kOfMenu;
}

std::string UsageOf(const ProgramWords& words) {
  std::string usage = "usage: ";
  usage.append(words.name).append(" [--root DIR] [START-MODE ...]\n\n").append(words.purpose);
  return usage +=
         "\n\n"
         "  --root DIR   the folder that \\RBK\\ stands for; default $RBK_ROOT\n"
         "  --help       this text\n"
         "  --version    the version\n";
}

bool WorksWithNames(std::string_view program) {
  return EqualIgnoringCase(std::filesystem::path(program).stem().string(), "rbtally2");
}

}  // namespace rbt
