// SPDX-License-Identifier: MIT
// Loaded before a program (LD_PRELOAD): counts what it syncs and writes, standard output aside, and leaves
// "SYNCS BYTES PEAK" in the file that RBTALLY_BENCH_COUNTS names, the greatest resident memory in kilobytes.
#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <string_view>
#include <sys/uio.h>
#include <unistd.h>

namespace {

std::atomic<long> syncs{0};
std::atomic<long> bytes{0};

/// The library's own function behind ours.
template <typename Function>
Function* Behind(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

template <typename Count>
Count Written(int file, Count written) {
  if (file > STDERR_FILENO && written > 0) bytes += written;
  return written;
}

long PeakKilobytes() {
  long peak = 0;
  std::FILE* const status = std::fopen("/proc/self/status", "r");
  if (status == nullptr) return peak;
  std::array<char, 256> line{};
  while (std::fgets(line.data(), static_cast<int>(line.size()), status) != nullptr) {
    constexpr std::string_view kPeak = "VmHWM:";
    if (std::string_view(line.data()).starts_with(kPeak))
      peak = std::strtol(&line[kPeak.size()], nullptr, 10);
  }
  std::fclose(status);
  return peak;
}

struct AtTheEnd {
  ~AtTheEnd() {
    const char* const name = std::getenv("RBTALLY_BENCH_COUNTS");
    const long peak = PeakKilobytes();
    std::FILE* const file = name == nullptr ? nullptr : std::fopen(name, "w");
    if (file == nullptr) return;
    std::fprintf(file, "%ld %ld %ld\n", syncs.load(), bytes.load(), peak);
    std::fclose(file);
  }
} at_the_end;

}  // namespace

extern "C" {

int fsync(int file) {
  ++syncs;
  return Behind<decltype(fsync)>("fsync")(file);
}

int fdatasync(int file) {
  ++syncs;
  return Behind<decltype(fdatasync)>("fdatasync")(file);
}

ssize_t write(int file, const void* from, size_t count) {
  return Written(file, Behind<decltype(write)>("write")(file, from, count));
}

ssize_t writev(int file, const iovec* from, int count) {
  return Written(file, Behind<decltype(writev)>("writev")(file, from, count));
}

ssize_t pwrite(int file, const void* from, size_t count, off_t at) {
  return Written(file, Behind<decltype(pwrite)>("pwrite")(file, from, count, at));
}

ssize_t pwrite64(int file, const void* from, size_t count, off64_t at) {
  return Written(file, Behind<decltype(pwrite64)>("pwrite64")(file, from, count, at));
}

}  // extern "C"
