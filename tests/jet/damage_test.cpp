// SPDX-License-Identifier: MIT
// Damaged copies of every sample file: reading them and checking them ends, with a message or without, never
// with a crash. Each is damaged in memory.
#include <algorithm>
#include <ctime>
#include <random>

#include <gtest/gtest.h>

#include "jet/check.h"
#include "jet/index.h"
#include "jet/samples.h"
#include "jet/table.h"
#include "jet/usage_map.h"
#include "platform/fault.h"
#include "support/sample.h"

namespace rbt::jet {
namespace {

using Image = std::vector<unsigned char>;

/// Seconds of the processor, whatever else the machine does; a sound sample takes milliseconds.
constexpr double kLongest = 5;

double ProcessorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

/// Reads all there is; how many faults ended a part of it.
int ReadAll(JetFile& file) {
  int faults = 0;
  const auto guarded = [&](auto step) {
    try {
      step();
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::file);
      EXPECT_EQ(std::string(fault.what()).find("copy.mdb"), 0U) << fault.what();
      ++faults;
    }
  };
  guarded([&] {
    for (const CatalogEntry& entry : ReadCatalog(file)) {
      if (entry.kind != CatalogEntry::Kind::table) continue;
      guarded([&] {
        const TableDefinition table = ReadTableDefinition(file, entry.id & 0xFFFFFF);
        guarded([&] { ScanTable(file, table, [](RowPointer, std::vector<Value>&) {}); });
        for (const PhysicalIndex& index : table.physical_indexes) {
          guarded([&] { WalkIndex(file, index, [](const IndexEntry&) {}); });
        }
      });
    }
  });
  return faults;
}

/// Opens, reads and checks a copy. True when the damage was noticed anywhere.
bool Notices(Image image) {
  const double start = ProcessorSeconds();
  bool noticed = false;
  try {
    const auto file = JetFile::FromBytes(std::move(image), "copy.mdb");
    noticed = ReadAll(*file) > 0;
    const CheckReport report = CheckFile(*file);
    noticed = noticed || !report.damages.empty() || !report.warnings.empty();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::file) << fault.what();
    EXPECT_EQ(std::string(fault.what()).find("copy.mdb: "), 0U) << fault.what();
    noticed = true;
  }
  EXPECT_LT(ProcessorSeconds() - start, kLongest);
  return noticed;
}

std::size_t PageSize(const Image& image) { return image[0x14] == 0 ? 2048 : 4096; }

bool IsFree(const Image& image, std::uint32_t page) {
  const auto file = JetFile::FromBytes(image, "copy.mdb");
  for (const std::uint32_t free : PagesOfUsageMap(*file, kFreePages)) {
    if (free == page) return true;
  }
  return false;
}

class DamagedCopies : public ::testing::TestWithParam<std::string> {
 protected:
  const Image image_ = test::BytesOf(test::Sample(GetParam()));
};

TEST_P(DamagedCopies, TheSampleItselfIsSound) {
  const auto file = JetFile::FromBytes(image_, "copy.mdb");
  const CheckReport report = CheckFile(*file);
  EXPECT_EQ(report.damages, std::vector<std::string>());
  EXPECT_EQ(report.warnings, std::vector<std::string>());
  EXPECT_FALSE(report.lines.empty());
}

TEST_P(DamagedCopies, AZeroedPageIsNoticed) {
  const std::size_t size = PageSize(image_);
  const auto step = static_cast<std::size_t>(test::SampleStep(7));
  for (std::size_t page = 0; page < image_.size() / size; page += step) {
    SCOPED_TRACE(page);
    Image copy = image_;
    const auto begin = copy.begin() + static_cast<std::ptrdiff_t>(page * size);
    const bool was_zero =
        std::all_of(begin, begin + static_cast<std::ptrdiff_t>(size), [](auto b) { return b == 0; });
    std::fill_n(begin, size, static_cast<unsigned char>(0));
    const bool noticed = Notices(std::move(copy));
    if (!noticed && !was_zero) {
      EXPECT_TRUE(IsFree(image_, static_cast<std::uint32_t>(page)));
    }
  }
}

TEST_P(DamagedCopies, AFileCutOffIsNoticed) {
  const std::size_t size = PageSize(image_);
  const std::size_t step = size / 2 * static_cast<std::size_t>(test::SampleStep(7));
  for (std::size_t length = 0; length < image_.size(); length += step) {
    SCOPED_TRACE(length);
    Image copy(image_.begin(), image_.begin() + static_cast<std::ptrdiff_t>(length));
    const bool noticed = Notices(std::move(copy));
    if (length % size != 0 || length <= 3 * size) {
      EXPECT_TRUE(noticed);
    }
  }
}

TEST_P(DamagedCopies, FlippedBitsNeverCrash) {
  std::mt19937 random(20261121);  // NOLINT: the same flips in every run
  for (int copy_number = 0; copy_number < 150 / test::SampleStep(10); ++copy_number) {
    Image copy = image_;
    const int flips = copy_number % 3 == 0 ? 1 : 40;
    for (int flip = 0; flip < flips; ++flip) {
      copy[random() % copy.size()] ^= static_cast<unsigned char>(1U << (random() % 8));
    }
    Notices(std::move(copy));
  }
}

/// Bits of the heads of pages, where the structure stands.
TEST_P(DamagedCopies, FlippedBitsInTheHeadsOfPagesNeverCrash) {
  std::mt19937 random(932);  // NOLINT: the same flips in every run
  const std::size_t size = PageSize(image_);
  for (int copy_number = 0; copy_number < 300 / test::SampleStep(10); ++copy_number) {
    Image copy = image_;
    const std::size_t page = random() % (copy.size() / size);
    copy[page * size + random() % 80] ^= static_cast<unsigned char>(1U << (random() % 8));
    Notices(std::move(copy));
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, DamagedCopies, ::testing::ValuesIn(test::ReadableSamples()),
                         [](const auto& sample) { return test::TestNameOf(sample.param); });

}  // namespace
}  // namespace rbt::jet
