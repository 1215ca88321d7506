// SPDX-License-Identifier: MIT
#include "cli/command_line.h"

#include <algorithm>
#include <span>
#include <type_traits>
#include <utility>

#include <CLI/CLI.hpp>

#include "cli/output.h"
#include "platform/numbers/decimal_text.h"
#include "platform/numbers/number_words.h"

namespace rbt {

namespace {

std::string Joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : "|") + word;
  return text;
}

/// An option with a value of which nothing stands behind the sign, "--rests=".
bool GivesAnEmptyValue(const CLI::App& line, std::string_view word) {
  if (!word.starts_with("--") || word.find('=') + 1 != word.size()) return false;
  const CLI::Option* const option = line.get_option_no_throw(std::string(word.substr(0, word.size() - 1)));
  return option != nullptr && option->get_items_expected_max() > 0;
}

/// The words behind the program's name, the last one first, as the library wants them. It would take the word
/// behind "--rests=" for the value, so the empty value stands as a word of its own.
std::vector<std::string> WordsFromTheEnd(const CLI::App& line, int argc, char** argv) {
  std::vector<std::string> words;
  words.reserve(2 * static_cast<std::size_t>(argc));
  bool takes_options = true;
  const std::span<char*> all(argv, static_cast<std::size_t>(argc));
  for (const std::string_view word : all.subspan(std::min<std::size_t>(1, all.size()))) {
    takes_options = takes_options && word != "--";
    const bool is_empty = takes_options && GivesAnEmptyValue(line, word);
    words.emplace_back(is_empty ? word.substr(0, word.size() - 1) : word);
    if (is_empty) words.emplace_back();
  }
  std::ranges::reverse(words);
  return words;
}

/// False when help, or the version, was asked for and given.
bool Parse(CLI::App& app, std::vector<std::string> words_from_the_end) {
  try {
    app.parse(std::move(words_from_the_end));
    return true;
  } catch (const CLI::CallForHelp&) {
    WriteResult(app.help());
    return false;
  } catch (const CLI::CallForVersion&) {
    WriteResult(app.version() + "\n");
    return false;
  } catch (const CLI::ExtrasError&) {
    throw UsageError("unexpected argument " + app.remaining(true).front());
  } catch (const CLI::ParseError& error) {
    throw UsageError(error.what());
  }
}

/// The command that the first word names; null where an option stands before it. A word that is no command
/// would only be told as a missing one.
const Command* FirstCommand(std::span<const Command> commands, int argc, char** argv) {
  const std::string first = argc > 1 ? argv[1] : "";
  const auto found = std::ranges::find(commands, first, &Command::name);
  if (found != commands.end()) return &*found;
  if (first.empty() || first[0] == '-') return nullptr;
  throw UsageError("unknown command " + first);
}

/// Refuses what `take` does not take as the value of an option of that form.
std::function<void(const std::string& text)> Taker(const std::string& name, const std::string& form,
                                                   std::function<bool(const std::string& text)> take) {
  return [take = std::move(take), name, form](const std::string& text) {
    if (!take(text)) throw CLI::ValidationError(name, text + " is not of the form " + form);
  };
}

/// Takes a whole number of 32 bits. The library's own conversion would read "010" as 8 and "0x1F" as 31.
std::function<void(const std::string& text)> NumberTaker(const std::string& name, std::int32_t& target) {
  return [name, &target](const std::string& text) {
    const std::optional<std::int32_t> number = WholeNumber(text);
    if (!number) throw CLI::ConversionError(name, std::vector{text});
    target = *number;
  };
}

/// An empty target stands for a name that was not given, which an empty text, of a variable that a script
/// does not set, must not pass for.
CLI::Validator IsNamed() {
  return {[](const std::string& text) { return std::string(text.empty() ? "the name is empty" : ""); }, ""};
}

}  // namespace

void CommandLine::Argument(const std::string& name, std::string& target, const std::string& description) {
  line_.add_option(name, target, description)->required();
}

void CommandLine::Arguments(const std::string& name, std::vector<std::string>& target,
                            const std::string& description) {
  line_.add_option(name, target, description)->required();
}

void CommandLine::FileArgument(const std::string& name, std::string& target, const std::string& description) {
  line_.add_option(name, target, description)->required()->check(IsNamed());
}

void CommandLine::FileArguments(const std::string& name, std::vector<std::string>& target,
                                const std::string& description) {
  line_.add_option(name, target, description)->required()->check(IsNamed());
}

void CommandLine::OptionalArgument(const std::string& name, std::string& target,
                                   const std::string& description) {
  line_.add_option(name, target, description)->check(IsNamed());
}

void CommandLine::WordArgument(const std::string& name, std::string& target,
                               const std::vector<std::string>& words, const std::string& description) {
  line_.add_option(name, target, description)->required()->check(CLI::IsMember(words));
}

