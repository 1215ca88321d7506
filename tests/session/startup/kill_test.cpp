// SPDX-License-Identifier: MIT
#include <csignal>
#include <ctime>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "session/startup/startup.h"
#include "support/sample.h"
#include "support/site_fixture.h"

namespace rbt::test {
namespace {

constexpr int kRows = 20000;
constexpr std::int64_t kMoments = 40;

void SleepNanoseconds(std::int64_t nanoseconds) {
  const timespec time{nanoseconds / 1'000'000'000, nanoseconds % 1'000'000'000};
  nanosleep(&time, nullptr);
}

std::int64_t NowNanoseconds() {
  timespec time{};
  clock_gettime(CLOCK_MONOTONIC, &time);
  return time.tv_sec * 1'000'000'000 + time.tv_nsec;
}

/// Starts a load in a process of its own.
pid_t StartLoad() {
  const pid_t child = fork();
  if (child != 0) return child;
  try {
    LoadSite({});
  } catch (...) {
    _exit(1);
  }
  _exit(0);
}

int EndOf(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) continue;
  return status;
}

class KilledLoad : public testing::Test {
 protected:
  void SetUp() override {
    const Cells row{{"太さ", 19}, {"形状No", 138}, {"伸切寸", 7000}, {"伸本定", 1}, {"寸法1", "7000"}};
    site_.AddRows(std::vector<Cells>(kRows, row));
    std::filesystem::copy_file(site_.Data(kScheduleFile), fresh_);
  }

  void RestoreSite() const {
    const auto file = site_.Data(kScheduleFile);
    std::filesystem::remove(file.string() + "-journal");
    std::filesystem::copy_file(fresh_, file, std::filesystem::copy_options::overwrite_existing);
  }
  std::int64_t Count(const std::string& condition) const {
    const auto rows =
        site_.Rows(kScheduleFile, "SELECT COUNT(*) AS 件数 FROM 加工テーブル WHERE " + condition);
    return std::get<std::int64_t>(rows.front().front());
  }
  /// How long one load takes here, from its start on.
  std::int64_t Duration() const {
    const std::int64_t begin = NowNanoseconds();
    EXPECT_EQ(EndOf(StartLoad()), 0);
    return NowNanoseconds() - begin;
  }

  SiteFixture site_;
  std::filesystem::path fresh_ = site_.Root() / "fresh";
};

TEST_F(KilledLoad, LeavesTheScheduleAsBeforeOrAsAfterTheClassification) {
  const std::int64_t duration = Duration();
  ASSERT_EQ(Count("予備3 = 1 AND 予備2 = 4 AND 予備5 = '7000,,,,,,,,,,'"), kRows);
  int before = 0;
  int after = 0;
  for (std::int64_t moment = 0; moment <= kMoments; moment += SampleStep(8)) {
    RestoreSite();
    const pid_t child = StartLoad();
    SleepNanoseconds(duration * moment / kMoments);
    // The last one comes to its end, however busy the machine is.
    if (moment < kMoments) kill(child, SIGKILL);
    EndOf(child);
    const std::int64_t untouched = Count("IsNull(予備3) AND IsNull(予備2) AND IsNull(予備5)");
    const std::int64_t classified = Count("予備3 = 1 AND 予備2 = 4 AND 予備5 = '7000,,,,,,,,,,'");
    EXPECT_TRUE(untouched == kRows || classified == kRows)
        << "killed at " << moment << "/" << kMoments << ": " << untouched << " untouched, " << classified
        << " classified";
    (classified == kRows ? after : before) += 1;
  }
  EXPECT_GT(before, 0);
  EXPECT_GT(after, 0);
}

}  // namespace
}  // namespace rbt::test
