// SPDX-License-Identifier: MIT
#include "session/startup/startup.h"

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "archive/accumulation/hozon.h"
#include "archive/check_jsyukei.h"
#include "data/reference.h"
#include "data/shapes.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "platform/files/system_error.h"
#include "platform/files/work_place.h"
#include "platform/numbers/number_words.h"
#include "platform/pass_over_faults.h"
#include "platform/profile/ini_file.h"
#include "platform/profile/registry.h"
#include "platform/system/clock.h"
#include "platform/system/message.h"
#include "platform/system/paths.h"
#include "platform/system/process.h"
#include "session/startup/jet_files.h"
#include "session/startup/sibling_programs.h"
#include "shell/calendar/new_era_function.h"
#include "shell/context/fixed_stock.h"
#include "shell/context/site_context.h"
#include "shell/preparation/classified_schedule.h"
#include "tally/selection.h"

namespace rbt {

namespace {

/// The program that reads newer sites is looked for under one name and started under another.
constexpr std::string_view kNewerProgramMark = "C:\\RBK\\DATA\\rbtallyS.exe";
constexpr std::string_view kNewerProgram = "\\rbk\\rbtally1S.exe";
constexpr double kNewestVersion = 6.0;

/// One step of a sequence; pending events run behind it, so that the screen stays alive.
template <typename Action>
void Step(Action action) {
  action();
  RunPendingEvents();
}

void SettleSharedJetFiles() {
  SettleJetFiles({"\\RBK\\DATA\\SORANO.MDB", "\\RBK\\DATA\\MTTeijyaku.mdb", "\\RBK\\DATA\\MTTeijyaku_ORG.mdb",
                  "\\RBK\\DATA\\JSyukeiORG.mdb"});
}

void OpenFixedStock() {
  ProvideFixedStockDatabase();
  SiteContext.FixedStockDatabase.reset();
  if (Settings.UseFixedTable == 1) OpenFixedStockDatabase();
}

void RequireSteelIni() {
  if (!FamilyFileExists(kSteelIni)) throw FileFaultText(MapPath(kSteelIni), "the file does not exist");
}

/// Schedule file name of the site that is to be bound.
std::string ChosenSite(const StartOptions& options) {
  return options.site.empty() ? ReadSteelIni(kSelectedDbNameKey) : options.site;
}

void BindSite(const StartOptions& options) {
  RequireSteelIni();
  const std::string name = ChosenSite(options);
  if (name.empty()) {
    throw FileFaultText(MapPath(kSteelIni), fmt::format("no site: [{}] {} is empty",
                                                        kSelectedDbNameKey.section, kSelectedDbNameKey.key));
  }
  SelectSite(name);
  if (!options.command_line) {
    SettleJetFiles({SiteContext.SiteFolder + SiteContext.SelectedDbName, CompanionDatabasePath()});
    // By now this user may have come to another right to it.
    SiteContext.WorkDatabase.reset();
  }
  OpenWorkDatabase();
}

/// The format of the site database, 0 when the file does not tell: older sites lack the table.
double ReadSiteVersion() {
  constexpr std::string_view kTable = "データーベースバージョン";
  constexpr std::string_view kField = "バージョン";
  const auto table = SiteContext.WorkDatabase->FindTable(kTable);
  if (table == nullptr || table->FindField(kField) == nullptr) return 0.0;
  Recordset rows = SiteContext.WorkDatabase->OpenSnapshot(fmt::format("SELECT * FROM {}", kTable));
  return rows.Eof() ? 0.0 : LeadingNumber(TextOf(rows.Get(kField)));
}

bool NeedsNewerProgram() { return ReadSiteVersion() > kNewestVersion && FamilyFileExists(kNewerProgramMark); }

/// Once: what this user may not write is looked at all the same.
void TellWhatIsOnlyRead(const StartOptions& options) {
  if (options.command_line || !options.prepare) return;
  std::vector<std::string> files;
  if (!SiteContext.WorkDatabase->MayBeWritten()) files.push_back(SiteContext.WorkDatabase->File().string());
  if (!MayBeReplaced(RegistryFile())) files.push_back(RegistryFile().string());
  if (files.empty()) return;
  MsgBox(
      fmt::format("次のファイルは書き込めないので、読むだけにします。\n"
                  "集計と印字はできますが、保存や設定の変更はできません。\n\n{}",
                  fmt::join(files, "\n")));
  SiteContext.ToldOfCopy = true;
}

void TellHowItIsRead(const StartOptions& options) {
  if (!options.command_line) TellOfReadingInPlace(PathOfSite());
}

void TellUnreadable(const UnreadableSettings& places) {
  if (places.empty()) return;
  MsgBox(
      fmt::format("読めない設定があるので、初めの値を使います。\n"
                  "「その他設定」で選び直すか、設定ファイルを直して下さい。\n\n{}",
                  fmt::join(places, "\n")));
}

/// Finds out nothing: sites without a shape table are worked on like any other.
void ProbeShapeTable() {
  Database& site = *SiteContext.WorkDatabase;
  if (site.FindTable("形状テーブル") != nullptr) site.OpenSnapshot("SELECT * FROM 形状テーブル");
}

/// Every registered name starts out as selected.
void MarkRegisteredNames(const StartModeTraits& start_mode) {
  Database companion = OpenCompanionDatabase();
  if (start_mode.PassesOn() || !companion.MayBeWritten()) return;
  companion.Execute("UPDATE 登録名 SET 表示番号 = 1 WHERE Not IsNull(登録AN)");
}

void ReadSiteNames() {
  const LongName name = ReadLongName(*SiteContext.MasterDatabase, SiteContext.SelectedDbName);
  SiteContext.LongSiteName = name.name;
  SiteContext.LongSiteNameWidth = name.width;
}

void ReadMaker() {
  SiteContext.MakerNumber = ReadMakerNumber(*SiteContext.MasterDatabase, SiteContext.SelectedDbName);
}

void ReadGrades() { SiteContext.GradeNames = ReadGradeNames(*SiteContext.MasterDatabase); }

/// Where nothing may be written no accumulation can have begun, and none can begin.
void ResetAccumulation(const StartOptions& options) {
  RunState.AccumulateFlag = 0;
  if (options.command_line || options.keep_accumulation) return;
  if (MayBeReplaced(RegistryFile())) SaveSetting(kAccumulateFlagKey, 0);
  if (TakesFiles(FolderOf(MapPath(kHozonFile))) || MasterIsWorkingCopy()) Delete_Hozon();
}

void ProbeShapes() {
  // The clause continues a condition: " AND (...)".
  constexpr std::string_view kOpening = " AND (";
  static_assert(kAnchorPlateClause.starts_with(kOpening) && kAnchorPlateClause.ends_with(")"));
  constexpr std::string_view kAnchorPlates =
      kAnchorPlateClause.substr(kOpening.size(), kAnchorPlateClause.size() - kOpening.size() - 1);
  constexpr std::string_view kRows = "SELECT * FROM 加工テーブル WHERE ";
  Database& site = *SiteContext.WorkDatabase;
  RunState.HasAnchorPlateRows = site.HasRows(fmt::format("{}{}", kRows, kAnchorPlates));
  RunState.HasHoopRows = site.HasRows(fmt::format("{}形状No={}", kRows, kWeldedHoopShape));
}

/// A sibling in a folder that may not be looked into is none for this user.
bool IsInstalled(std::string_view program) {
  bool found = false;
  PassOverFaults(FaultKind::file, [&] { found = FamilyFileExists(program); });
  return found;
}

void ProbeCounters() {
  RunState.HasWeldCounter = IsInstalled(kWeldCounterProgram);
  RunState.HasJoinCounter = IsInstalled(kJoinCounterProgram);
  RunState.HasPlateCounter = IsInstalled(kPlateCounterProgram);
}

void ClearOldLeftovers() {
  RemoveOldLeftovers(Root());
  RemoveOldLeftovers(MapPath("\\RBK\\DATA"));
}

void StampRun() {
  const DateTime now = Now();
  RunState.RunDate = TodayStamp(now);
  RunState.RunTime = TimeStamp(now);
}

void ResetSelection() {
  if (RunState.AccumulateFlag != 0) return;
  Selection.MaterialCalcChoice = CalcChoice::high_strength_with_others;
  Selection.MaterialFormMask = kAllForms;
}

MenuState DescribeMenu(const StartOptions& options) {
  // The key is read into ten characters, not into the eighty of other keys.
  const std::string weight_tally =
      GetProfileText(MapPath(kNextPrgIni), kHandOverSection, kWeightTallyKey, "", 10);
  MenuState state = MenuStateOf(options.start_mode, RunState, Settings, weight_tally);
  if (options.command_line) state.pass_on_to.reset();
  return state;
}

/// Number and name of the bound site, "001　試験工事", and whether its file is only read.
std::string SiteLabel() {
  const SiteHead head = ReadSiteHead(*SiteContext.MasterDatabase, SiteContext.SelectedDbName);
  return fmt::format("{:03}　{}{}", head.number, head.name,
                     SiteIsWorkingCopy() ? "　（Jet 形式・読むだけ）" : "");
}

void ForgetHoops() {
  Selection.HoopMode = ShapeFilter::with_others;
  RunState.HasHoopRows = false;
}

/// Another site than the bound one is bound whole or not at all: a fault on the way leaves none, so that the
/// next turn begins anew.
class NewSite {
 public:
  NewSite() = default;
  NewSite(const NewSite&) = delete;
  NewSite& operator=(const NewSite&) = delete;
  ~NewSite() {
    if (!ready_ && IsNew()) SelectSite("");
  }

