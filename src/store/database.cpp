// SPDX-License-Identifier: MIT
#include "store/database.h"

#include <utility>
#include <variant>

#include <fmt/format.h>

#include "platform/system/work.h"
#include "store/database_file.h"
#include "store/database_impl.h"
#include "store/table_change.h"
#include "store/table_sql.h"

namespace rbt {
namespace {

/// Runs what a translated statement asks for; returns the rows written.
struct Executor {
  Database::Impl& database;
  std::string_view text;

  std::int64_t operator()(const SelectStatement&) const {
    throw Fault{FaultKind::database, fmt::format("the statement gives rows and changes none: {}", text)};
  }
  std::int64_t operator()(const ChangeStatement& change) const { return database.Run(change, text); }
  std::int64_t operator()(const CreateTableStatement& create) const {
    return Done([&](const TableChange& change) { change.CreateTable(create.table); });
  }
  std::int64_t operator()(const DropTableStatement& drop) const {
    return Done([&](const TableChange& change) { change.DropTable(drop.table); });
  }
  std::int64_t operator()(const AddColumnStatement& add) const {
    return Done([&](const TableChange& change) { change.AddField(add.table, add.field); });
  }
  std::int64_t operator()(const AddPrimaryKeyStatement& add) const {
    const IndexDef key{add.constraint, true, true, add.fields, {}};
    return Done([&](const TableChange& change) { change.AddIndex(add.table, key); });
  }
  std::int64_t operator()(const CreateIndexStatement& create) const {
    return Done([&](const TableChange& change) { change.AddIndex(create.table, create.index); });
  }
  std::int64_t operator()(const DropIndexStatement& drop) const {
    return Done([&](const TableChange& change) { change.DropIndex(drop.table, drop.index); });
  }