void CommandLine::NumberArgument(const std::string& name, const std::string& form, std::int32_t& target,
                                 const std::string& description) {
  line_.add_option_function<std::string>(name, NumberTaker(name, target), description)
      ->type_name(form)
      ->required();
}

void CommandLine::WholeNumberArgument(const std::string& name, const std::string& form, double& target,
                                      const std::string& description) {
  line_
      .add_option_function<std::string>(
          name,
          [&target, name](const std::string& text) {
            if (!IsWholeNumber(text)) throw CLI::ValidationError(name, text + " is no whole number");
            target = LeadingNumber(text);
          },
          description)
      ->type_name(form)
      ->required();
}

void CommandLine::Flag(const std::string& name, bool& target, const std::string& description) {
  line_.add_flag(name, target, description);
}

void CommandLine::TextOption(const std::string& name, const std::string& form, std::string& target,
                             const std::string& description) {
  line_.add_option(name, target, description)->type_name(form);
}

void CommandLine::FileOption(const std::string& name, const std::string& form, std::string& target,
                             const std::string& description) {
  line_.add_option(name, target, description)->type_name(form)->check(IsNamed());
}

void CommandLine::WordOption(const std::string& name, const std::string& form, std::string& target,
                             const std::vector<std::string>& words, const std::string& description) {
  CLI::Validator is_word = CLI::IsMember(words);
  if (form.empty()) is_word.description("");
  line_.add_option(name, target, description)
      ->type_name(form.empty() ? Joined(words) : form)
      ->check(is_word)
      ->capture_default_str();
}

void CommandLine::NumberOption(const std::string& name, const std::string& form, std::int32_t& target,
                               const std::string& description) {
  line_.add_option_function<std::string>(name, NumberTaker(name, target), description)
      ->type_name(form)
      ->default_str(std::to_string(target));
}

template <typename Number>
void CommandLine::NumberOption(const std::string& name, Number& target, std::type_identity_t<Number> lowest,
                               std::type_identity_t<Number> highest, const std::string& description) {
  const auto take = [name, &target, lowest, highest](const std::string& text) {
    const std::optional<std::int32_t> number = WholeNumberIn(text, lowest, highest);
    if (!number) {
      throw CLI::ValidationError(name, "Value " + text + " not in range " + std::to_string(lowest) + " to " +
                                           std::to_string(highest));
    }
    target = static_cast<Number>(*number);
  };
  line_.add_option_function<std::string>(name, take, description)
      ->type_name(std::to_string(lowest) + ".." + std::to_string(highest))
      ->default_str(std::to_string(target));
}
template void CommandLine::NumberOption(const std::string&, std::int16_t&, std::int16_t, std::int16_t,
                                        const std::string&);
template void CommandLine::NumberOption(const std::string&, std::int32_t&, std::int32_t, std::int32_t,
                                        const std::string&);

void CommandLine::FormOption(const std::string& name, const std::string& form,
                             std::function<bool(const std::string& text)> take,
                             const std::string& description) {
  line_.add_option_function<std::string>(name, Taker(name, form, std::move(take)), description)
      ->type_name(form);
}

void CommandLine::RepeatedOption(const std::string& name, const std::string& form,
                                 std::function<bool(const std::string& text)> take,
                                 const std::string& description) {
  line_.add_option_function<std::string>(name, Taker(name, form, std::move(take)), description)
      ->type_name(form)
      ->trigger_on_parse();
}

void CommandLine::RootOption() {
  FileOption("--root", "DIR", order_.root, "the root folder; default $RBK_ROOT");
}

void CommandLine::WaitOption() {
  constexpr std::int32_t kDay = 86'400;
  NumberOption("--wait", order_.wait_seconds, 0, kDay,
               "seconds to wait for a file that another program holds");
}

std::optional<Order> ReadCommandLine(std::span<const Command> commands, int argc, char** argv) {
  Order order;
  CLI::App app("Tallies the reinforcing bars of a construction site from its bar schedule.", "rbtally");
  app.require_subcommand(1);
  app.set_version_flag("--version", "rbtally " RBTALLY_VERSION, "print name and version");
  const Command* const first = FirstCommand(commands, argc, argv);
  std::vector<std::pair<CLI::App*, Action>> lines;
  for (const Command& command : commands) {
    CLI::App* line = app.add_subcommand(std::string(command.name), std::string(command.description));
    // To define the options of all takes as long as many a command.
    if (first != nullptr && first != &command) continue;
    CommandLine command_line(*line, order);
    lines.emplace_back(line, command.define(command_line));
  }
  const CLI::App& read = first != nullptr ? *lines.front().first : app;
  if (!Parse(app, WordsFromTheEnd(read, argc, argv))) return std::nullopt;
  const auto given = std::ranges::find_if(lines, [](const auto& line) { return line.first->parsed(); });
  order.action = std::move(given->second);
  return order;
}

}  // namespace rbt
