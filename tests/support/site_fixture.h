// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/numbers/value.h"
#include "platform/system/message.h"
#include "platform/system/process.h"
#include "store/database.h"
#include "support/root_folder.h"

namespace rbt::test {

/// The fields of a row by their names; fields that are not named stay null.
using Cells = std::vector<std::pair<std::string, Value>>;

struct ShownMessage {
  std::string text;
  std::string title;
  MessageButtons buttons = MessageButtons::ok;
};

struct Launch {
  std::string command_line;
  WindowStyle style = WindowStyle::normal;
  bool polling = false;
};

/// Files of the fixture's root, by their names in DATA.
inline constexpr const char* kScheduleFile = "GENBA001.MDB";
inline constexpr const char* kCompanionFile = "HIROI001.mdb";
inline constexpr const char* kMasterFile = "SORANO.MDB";
inline constexpr const char* kFixedStockFile = "MTTeijyaku.mdb";
inline constexpr const char* kTemplateFile = "JSyukeiORG.mdb";
inline constexpr const char* kSteelFile = "STEEL.INI";
inline constexpr const char* kNextPrgFile = "NEXTPRG.INI";

/// A complete small root folder in force for the life of the object: one site without schedule rows, its
/// companion file, the master file with the site's row (of no long name), grades 1 to 10, parts and one
/// client, an empty fixed stock table, the archive template, both INI files. All global state starts and ends
/// as at program start, the clock stands at 2026-11-21 09:00:00, messages and starts of programs are kept
/// instead of shown and run.
class SiteFixture {
 public:
  SiteFixture();
  SiteFixture(const SiteFixture&) = delete;
  SiteFixture& operator=(const SiteFixture&) = delete;
  ~SiteFixture();

  const RootFolder& Root() const { return root_; }
  std::filesystem::path Data(const std::string& name) const { return root_.Data(name); }

  /// Appends rows to the schedule. Where they are not named, `行No` and `行` count up and `頁` is 1.
  void AddRow(const Cells& cells) { AddRows({cells}); }
  void AddRows(const std::vector<Cells>& rows);
  /// Appends one row to any table of a file of DATA.
  void Add(const std::string& file, std::string_view table, const Cells& cells);
  /// Makes the schedule table anew, empty and without some of its columns, as in old files.
  void LeaveOutColumns(std::initializer_list<std::string_view> columns);

  void Execute(const std::string& file, std::string_view jet_sql);
  /// All rows and columns of a SELECT.
  std::vector<std::vector<Value>> Rows(const std::string& file, std::string_view jet_sql) const;
  /// One column of the schedule as texts by `行No`, null as "null".
  std::vector<std::string> Column(const std::string& column) const;

  /// A key of STEEL.INI or NEXTPRG.INI; UTF-8.
  void SetIni(const std::string& file, std::string_view section, std::string_view key,
              std::string_view value) const;

  /// Answers of the next messages in turn; without one a message gets its default answer.
  void Answer(MessageAnswer answer) { answers_.push_back(answer); }
  const std::vector<ShownMessage>& Messages() const { return messages_; }
  const std::vector<Launch>& Launches() const { return launches_; }
  /// Puts an empty file in place of a program, by its path below the root: "KAKOU/rbweldcnt.exe".
  void PutProgram(const std::string& name) const { root_.Put(name, ""); }

  static void ResetGlobalState();

 private:
  RootFolder root_;
  std::deque<MessageAnswer> answers_;
  std::vector<ShownMessage> messages_;
  std::vector<Launch> launches_;
  std::int64_t next_row_ = 1;
};

/// A value as text, null as "null": for comparisons that read well when they fail.
std::string Shown(const Value& value);

}  // namespace rbt::test
