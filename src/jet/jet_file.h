// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "jet/page_view.h"
#include "jet/text.h"

namespace rbt::jet {

enum class JetVersion { jet3, jet4 };

/// The page of the catalog's definition.
inline constexpr std::uint32_t kCatalogPage = 2;

/// Byte 0 of a page.
enum class PageType : std::uint8_t {
  header = 0,
  data = 1,
  table_definition = 2,
  index_branch = 3,
  index_leaf = 4,
  usage_bitmap = 5,
};

/// Offsets and sizes that differ between the two formats.
struct Layout {
  std::size_t page_size;
  std::size_t data_row_count;  ///< on a data page; the row offsets follow it
  std::size_t tdef_row_count;  ///< in a table definition
  std::size_t tdef_autonumber;
  std::size_t tdef_table_type;
  std::size_t tdef_variable_columns;
  std::size_t tdef_columns;
  std::size_t tdef_logical_indexes;
  std::size_t tdef_real_indexes;
  std::size_t tdef_owned_pages;
  std::size_t tdef_free_pages;
  std::size_t tdef_index_counts;  ///< first record of the physical indexes' row counts
  std::size_t index_count_size;
  std::size_t column_size;
  std::size_t column_number;
  std::size_t column_variable_slot;
  std::size_t column_ordinal;  ///< 0 where the records stand in the order of the fields
  std::size_t column_sort_order;
  std::size_t column_flags;
  std::size_t column_extra_flags;  ///< 0 where the format has none
  std::size_t column_fixed_offset;
  std::size_t column_length;
  std::size_t real_index_size;
  std::size_t real_index_columns;  ///< first of the ten (column, order) pairs
  std::size_t real_index_usage;
  std::size_t real_index_root;
  std::size_t real_index_flags;
  std::size_t logical_index_size;
  std::size_t logical_index_start;  ///< of index number, physical number, ...
  std::size_t index_previous;       ///< on an index page, followed by next and tail
  std::size_t index_prefix_length;
  std::size_t index_bitmap;
  std::size_t index_entries;
};

/// A real Jet file, opened for reading only. A file that is no Jet file, is of a later engine, has a password
/// or coded pages, or whose length is no whole number of pages throws `Fault` of kind `file`, naming file and
/// cause.
class JetFile {
 public:
  static std::unique_ptr<JetFile> Open(const std::filesystem::path& file);
  /// Bytes in memory in place of a file; `name` stands for it in messages.
  static std::unique_ptr<JetFile> FromBytes(std::vector<unsigned char> bytes, std::string name);

  JetFile(const JetFile&) = delete;
  JetFile& operator=(const JetFile&) = delete;
  ~JetFile();

  JetVersion Version() const { return version_; }
  const Layout& layout() const { return *layout_; }
  const std::string& Name() const { return name_; }
  std::uint32_t PageCount() const { return page_count_; }
  std::uint16_t CodePage() const { return code_page_; }
  /// What the commit bytes of the file's users tell: that a commit was under way when the file was last
  /// written, that a user met damage. Empty when it was closed cleanly.
  const std::vector<std::string>& CommitNotes() const { return commit_notes_; }

  /// The whole page; one behind the end of the file is damage. The view stays valid while fewer than 60 other
  /// pages are read.
  PageView Page(std::uint32_t number);
  /// As `Page`, and of the given type.
  PageView Page(std::uint32_t number, PageType type);

  /// Text bytes in the file's encoding: UTF-16LE (compressed when it says so) in Jet 4, the code page in
  /// Jet 3.
  DecodedText TextOfBytes(std::span<const unsigned char> bytes) const;

  /// The data pages whose owner pointer is `owner`, ascending; freed pages keep theirs. The first call reads
  /// the whole file.
  const std::vector<std::uint32_t>& DataPagesPointingTo(std::uint32_t owner);

  [[noreturn]] void Damaged(std::uint32_t page, const std::string& cause) const;

 private:
  JetFile() = default;
  void ReadHeader();
  void ReadCommitBytes(const PageView& header);
  void ReadPage(std::uint32_t number, unsigned char* to);

  struct Cached {
    std::vector<unsigned char> bytes;
    std::list<std::uint32_t>::iterator age;
  };

  std::string name_;
  std::FILE* handle_ = nullptr;
  std::vector<unsigned char> memory_;
  JetVersion version_ = JetVersion::jet4;
  const Layout* layout_ = nullptr;
  std::uint32_t page_count_ = 0;
  std::uint16_t code_page_ = 1252;
  std::vector<std::string> commit_notes_;
  std::unordered_map<std::uint32_t, Cached> cache_;
  std::list<std::uint32_t> ages_;  ///< least recently used first
  std::optional<std::unordered_map<std::uint32_t, std::vector<std::uint32_t>>> data_pages_;  ///< by owner
};

/// True when the bytes 4 to 18 of the file read "Standard Jet DB".
bool IsJetFile(const std::filesystem::path& file);

}  // namespace rbt::jet
