// SPDX-License-Identifier: MIT
#include "cost.h"

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <spawn.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace rbt::bench {

namespace {

constexpr double kKibibytesPerMebibyte = 1024.0;

double SecondsNow() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double ProcessorSecondsNow() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

/// From now on the greatest memory is counted anew.
void ForgetPeak() {
  if (!(std::ofstream("/proc/self/clear_refs") << '5' << std::flush)) {
    throw std::runtime_error("/proc/self/clear_refs cannot be written: the peak memory is not known");
  }
}

double PeakMb() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmHWM:")) return std::stod(line.substr(6)) / kKibibytesPerMebibyte;
  }
  return 0.0;
}

std::string Text(const Command& command) {
  std::string text;
  for (const std::string& word : command) text += (text.empty() ? "" : " ") + word;
  return text;
}

/// Without a copy of this program in between, which would cost more than a small command.
pid_t Start(const Command& command) {
  std::vector<char*> words;
  words.reserve(command.size() + 1);
  for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
  words.push_back(nullptr);
  posix_spawn_file_actions_t to_nowhere;
  posix_spawn_file_actions_init(&to_nowhere);
  posix_spawn_file_actions_addopen(&to_nowhere, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const int error = posix_spawn(&child, words[0], &to_nowhere, nullptr, words.data(), environ);
  posix_spawn_file_actions_destroy(&to_nowhere);
  if (error != 0) throw std::runtime_error("cannot be started: " + Text(command));
  return child;
}

rusage Await(pid_t child, const Command& command) {
  int status = 0;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    throw std::runtime_error("failed: " + Text(command));
  }
  return usage;
}

}  // namespace

Cost CostOf(const std::function<void()>& action) {
  ForgetPeak();
  const double wall = SecondsNow();
  const double processor = ProcessorSecondsNow();
  action();
  return {SecondsNow() - wall, ProcessorSecondsNow() - processor, PeakMb()};
}

Cost CostOf(const std::vector<Command>& at_once) {
  Cost cost;
  const double start = SecondsNow();
  std::vector<pid_t> children;
  children.reserve(at_once.size());
  for (const Command& command : at_once) children.push_back(Start(command));
  for (std::size_t i = 0; i < at_once.size(); ++i) {
    const rusage usage = Await(children[i], at_once[i]);
    cost.processor += Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
  }
  cost.wall = SecondsNow() - start;
  return cost;
}

Counts CountsOf(const Command& command, const std::filesystem::path& scratch) {
  setenv("LD_PRELOAD", RBTALLY_COUNTER, 1);
  setenv("RBTALLY_BENCH_COUNTS", scratch.c_str(), 1);
  const pid_t child = Start(command);
  unsetenv("LD_PRELOAD");
  unsetenv("RBTALLY_BENCH_COUNTS");
  Await(child, command);
  Counts counts;
  double peak_kb = 0.0;
  if (!(std::ifstream(scratch) >> counts.syncs >> counts.bytes >> peak_kb)) {
    throw std::runtime_error("nothing was counted: " + Text(command));
  }
  std::filesystem::remove(scratch);
  counts.peak_mb = peak_kb / kKibibytesPerMebibyte;
  return counts;
}

}  // namespace rbt::bench
