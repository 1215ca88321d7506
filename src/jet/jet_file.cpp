// SPDX-License-Identifier: MIT
#include "jet/jet_file.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <numeric>
#include <sys/stat.h>
#include <system_error>

#include <fmt/format.h>

#include "jet/data_page.h"
#include "platform/fault.h"

namespace rbt::jet {

namespace {

constexpr std::string_view kSignature = "Standard Jet DB";
constexpr std::size_t kSignatureAt = 4;
constexpr std::size_t kVersionAt = 0x14;
constexpr std::size_t kCodedAt = 0x18;
constexpr std::size_t kCodePageAt = 0x3C;
constexpr std::size_t kPageKeyAt = 0x3E;
constexpr std::size_t kPasswordAt = 0x42;
constexpr std::size_t kCreationDateAt = 0x72;
constexpr std::size_t kCachedPages = 64;

constexpr Layout kJet3{.page_size = 2048,
                       .data_row_count = 8,
                       .tdef_row_count = 12,
                       .tdef_autonumber = 16,
                       .tdef_table_type = 20,
                       .tdef_variable_columns = 23,
                       .tdef_columns = 25,
                       .tdef_logical_indexes = 27,
                       .tdef_real_indexes = 31,
                       .tdef_owned_pages = 35,
                       .tdef_free_pages = 39,
                       .tdef_index_counts = 43,
                       .index_count_size = 8,
                       .column_size = 18,
                       .column_number = 1,
                       .column_variable_slot = 3,
                       .column_ordinal = 5,
                       .column_sort_order = 9,
                       .column_flags = 13,
                       .column_extra_flags = 0,
                       .column_fixed_offset = 14,
                       .column_length = 16,
                       .real_index_size = 39,
                       .real_index_columns = 0,
                       .real_index_usage = 30,
                       .real_index_root = 34,
                       .real_index_flags = 38,
                       .logical_index_size = 20,
                       .logical_index_start = 0,
                       .index_previous = 8,
                       .index_prefix_length = 0x14,
                       .index_bitmap = 0x16,
                       .index_entries = 0xF8};

constexpr Layout kJet4{.page_size = 4096,
                       .data_row_count = 12,
                       .tdef_row_count = 16,
                       .tdef_autonumber = 20,
                       .tdef_table_type = 40,
                       .tdef_variable_columns = 43,
                       .tdef_columns = 45,
                       .tdef_logical_indexes = 47,
                       .tdef_real_indexes = 51,
                       .tdef_owned_pages = 55,
                       .tdef_free_pages = 59,
                       .tdef_index_counts = 63,
                       .index_count_size = 12,
                       .column_size = 25,
                       .column_number = 5,
                       .column_variable_slot = 7,
                       .column_ordinal = 0,
                       .column_sort_order = 11,
                       .column_flags = 15,
                       .column_extra_flags = 16,
                       .column_fixed_offset = 21,
                       .column_length = 23,
                       .real_index_size = 52,
                       .real_index_columns = 4,
                       .real_index_usage = 34,
                       .real_index_root = 38,
                       .real_index_flags = 46,
                       .logical_index_size = 28,
                       .logical_index_start = 4,
                       .index_previous = 0xC,
                       .index_prefix_length = 0x18,
                       .index_bitmap = 0x1B,
                       .index_entries = 0x1E0};

/// RC4 over part of the header, with the key that every file shares.
void DecodeHeader(std::span<unsigned char> coded) {
  constexpr std::array<unsigned char, 4> kKey{0xC7, 0xDA, 0x39, 0x6B};
  std::array<unsigned char, 256> state{};
  std::iota(state.begin(), state.end(), static_cast<unsigned char>(0));
  unsigned j = 0;
  for (unsigned i = 0; i < 256; ++i) {
    j = (j + state[i] + kKey[i % kKey.size()]) & 0xFF;
    std::swap(state[i], state[j]);
  }
  unsigned i = 0;
  j = 0;
  for (unsigned char& byte : coded) {
    i = (i + 1) & 0xFF;
    j = (j + state[i]) & 0xFF;
    std::swap(state[i], state[j]);
    byte = static_cast<unsigned char>(byte ^ state[(state[i] + state[j]) & 0xFF]);
  }
}

/// Jet 3 keeps a password plain; Jet 4 masks it with the day of creation, which stands alone where there is
/// none. Where the mask begins is not asked: some writers begin it two bytes later.
bool HasPassword(const PageView& header, JetVersion version) {
  if (version == JetVersion::jet3) {
    for (std::size_t i = 0; i < 20; ++i) {
      if (header.U8(kPasswordAt + i) != 0) return true;
    }
    return false;
  }
  const double created = header.F64(kCreationDateAt);
  const auto day = created > 0 && created < 1e9 ? static_cast<std::uint32_t>(created) : 0U;
  for (std::size_t i = 0; i < 40; i += 2) {
    const std::uint16_t unit = header.U16(kPasswordAt + i);
    if (unit != 0 && unit != (day & 0xFFFF) && unit != (day >> 16)) return true;
  }
  return false;
}

[[noreturn]] void Refuse(const std::string& file, const std::string& cause) {
  throw Fault(FaultKind::file, file + ": " + cause);
}

}  // namespace

std::unique_ptr<JetFile> JetFile::Open(const std::filesystem::path& file) {
  std::unique_ptr<JetFile> jet(new JetFile);
  jet->name_ = file.string();
  struct stat info {};
  if (stat(file.c_str(), &info) != 0) Refuse(jet->name_, std::strerror(errno));
  if (!S_ISREG(info.st_mode)) Refuse(jet->name_, "not a file");
  jet->handle_ = std::fopen(file.c_str(), "rb");
  if (jet->handle_ == nullptr) Refuse(jet->name_, std::strerror(errno));
  jet->ReadHeader();
  return jet;
}

std::unique_ptr<JetFile> JetFile::FromBytes(std::vector<unsigned char> bytes, std::string name) {
  std::unique_ptr<JetFile> jet(new JetFile);
  jet->name_ = std::move(name);
  jet->memory_ = std::move(bytes);
  jet->ReadHeader();
  return jet;
}

JetFile::~JetFile() {
  if (handle_ != nullptr) std::fclose(handle_);
}

void JetFile::ReadHeader() {
  std::uint64_t length = memory_.size();
  if (handle_ != nullptr) {
    if (std::fseek(handle_, 0, SEEK_END) != 0) Refuse(name_, std::strerror(errno));
    length = static_cast<std::uint64_t>(std::ftell(handle_));
  }
  if (length < kJet3.page_size) Refuse(name_, "too short for a Jet file");
  layout_ = &kJet3;
  page_count_ = 1;
  std::vector<unsigned char> start(kJet3.page_size);
  ReadPage(0, start.data());
  if (std::memcmp(start.data() + kSignatureAt, kSignature.data(), kSignature.size()) != 0) {
    Refuse(name_, std::memcmp(start.data() + kSignatureAt, "Standard ACE DB", 15) == 0
                      ? "a file of a later engine, which is not read"
                      : "not a Jet file");
  }
  const unsigned char version = start[kVersionAt];
  if (version > 1)
    Refuse(name_, fmt::format("engine version {} is later than Jet 4 and is not read", version));
  version_ = version == 0 ? JetVersion::jet3 : JetVersion::jet4;
  layout_ = version == 0 ? &kJet3 : &kJet4;
  if (length % layout_->page_size != 0) {
    Refuse(name_, fmt::format("{} bytes are no whole number of pages of {}: the file is cut off", length,
                              layout_->page_size));
  }
  if (length / layout_->page_size > 0xFFFFFF) Refuse(name_, "more pages than a Jet file can hold");
  page_count_ = static_cast<std::uint32_t>(length / layout_->page_size);

  std::vector<unsigned char> page(layout_->page_size);
  ReadPage(0, page.data());
  DecodeHeader(std::span(page).subspan(kCodedAt, version_ == JetVersion::jet3 ? 126 : 128));
  const PageView header(page, &name_, 0);
  if (header.U32(kPageKeyAt) != 0)
    Refuse(name_, "page 0: encrypted pages or a damaged header; open it in its own program and decrypt it");
  if (HasPassword(header, version_))
    Refuse(name_, "page 0: password or damaged header; open it in its own program and remove the password");
  code_page_ = header.U16(kCodePageAt);
  if (version_ == JetVersion::jet3 && !KnowsCodePage(code_page_)) {
    Refuse(name_, fmt::format("page 0: its code page {} is not known on this machine", code_page_));
  }
  ReadCommitBytes(header);
}

/// A user's pair counts his commits from 0x100 on.
void JetFile::ReadCommitBytes(const PageView& header) {
  struct Note {
    std::uint16_t pair;
    std::string_view text;
  };
  constexpr Note kNotes[] = {
      {0, "page 0: a commit was under way when it was last written (commit bytes 00 00)"},
      {1, "page 0: a user of it met damage (commit bytes 01 00)"},
  };
  const std::size_t commits = version_ == JetVersion::jet3 ? 0x600 : 0xE00;
  for (const Note& note : kNotes) {
    for (std::size_t at = commits; at < commits + 512; at += 2) {
      if (header.U16(at) != note.pair) continue;
      commit_notes_.push_back(fmt::format("{}: {}", name_, note.text));
      break;
    }
  }
}

void JetFile::ReadPage(std::uint32_t number, unsigned char* to) {
  const std::size_t size = layout_->page_size;
  const std::uint64_t at = static_cast<std::uint64_t>(number) * size;
  if (handle_ == nullptr) {
    if (at + size > memory_.size()) Damaged(number, "the file ends before it");
    std::copy_n(memory_.data() + at, size, to);
    return;
  }
  errno = 0;
  const bool found = fseeko(handle_, static_cast<off_t>(at), SEEK_SET) == 0;
  if (found && std::fread(to, 1, size, handle_) == size) return;
  if (found && std::ferror(handle_) == 0) Damaged(number, "cannot be read");
  const std::string cause = std::generic_category().message(errno);
  throw Fault(FaultKind::storage, fmt::format("{}: page {}: cannot be read: {}", name_, number, cause));
}

PageView JetFile::Page(std::uint32_t number) {
  if (number >= page_count_)
    Damaged(number, fmt::format("is not in the file, which has {} pages", page_count_));
  if (handle_ == nullptr) {
    const std::size_t size = layout_->page_size;
    return {std::span(memory_).subspan(number * size, size), &name_, number};
  }
  auto found = cache_.find(number);
  if (found != cache_.end()) {
    ages_.splice(ages_.end(), ages_, found->second.age);
    return {found->second.bytes, &name_, number};
  }
  std::vector<unsigned char> bytes;
  if (cache_.size() >= kCachedPages) {
    auto oldest = cache_.find(ages_.front());
    bytes = std::move(oldest->second.bytes);
    cache_.erase(oldest);
    ages_.pop_front();
  }
  bytes.resize(layout_->page_size);
  ReadPage(number, bytes.data());
  ages_.push_back(number);
  Cached& cached = cache_[number];
  cached.bytes = std::move(bytes);
  cached.age = std::prev(ages_.end());
  return {cached.bytes, &name_, number};
}

PageView JetFile::Page(std::uint32_t number, PageType type) {
  const PageView page = Page(number);
  if (page.U8(0) != static_cast<std::uint8_t>(type)) {
    page.Damaged(fmt::format("is of type {} where type {} is due", page.U8(0), static_cast<int>(type)));
  }
  return page;
}

const std::vector<std::uint32_t>& JetFile::DataPagesPointingTo(std::uint32_t owner) {
  if (!data_pages_) {
    auto& sorted = data_pages_.emplace();
    for (std::uint32_t number = 1; number < page_count_; ++number) {
      const PageView page = Page(number);
      if (page.U8(0) == static_cast<std::uint8_t>(PageType::data)) sorted[OwnerOf(page)].push_back(number);
    }
  }
  static const std::vector<std::uint32_t> kNone;
  const auto found = data_pages_->find(owner);
  return found == data_pages_->end() ? kNone : found->second;
}

DecodedText JetFile::TextOfBytes(std::span<const unsigned char> bytes) const {
  return version_ == JetVersion::jet4 ? TextOfJet4(bytes) : TextOfCodePage(bytes, code_page_);
}

void JetFile::Damaged(std::uint32_t page, const std::string& cause) const {
  throw Fault(FaultKind::file, fmt::format("{}: page {}: {}", name_, page, cause));
}

bool IsJetFile(const std::filesystem::path& file) {
  std::FILE* handle = std::fopen(file.c_str(), "rb");
  if (handle == nullptr) return false;
  std::array<char, kSignatureAt + kSignature.size()> start{};
  const bool is_jet = std::fread(start.data(), 1, start.size(), handle) == start.size() &&
                      std::memcmp(start.data() + kSignatureAt, kSignature.data(), kSignature.size()) == 0;
  std::fclose(handle);
  return is_jet;
}

}  // namespace rbt::jet
