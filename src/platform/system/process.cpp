// SPDX-License-Identifier: MIT
#include "platform/system/process.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "platform/files/system_error.h"
#include "platform/system/paths.h"
#include "platform/system/services.h"

extern char** environ;  // NOLINT(readability-redundant-declaration): POSIX leaves it to the program

namespace rbt {

namespace {

namespace fs = std::filesystem;

std::vector<std::string> SplitAtBlanks(std::string_view text) {
  std::vector<std::string> words;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(' '), text.size());
    if (end > 0) words.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return words;
}

/// This process's environment with the root and the settings file in force, so that a sibling works on the
/// same files.
std::vector<std::string> ChildEnvironment() {
  constexpr std::string_view kOwn[] = {"RBK_ROOT=", "RBK_SETTINGS="};
  std::vector<std::string> variables;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string_view variable = *entry;
    if (!variable.starts_with(kOwn[0]) && !variable.starts_with(kOwn[1])) variables.emplace_back(variable);
  }
  variables.push_back(std::string(kOwn[0]) + Root().string());
  variables.push_back(std::string(kOwn[1]) + SettingsFile().string());
  return variables;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

class SpawnActions {
 public:
  SpawnActions() { posix_spawn_file_actions_init(&actions_); }
  SpawnActions(const SpawnActions&) = delete;
  SpawnActions& operator=(const SpawnActions&) = delete;
  ~SpawnActions() { posix_spawn_file_actions_destroy(&actions_); }
  posix_spawn_file_actions_t* Get() { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_{};
};

fs::path ProgramFile(const std::string& name) {
  const bool has_folder = name.find_first_of("\\/") != std::string::npos;
  return has_folder ? MapPath(name) : OwnProgram(name).value_or(fs::path(name));
}

pid_t Start(std::string_view command_line) {
  std::vector<std::string> words = SplitAtBlanks(command_line);
  if (words.empty()) throw Fault(FaultKind::file, "no program to start");
  const std::string program_name = words.front();
  const fs::path program = ProgramFile(program_name);
  std::error_code error;
  if (!fs::is_regular_file(program, error)) {
    throw Fault(FaultKind::file, program_name + ": the program does not exist (" + program.string() + ")");
  }
  words.front() = program.string();
  std::vector<std::string> variables = ChildEnvironment();
  const std::vector<char*> arguments = Pointers(words);
  const std::vector<char*> environment = Pointers(variables);
  SpawnActions actions;
  if (FamilyDirectory()) {
    const int failed = posix_spawn_file_actions_addchdir_np(actions.Get(), FamilyDirectory()->c_str());
    if (failed != 0) throw FileFault(program, "cannot be started", failed);
  }
  pid_t child = 0;
  const int failed =
      posix_spawn(&child, program.c_str(), actions.Get(), nullptr, arguments.data(), environment.data());
  if (failed != 0) {
    throw Fault(FaultKind::file, program_name + ": the program cannot be started (" + program.string() +
                                     "): " + std::generic_category().message(failed));
  }
  return child;
}

/// True when the child has ended; what it ended with is its own affair.
bool HasEnded(pid_t child, int options) {
  for (;;) {
    const pid_t result = ::waitpid(child, nullptr, options);
    if (result >= 0) return result == child;
    if (errno == ECHILD) return true;  // reaped elsewhere, for instance because SIGCHLD is ignored
    if (errno != EINTR) {
      throw Fault(FaultKind::file, "cannot wait for a program: " + std::generic_category().message(errno));
    }
  }
}

}  // namespace

void RunAndWait(std::string_view command_line, WindowStyle style) {
  Services.Launch(command_line, style, false);
  RunPendingEvents();
}

void RunAndWaitPoll(std::string_view command_line, WindowStyle style) {
  Services.Launch(command_line, style, true);
}

void LaunchProgram(std::string_view command_line, WindowStyle /*style*/, bool polling) {
  const pid_t child = Start(command_line);
  if (!polling) {
    HasEnded(child, 0);
    return;
  }
  while (!HasEnded(child, WNOHANG)) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    RunPendingEvents();
  }
}

void RunPendingEvents() { Services.PendingEvents(); }

}  // namespace rbt
