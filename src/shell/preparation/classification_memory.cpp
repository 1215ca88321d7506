// SPDX-License-Identifier: MIT
#include "shell/preparation/classification_memory.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <system_error>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "platform/files/file_in_work.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "platform/pass_over_faults.h"
#include "platform/system/paths.h"

namespace rbt {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPrefix = "classified-";

/// Which program this is: every other build works the statements out in its own way. Empty where the system
/// does not tell.
std::string ProgramStamp() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  if (error) return {};
  const auto size = fs::file_size(program, error);
  if (error) return {};
  const auto written = fs::last_write_time(program, error);
  if (error) return {};
  return fmt::format("{} {} {}", program.string(), size, written.time_since_epoch().count());
}

std::string TextOf(const FileState& state) {
  return fmt::format("changes {} device {} file {} size {} written {} touched {}", state.changes,
                     state.device, state.file, state.size, state.written, state.touched);
}

/// Beside what it names it tells nothing: the whole text is compared.
std::string NameOf(const FileState& state, const std::string& program, const std::string& statements) {
  const std::hash<std::string> number;
  return fmt::format("{}{:x}-{:x}-{:x}", kPrefix, state.device, state.file, number(program + statements));
}

/// True of a memory that nobody will ask for: long unused, or of a schedule that is gone.
bool IsIdle(const fs::path& memory, fs::file_time_type now) {
  std::error_code error;
  const auto written = fs::last_write_time(memory, error);
  if (error) return false;
  if (now - written > ClassificationMemory::kKeptFor) return true;
  std::string schedule;
  return std::getline(std::ifstream(memory, std::ios::binary), schedule) && !fs::exists(schedule, error) &&
         !error;
}

/// Somebody else may have taken one away meanwhile, or may not let it go: it is gone with another turn.
void DropIdleMemories(fs::file_time_type now) {
  std::error_code passed_over;
  for (const fs::directory_entry& entry : fs::directory_iterator(CacheFolder(), passed_over)) {
    const bool is_memory = entry.path().filename().native().starts_with(kPrefix);
    if (is_memory && IsIdle(entry.path(), now)) fs::remove(entry.path(), passed_over);
  }
}

}  // namespace

ClassificationMemory::ClassificationMemory(const Database& schedule,
                                           std::span<const std::string> statements) {
  if (schedule.IsPrivateCopy()) return;
  const std::optional<FileState> state = schedule.State();
  const std::string program = ProgramStamp();
  // The state is asked for by the name, the rows are read from the file that was opened.
  if (!state || program.empty() || schedule.HasMoved()) return;
  const std::string all = fmt::format("{}", fmt::join(statements, "\n"));
  file_ = CacheFolder() / NameOf(*state, program, all);
  std::error_code error;
  const fs::path name = fs::canonical(schedule.File(), error);
  if (error) file_.clear();
  text_ = fmt::format("{}\n{}\n{}\n{}\n{}\n", name.string(), TextOf(*state), program,
                      Database::StoreVersion(), all);
  touched_ = std::max(state->written, state->touched);
}

bool ClassificationMemory::Holds() const {
  if (file_.empty()) return false;
  std::ifstream in(file_, std::ios::binary);
  if (!in) return false;
  const std::string found{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  return !in.bad() && found == text_;
}

void ClassificationMemory::Note(fs::file_time_type now) const {
  if (file_.empty()) return;
  const auto since_1970 = fs::file_time_type::clock::to_sys(now).time_since_epoch();
  if (since_1970 < std::chrono::nanoseconds(touched_) + kSettlingTime || Holds()) return;
  PassOverFaults(FaultKind::file, [&] {
    MakeFolders(CacheFolder());
    if (!TakesFiles(CacheFolder())) return;
    FileInWork memory(file_);
    memory.Write(text_);
    memory.Replace();
    DropIdleMemories(now);
  });
}

}  // namespace rbt