  bool IsNew() const { return SelectedSite() != bound_; }
  void NoteReady() { ready_ = true; }

 private:
  std::string bound_ = SelectedSite();
  bool ready_ = false;
};

/// What the load makes of the bound site: archive tables, classification, names, grades. False, its database
/// closed, for a site that a newer program reads.
bool ReadySite(const StartOptions& options) {
  Step(ReadyArchiveTables);
  if (!options.command_line && NeedsNewerProgram()) {
    SiteContext.WorkDatabase.reset();
    return false;
  }
  Step(ProbeShapeTable);
  // The command line classifies once, when it activates.
  if (!options.command_line) Step([&] { ClassifyAtLoad(options.start_mode); });
  Step(OpenMasterDatabase);
  Step([&] { MarkRegisteredNames(options.start_mode); });
  Step(ReadSiteNames);
  Step(ReadMaker);
  Step(ReadGrades);
  NoteSiteReadied();
  return true;
}

/// Jet files that other programs work on have changed: what was read of them at the load is so no more.
bool HaveJetFilesChanged() { return SiteIsAnotherCopy() || MasterIsOutdated(); }

}  // namespace

LoadResult LoadSite(const StartOptions& options) {
  LoadResult result;
  RequireSteelIni();
  const RegistryReading registry;
  SiteContext.OnlyRead = !options.prepare;
  SiteContext.JetFiles = options.jet;
  SiteContext.ClassifiedAt.reset();
  if (options.prepare) ClearOldLeftovers();
  UnreadableSettings unreadable;
  const auto note = [&](UnreadableSettings places) {
    unreadable.insert(unreadable.end(), places.begin(), places.end());
  };
  Step([&] { note(LoadGridColours()); });
  Selection.StartMode = options.start_mode;
  Step([&] { note(LoadTallySettings(registry)); });
  if (!options.command_line) Step(SettleSharedJetFiles);
  Step(OpenFixedStock);
  Step([&] { BindSite(options); });
  TellWhatIsOnlyRead(options);
  TellHowItIsRead(options);
  if (!ReadySite(options)) {
    result.hand_over_to = kNewerProgram;
    return result;
  }
  Step([&] { ResetAccumulation(options); });
  result.shows_plate_sheet = IsInstalled(kPlateSheetProgram);
  Step([&] { note(LoadRemainingSettings(registry)); });
  TellUnreadable(unreadable);
  Step(ProbeShapes);
  // The command line goes on with it at once.
  if (!options.command_line) SiteContext.WorkDatabase.reset();
  Step(ProbeCounters);
  StampRun();
  return result;
}

bool FollowSelectedSite(const StartOptions& options) {
  NewSite site;
  Step([&] { BindSite(options); });
  if (!site.IsNew() && !HaveJetFilesChanged()) return true;
  if (!ReadySite(options)) return false;
  Step(ProbeShapes);
  TellHowItIsRead(options);
  site.NoteReady();
  return true;
}

void FollowReadableSite(const StartOptions& options) {
  if (FollowSelectedSite(options)) return;
  // It is bound no more.
  throw FileFaultText(FileOfSite(ChosenSite(options)), "needs the newer program");
}

MenuState ActivateMenu(const StartOptions& options) {
  Step([] { RereadTitleSettings(); });
  if (!FollowSelectedSite(options)) {
    MenuState handed_over;
    handed_over.hand_over_to = kNewerProgram;
    return handed_over;
  }
  if (options.command_line) {
    Step([&] { HoldClassifiedSchedule(options.start_mode); });
  } else {
    Step([&] { RefreshAtActivation(options.start_mode); });
  }
  ResetSelection();
  MenuState state = DescribeMenu(options);
  state.site = SiteLabel();
  ForgetHoops();
  return state;
}

}  // namespace rbt
