// SPDX-License-Identifier: MIT
#include "archive/accumulation/hozon.h"

#include <optional>
#include <set>
#include <system_error>
#include <utility>
#include <vector>

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "jet/jet_file.h"
#include "platform/fault.h"
#include "platform/files/file_in_work.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "platform/files/system_error.h"
#include "platform/numbers/value.h"
#include "platform/system/paths.h"
#include "shell/context/site_context.h"
#include "shell/live/working_copy.h"
#include "tally/site_sum.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

/// Grade and maker stay null: bars of several sites have no one grade.
constexpr std::string_view kMakeTable =
    "CREATE TABLE T_hozon (SD名 TEXT(20), メーカー名 TEXT(20), 圧接本数 LONG, U圧接本数 LONG, U重量 "
    "CURRENCY, "
    "U切寸 CURRENCY, 定尺重量 CURRENCY, 切寸重量 CURRENCY, 定尺本数 LONG, 定着板数 LONG, カプラ数 LONG, "
    "切断数 LONG, 行番号 LONG, 列番号 LONG)";
constexpr std::string_view kRecords = "SELECT * FROM T_hozon";
/// Rows that have a record of their own.
constexpr int kHozonRows = 19;

/// Where a record stands: without a column it is that of the row.
struct Place {
  int row = 0;
  std::optional<int> column = std::nullopt;

  auto operator<=>(const Place&) const = default;
};

Value Number(std::int32_t count) { return std::int64_t{count}; }

/// The records of `T_hozon`, one of them at a time, by the fields of the sum.
class Records {
 public:
  explicit Records(Recordset rows) : rows_(std::move(rows)) {}

  Recordset* operator->() { return &rows_; }

  Place At() const {
    const std::optional<std::int32_t> row = rows_.Int32(row_);
    if (!row) throw Fault(FaultKind::invalid_use_of_null, "T_hozon 行番号");
    return {*row, rows_.Int32(column_)};
  }
  void PutAt(const Place& place) {
    rows_.Set(row_, Number(place.row));
    if (place.column) rows_.Set(column_, Number(*place.column));
  }

  /// Takes the figures of the record into the sum.
  void Read(TallyTable& sum) const {
    const Place place = At();
    if (place.column) return ReadCell(sum, place.row, *place.column);
    ReadRow(sum, place.row);
  }
  /// Sets the fields of the record that belong to its place.
  void Write(const TallyTable& sum, const Place& place) {
    if (place.column) return WriteCell(sum, place.row, *place.column);
    WriteRow(sum, place.row);
  }

 private:
  std::int32_t Count(FieldHandle field) const { return rows_.Int32(field).value_or(0); }
  Currency Amount(FieldHandle field) const { return AmountOf(rows_.Get(field), "T_hozon"); }

  void ReadRow(TallyTable& sum, int d) const {
    sum.UlbonWeldCount[d] = Count(ulbon_welds_);
    sum.UlbonWeight[d] = Amount(ulbon_weight_).ToDouble();
    sum.UlbonLengthM[d] = Amount(ulbon_length_).ToDouble();
    if (d >= kDeformedRows) return;
    sum.WeldCount[d] = Count(welds_);
    sum.ThreadCount[d] = Count(threads_);
    sum.PlateCount[d] = Count(plates_);
    sum.CutCount[d] = Count(cuts_);
  }
  void ReadCell(TallyTable& sum, int d, int l) const {
    sum.StockWeight[d][l] = Amount(stock_weight_);
    sum.InstalledWeight[d][l] = Amount(installed_weight_);
    sum.BarCount[d][l] = Count(bars_);
  }

  void WriteRow(const TallyTable& sum, int d) {
    rows_.Set(ulbon_welds_, Number(sum.UlbonWeldCount[d]));
    rows_.Set(ulbon_weight_, Currency::FromDouble(sum.UlbonWeight[d]));
    rows_.Set(ulbon_length_, Currency::FromDouble(sum.UlbonLengthM[d]));
    if (d >= kDeformedRows) return;
    rows_.Set(welds_, Number(sum.WeldCount[d]));
    rows_.Set(threads_, Number(sum.ThreadCount[d]));
    rows_.Set(plates_, Number(sum.PlateCount[d]));
    rows_.Set(cuts_, Number(sum.CutCount[d]));
  }
  void WriteCell(const TallyTable& sum, int d, int l) {
    rows_.Set(stock_weight_, sum.StockWeight[d][l]);
    rows_.Set(installed_weight_, sum.InstalledWeight[d][l]);
    rows_.Set(bars_, Number(sum.BarCount[d][l]));
  }