  template <typename Change>
  std::int64_t Done(Change change) const {
    database.StartWriting(text);
    change(TableChange(database.Connected(), database.Schema(), text));
    return 0;
  }
};

/// In faults of a fused statement the first stands for all: together they fill pages.
std::string TextOfTogether(std::span<const std::string> updates) {
  const std::string& first = updates.front();
  return updates.size() == 1 ? first : fmt::format("{} and {} more", first, updates.size() - 1);
}

/// The translator knows the statement, not the file it was meant for.
template <typename Translate>
auto NamingFile(const Connection& connection, Translate translate) {
  try {
    return translate();
  } catch (const Fault& fault) {
    throw Fault{fault.Kind(), fmt::format("{}: {}", fault.Where(), connection.File().string())};
  }
}

}  // namespace

Translated Database::Impl::Translate(std::string_view jet_sql, const TranslateOptions& options) {
  const SchemaCache::Reading reading(schema_);
  return NamingFile(*connection_, [&] { return TranslateJetSql(jet_sql, schema_, options); });
}

SelectStatement Database::Impl::TranslateSelect(std::string_view jet_sql, const TranslateOptions& options) {
  Translated translated = Translate(jet_sql, options);
  auto* const select = std::get_if<SelectStatement>(&translated);
  if (select == nullptr) {
    throw Fault{FaultKind::database,
                fmt::format("the statement gives no rows: {}: {}", connection_->File().string(), jet_sql)};
  }
  return std::move(*select);
}

ChangeStatement Database::Impl::Fuse(std::span<const std::string> updates) {
  const SchemaCache::Reading reading(schema_);
  return NamingFile(*connection_, [&] { return FuseUpdates(updates, schema_); });
}

void Database::Impl::StartWriting(std::string_view statement) {
  if (!in_transaction_) LetGo();
  if (!in_transaction_ || !connection_->Autocommit()) return;
  throw Fault{FaultKind::database, fmt::format("the store has rolled the transaction back: {}: {}",
                                               connection_->File().string(), statement)};
}

bool Database::Impl::WouldWrite(const ChangeStatement& change, std::string_view text) const {
  return change.probe.empty() || connection_->Prepare(change.probe, text).Step();
}

std::int64_t Database::Impl::Run(const ChangeStatement& change, std::string_view text) {
  if (!in_transaction_ && !WouldWrite(change, text)) return 0;
  StartWriting(text);
  return connection_->Run(change.sql, text);
}

void Database::Impl::Begin() {
  if (in_transaction_) {
    throw Fault{FaultKind::database,
                fmt::format("a transaction is open already: {}", connection_->File().string())};
  }
  LetGo();
  connection_->Run("BEGIN IMMEDIATE");
  in_transaction_ = true;
}

void Database::Impl::Commit() {
  StartWriting("COMMIT");
  const MustFinish finish;
  connection_->Run("COMMIT");
  in_transaction_ = false;
}

void Database::Impl::RollBack() {
  LetGo();
  in_transaction_ = false;
  schema_.Forget();
  if (!connection_->Autocommit()) RollBackQuietly(*connection_, "ROLLBACK");
}

void Database::Impl::Hold() {
  if (!hold_) hold_ = connection_->Hold();
}

std::string_view Database::StoreVersion() { return sqlite3_sourceid(); }

Database Database::Open(const std::filesystem::path& file) {
  return Database(std::make_unique<Impl>(std::make_unique<Connection>(file, OpenMode::read_write)));
}

Database Database::OpenReadOnly(const std::filesystem::path& file) {
  return Database(std::make_unique<Impl>(std::make_unique<Connection>(file, OpenMode::read_only)));
}

Database Database::CopyOf(const Database& source) {
  return Database(std::make_unique<Impl>(Connection::CopyOf(source.impl_->Connected())));
}

Database Database::CreateDatabase(const std::filesystem::path& file) {
  CreateDatabaseFile(file);
  return Open(file);
}

Database::Database(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Database::Database(Database&&) noexcept = default;
Database& Database::operator=(Database&&) noexcept = default;
Database::~Database() = default;

const std::filesystem::path& Database::File() const { return impl_->Connected().File(); }
bool Database::IsPrivateCopy() const { return impl_->Connected().IsPrivateCopy(); }
bool Database::MayBeWritten() const { return impl_->Connected().MayBeWritten(); }
std::optional<FileState> Database::State() const { return impl_->Connected().State(); }
bool Database::HasMoved() const { return impl_->Connected().HasMoved(); }
void Database::Hold() { impl_->Hold(); }
void Database::LetGo() { impl_->LetGo(); }

bool Database::HasRows(std::string_view jet_sql) {
  const SelectStatement select = impl_->TranslateSelect(jet_sql);
  return impl_->Connected().Prepare(select.sql, jet_sql).Step();
}

std::int64_t Database::Execute(std::string_view jet_sql) {
  return std::visit(Executor{*impl_, jet_sql}, impl_->Translate(jet_sql));
}

std::int64_t Database::ExecuteTogether(std::span<const std::string> updates) {
  if (updates.empty()) return 0;
  return impl_->Run(impl_->Fuse(updates), TextOfTogether(updates));
}

bool Database::WouldChangeTogether(std::span<const std::string> updates) {
  if (updates.empty()) return false;
  return impl_->Connected().Prepare(impl_->Fuse(updates).probe, TextOfTogether(updates)).Step();
}

std::vector<TableDef> Database::TableDefs() {
  const SchemaCache::Reading reading(impl_->Schema());
  return impl_->Schema().TableDefs();
}

std::map<std::string, std::string> Database::TableTexts() {
  const SchemaCache::Reading reading(impl_->Schema());
  return impl_->Schema().TableTexts();
}

std::unique_ptr<TableDef> Database::FindTable(std::string_view name) {
  const SchemaCache::Reading reading(impl_->Schema());
  const TableDef* const table = impl_->Schema().Find(name);
  return table == nullptr ? nullptr : std::make_unique<TableDef>(*table);
}

void Database::CreateTable(const TableDef& table) {
  const std::string text = CreateTableSql(table, table.name);
  impl_->StartWriting(text);
  TableChange(impl_->Connected(), impl_->Schema(), text).CreateTable(table);
}

void Database::AppendField(std::string_view table, const FieldDef& field) {
  const std::string text = fmt::format("field {} of {}", field.name, table);
  impl_->StartWriting(text);
  TableChange(impl_->Connected(), impl_->Schema(), text).AddField(table, field);
}

void Database::AppendIndex(std::string_view table, const IndexDef& index) {
  const std::string text = fmt::format("index {} of {}", index.name, table);
  impl_->StartWriting(text);
  TableChange(impl_->Connected(), impl_->Schema(), text).AddIndex(table, index);
}

Transaction::Transaction(Database& database) : database_(database) { database_.impl().Begin(); }

Transaction::~Transaction() {
  if (open_) database_.impl().RollBack();
}

void Transaction::CommitAndHold() {
  // A read that has begun before goes on behind the commit.
  database_.impl().Hold();
  Commit();
}

void Transaction::Commit() {
  database_.impl().Commit();
  open_ = false;
}

}  // namespace rbt
