// SPDX-License-Identifier: MIT
#include "store/connection.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <sys/stat.h>
#include <system_error>
#include <utility>

#include <fmt/format.h>

#include "platform/failure_log.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "platform/files/system_error.h"
#include "platform/system/work.h"
#include "store/connection_patience.h"
#include "store/database_file.h"
#include "store/dialect/functions.h"
#include "store/row_taker.h"

namespace rbt {
namespace {

/// Rows of a mid-size site stay in memory between the statements of one run. Of a larger one no size would
/// keep any: each walk over all rows drives out what the one before has left.
constexpr const char* kCacheSize = "PRAGMA cache_size=-8192";
/// Opens the read transaction of a connection and, while it stands at its row, keeps it open.
constexpr std::string_view kHold = "SELECT 1 UNION ALL SELECT rootpage FROM sqlite_master";

/// A name that SQLite takes for nothing else: not for a URI, not for a database in memory.
std::string PlainName(const std::filesystem::path& file) {
  return file.is_absolute() ? file.string() : "./" + file.string();
}

/// SQLite, which writes a journal's name behind a file's, says of longer ones only that they cannot be
/// opened.
void RequireShortPath(const std::filesystem::path& file) {
  constexpr std::size_t kJournalSuffix = 8;
  const auto longest = static_cast<std::size_t>(sqlite3_vfs_find(nullptr)->mxPathname);
  std::error_code error;
  const std::filesystem::path whole = std::filesystem::canonical(file, error);
  if (whole.native().size() + kJournalSuffix > longest)
    throw FileFault(file, "cannot be opened", ENAMETOOLONG);
}

/// True for errors of a copy that lie in what is read.
bool IsOfReading(int code) {
  return (code & 0xFF) == SQLITE_CORRUPT || (code & 0xFF) == SQLITE_NOTADB || code == SQLITE_IOERR_READ ||
         code == SQLITE_IOERR_SHORT_READ || code == SQLITE_IOERR_CORRUPTFS;
}

/// True when the user has stopped it. What goes wrong is told when the copy is finished.
bool CopyPages(sqlite3_backup* backup) {
  constexpr int kPages = 250;  // a megabyte at a time
  while (sqlite3_backup_step(backup, kPages) == SQLITE_OK) {
    if (StopAsked()) return true;
  }
  return false;
}

std::int64_t Nanoseconds(const timespec& time) {
  constexpr std::int64_t kPerSecond = 1'000'000'000;
  return time.tv_sec * kPerSecond + time.tv_nsec;
}

}  // namespace

void Connection::Patience::WatchOver(sqlite3* connection) {
  sqlite3_busy_handler(connection, &OnBusy, this);
  sqlite3_progress_handler(connection, WorkPace(), &OnProgress, this);
}

int Connection::Patience::OnBusy(void* self, int times) {
  auto* const patience = static_cast<Patience*>(self);
  if (times == 0) patience->wait_.emplace(patience->file_);
  return patience->wait_->Again() ? 1 : 0;
}

int Connection::Patience::OnProgress(void* self) {
  auto* const patience = static_cast<Patience*>(self);
  patience->stopped_ = StopAsked({.may_stop = patience->may_stop_});
  if (patience->stopped_) return 1;
  if (patience->step_seen_ != patience->step_) {
    patience->step_seen_ = patience->step_;
    patience->seen_since_ = Clock::now();
    return 0;
  }
  return Clock::now() - patience->seen_since_ > StatementLimit() ? 1 : 0;
}

Connection::Connection(std::filesystem::path file)
    : file_(std::move(file)), patience_(std::make_unique<Patience>(file_)) {}

Connection::Connection(const std::filesystem::path& file, OpenMode mode) : Connection(file) {
  RequireRegularFile(file);
  RequireShortPath(file);
  Open(PlainName(file), mode == OpenMode::read_only ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE);
  RequireStoreMark(file, Bytes(0, kMarkBytes));
  if (mode == OpenMode::read_only && NeedsRecovery()) {
    // Whoever reads behind a program that was killed while it wrote has to bring the last whole state back.
    const Connection recovering(file, OpenMode::read_write);
  }
  Configure();
  RequireSound();
  if (sqlite3_db_readonly(Handle(), "main") == 0) RunSetting("PRAGMA journal_mode=DELETE");
}

std::unique_ptr<Connection> Connection::CopyOf(const Connection& source) {
  std::unique_ptr<Connection> copy(new Connection(source.file_));
  copy->private_copy_ = true;
  copy->Open("", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  source.CopyInto(*copy);
  copy->Configure();
  return copy;
}

void Connection::InitialiseFile(const std::filesystem::path& file) {
  Connection fresh(file);
  fresh.Open(PlainName(file), SQLITE_OPEN_READWRITE);
  // Writes the first page, so that the file is known as a database from now on.
  fresh.RunSetting("PRAGMA user_version=0");
}

Connection::~Connection() = default;

void Connection::Open(const std::string& name, int flags) {
  sqlite3* connection = nullptr;
  const int code = sqlite3_open_v2(name.c_str(), &connection,
                                   flags | SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_NOMUTEX, nullptr);
  handle_.reset(connection);
  if (code == SQLITE_OK) return patience_->WatchOver(connection);
  const int cause = connection == nullptr ? 0 : sqlite3_system_errno(connection);
  if (cause != 0) throw FileFault(file_, "cannot be opened", cause);
  throw FileFaultText(file_, sqlite3_errstr(code));
}

void Connection::Configure() const {
  sqlite3* const connection = Handle();
  constexpr std::pair<int, int> kSwitches[] = {
      {SQLITE_DBCONFIG_DQS_DML, 0},        {SQLITE_DBCONFIG_DQS_DDL, 0},
      {SQLITE_DBCONFIG_DEFENSIVE, 1},      {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
      {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0}, {SQLITE_DBCONFIG_ENABLE_VIEW, 0},
  };
  for (const auto& [option, on] : kSwitches) sqlite3_db_config(connection, option, on, nullptr);
  RunSetting("PRAGMA cell_size_check=ON");  // damaged pages are told, not followed
  RunSetting(kCacheSize);
  RunSetting("PRAGMA synchronous=FULL");
  RegisterJetFunctions(connection);
  RegisterRowTaker(connection);
}

/// Reads the header and every table's definition.
constexpr const char* kReadDefinitions = "SELECT count(*) FROM sqlite_master";

void Connection::RequireSound() const { RunSetting(kReadDefinitions); }

bool Connection::NeedsRecovery() const {
  patience_->BeginStep(true);
  const int code = sqlite3_exec(Handle(), kReadDefinitions, nullptr, nullptr, nullptr);
  if (code == SQLITE_INTERRUPT) throw StoreFault(*this, code, "opening it");
  return code == SQLITE_READONLY_ROLLBACK || code == SQLITE_READONLY_RECOVERY;
}

void Connection::RunSetting(const char* sql) const {
  patience_->BeginStep(true);
  const int code = sqlite3_exec(Handle(), sql, nullptr, nullptr, nullptr);
  if (code == SQLITE_OK) return;
  if (IsHeldElsewhere(code) || code == SQLITE_INTERRUPT) throw StoreFault(*this, code, "opening it");
  throw FileFaultText(file_, sqlite3_errmsg(Handle()));
}

/// By the connection's own file: opening and closing it beside SQLite would lose the connection's locks.
std::string Connection::Bytes(std::int64_t at, int count) const {
  sqlite3_file* file = nullptr;
  sqlite3_file_control(Handle(), "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void*>(&file));
  if (file == nullptr || file->pMethods == nullptr) return {};
  std::string bytes(static_cast<std::size_t>(count), '\0');
  const int code = file->pMethods->xRead(file, bytes.data(), count, at);
  if (code == SQLITE_OK) return bytes;
  if (code != SQLITE_IOERR_SHORT_READ) throw FileFaultText(file_, sqlite3_errstr(code));
  sqlite3_int64 size = 0;
  file->pMethods->xFileSize(file, &size);
  bytes.resize(static_cast<std::size_t>(std::clamp<std::int64_t>(size - at, 0, count)));
  return bytes;
}

bool Connection::MayBeWritten() const {
  if (private_copy_) return true;
  if (sqlite3_db_readonly(Handle(), "main") != 0) return false;
  // Changes go through a journal beside the file.
  std::error_code error;
  const std::filesystem::path file = std::filesystem::canonical(file_, error);
  return !error && TakesFiles(FolderOf(file));
}

std::optional<FileState> Connection::State() const {
  constexpr int kCounterAt = 24;
  constexpr int kReadVersionAt = 19;
  constexpr char kWriteAheadLog = 2;
  const std::string head = Bytes(0, kCounterAt + 4);
  struct stat status {};
  if (head.size() < kCounterAt + 4 || head[kReadVersionAt] == kWriteAheadLog ||
      ::stat(file_.c_str(), &status) != 0) {
    return std::nullopt;
  }
  std::uint32_t changes = 0;
  for (std::size_t i = 0; i < 4; ++i)
    changes = changes << 8U | static_cast<unsigned char>(head[kCounterAt + i]);
  return FileState{.changes = changes,
                   .device = status.st_dev,
                   .file = status.st_ino,
                   .size = status.st_size,
                   .written = Nanoseconds(status.st_mtim),
                   .touched = Nanoseconds(status.st_ctim)};
}

bool Connection::HasMoved() const {
  int moved = 0;
  sqlite3_file_control(Handle(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
  return moved != 0;
}

Statement Connection::Hold() const {
  Statement hold = Prepare(kHold, "reading it");
  hold.Step();
  return hold;
}

void Connection::CopyInto(const Connection& target) const {
  const Statement one_moment = Hold();  // also waits for the file
  sqlite3_backup* const backup = sqlite3_backup_init(target.Handle(), "main", Handle(), "main");
  const bool stopped = backup != nullptr && CopyPages(backup);
  const int code = backup == nullptr ? sqlite3_errcode(target.Handle()) : sqlite3_backup_finish(backup);
  if (stopped) throw StoppedFault(file_, "copying it");
  if (code == SQLITE_OK) return;
  const std::string where = fmt::format("{}: copying {}", target.File().string(), file_.string());
  if (IsOfReading(code)) {
    throw Fault(FaultKind::storage, fmt::format("{}: {}", sqlite3_errstr(code), where));
  }
  throw CopyTargetFault(FaultKind::storage, fmt::format("{}: {}", sqlite3_errmsg(target.Handle()), where));
}

std::int64_t Connection::Run(std::string_view sql, std::string_view text) const {
  Statement statement = Prepare(sql, text);
  return Run(statement);
}

std::int64_t Connection::Run(Statement& statement) const {
  const std::int64_t before = sqlite3_total_changes64(Handle());
  while (statement.Step()) continue;
  statement.Reset();
  // The counter of the last change keeps its figure over statements that change nothing.
  return sqlite3_total_changes64(Handle()) == before ? 0 : sqlite3_changes64(Handle());
}

std::int64_t Connection::IntegerOf(std::string_view sql) const {
  Statement statement = Prepare(sql);
  return statement.Step() ? statement.Integer(0) : 0;
}

Savepoint::Savepoint(const Connection& connection) : connection_(connection) {
  connection_.Run("SAVEPOINT together");
}

Savepoint::~Savepoint() {
  if (!open_ || connection_.Autocommit()) return;
  RollBackQuietly(connection_, "ROLLBACK TO together");
  RollBackQuietly(connection_, "RELEASE together");
}

void Savepoint::Release() {
  connection_.Run("RELEASE together");
  open_ = false;
}

void RollBackQuietly(const Connection& connection, const char* sql) {
  const MustFinish finish;
  if (sqlite3_exec(connection.Handle(), sql, nullptr, nullptr, nullptr) == SQLITE_OK) return;
  LogFailure(fmt::format("{}: {}: {}", connection.File().string(), sql, sqlite3_errmsg(connection.Handle())));
}

}  // namespace rbt