  Recordset rows_;
  FieldHandle row_ = rows_.Field("行番号");
  FieldHandle column_ = rows_.Field("列番号");
  FieldHandle welds_ = rows_.Field("圧接本数");
  FieldHandle threads_ = rows_.Field("カプラ数");
  FieldHandle plates_ = rows_.Field("定着板数");
  FieldHandle cuts_ = rows_.Field("切断数");
  FieldHandle ulbon_welds_ = rows_.Field("U圧接本数");
  FieldHandle ulbon_weight_ = rows_.Field("U重量");
  FieldHandle ulbon_length_ = rows_.Field("U切寸");
  FieldHandle stock_weight_ = rows_.Field("定尺重量");
  FieldHandle installed_weight_ = rows_.Field("切寸重量");
  FieldHandle bars_ = rows_.Field("定尺本数");
};

/// The places that get a record, in the order of writing: all rows, then the cells that hold something.
std::vector<Place> PlacesOf(const TallyTable& kept) {
  std::vector<Place> places;
  places.reserve(std::size_t{kHozonRows} * (1 + kStockColumns));
  for (int d = 0; d < kHozonRows; ++d) places.push_back({d});
  for (int d = 0; d < kHozonRows; ++d) {
    for (int l = 0; l < kStockColumns; ++l) {
      if (HoldsSomething(kept, d, l)) places.push_back({d, l});
    }
  }
  return places;
}

/// Records that are there are edited, a cell that holds nothing any more to zeros; the others are added.
void WriteRecords(Database& hozon, const TallyTable& kept) {
  Records records(hozon.OpenDynaset(kRecords));
  std::set<Place> there;
  for (; !records->Eof(); records->MoveNext()) {
    const Place place = records.At();
    records->Edit();
    records.Write(kept, place);
    records->Update();
    there.insert(place);
  }
  for (const Place& place : PlacesOf(kept)) {
    if (there.contains(place)) continue;
    records->AddNew();
    records.PutAt(place);
    records.Write(kept, place);
    records->Update();
  }
}

void Remove(const fs::path& file) {
  std::error_code error;
  fs::remove(file, error);
  if (error) throw FileFault(file, "cannot be deleted", error.value());
}

/// A save that was killed over a stored sum leaves the journal of its changes. Beside another file of that
/// name it would put old pages into it.
void RemoveJournal(const fs::path& file) { Remove(file.string() + "-journal"); }

void WriteWhole(Database& hozon, const TallyTable& kept) {
  Transaction whole(hozon);
  if (hozon.FindTable("T_hozon") == nullptr) Make_Hozon(hozon);
  WriteRecords(hozon, kept);
  whole.Commit();
}

fs::path CopyOfSum() { return ArchiveCopyOf(MapPath(kHozonFile)); }

bool IsThere(const fs::path& file) {
  return file == MapPath(kHozonFile) ? FamilyFileExists(kHozonFile) : IsTaken(file);
}

}  // namespace

fs::path FileOfSum() {
  fs::path copy = CopyOfSum();
  fs::path file = MapPath(kHozonFile);
  // A sum that was begun goes on where it is, whichever site is bound by now.
  if (IsTaken(copy) || jet::IsJetFile(file)) return copy;
  if (IsThere(file)) return file;
  return MasterIsWorkingCopy() || SiteIsWorkingCopy() ? copy : file;
}

void Make_Hozon(Database& hozon) { hozon.Execute(kMakeTable); }

void Save_Hozon(const TallyTable& sum) {
  const TallyTable kept = KeptForSum(sum);
  const fs::path file = FileOfSum();
  if (IsThere(file)) {
    Database hozon = Database::Open(file);
    return WriteWhole(hozon, kept);
  }
  MakeFolders(FolderOf(file));
  FileInWork work(file);
  {
    Database hozon = Database::CreateDatabase(work.Path());
    WriteWhole(hozon, kept);
  }
  RemoveJournal(file);
  work.PutInPlace();
}

TallyTable Load_Hozon() {
  TallyTable sum;
  const fs::path file = FileOfSum();
  if (!IsThere(file)) return sum;
  Database hozon = Database::OpenReadOnly(file);
  if (hozon.FindTable("T_hozon") == nullptr) return sum;
  for (Records records(hozon.OpenSnapshot(kRecords)); !records->Eof(); records->MoveNext()) records.Read(sum);
  return sum;
}

void Delete_Hozon() {
  for (const fs::path& file : {MapPath(kHozonFile), CopyOfSum()}) {
    if (jet::IsJetFile(file)) continue;
    // The file first: without its journal it would be a sum that is half another one.
    Remove(file);
    RemoveJournal(file);
  }
}

}  // namespace rbt
