// SPDX-License-Identifier: MIT
#include "showroom/archive_forms.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "archive/csv/csv_subject.h"
#include "archive/store/save_tally.h"
#include "archive/store/site_file.h"
#include "screens/archive/frm_back_up.h"
#include "screens/archive/load_files.h"
#include "screens/archive/saved_tally_dialogs.h"
#include "session/panels/site_head.h"
#include "shell/config/settings.h"

namespace rbt {

namespace {

constexpr std::string_view kSampleNames[] = {"異ネジ高強度  2026/11/19 17:30:00", "基礎工事",
                                             "１階から５階まで　躯体工事分"};

TallyResult SampleTally(TallyKind kind) {
  TallyResult result;
  result.kind = kind;
  TallyTable table;
  table.BarCount[3][5] = 10;
  table.StockWeightByDia[3] = Currency::FromInteger(135);
  result.tables = table;
  if (kind == TallyKind::floor) result.tables = FloorTables();
  return result;
}

/// Once for a site.
void ProvideSavedTallies() {
  const SiteFile site;
  const bool with_13m = Settings.Use13mColumn == 1;
  if (!SavedTallies(*site, TallyKind::page, with_13m).empty()) return;
  int second = 0;
  for (const std::string_view name : kSampleNames) {
    SaveOrder order{.key = {"20200101", "09000" + std::to_string(second++)},
                    .name = std::string(name),
                    .memos = {"杭頭補強を含む", "", ""},
                    .supply = {},
                    .with_13m = with_13m};
    SaveTally(*site, SampleTally(TallyKind::page), order);
  }
}

std::unique_ptr<QWidget> MakeSave(TallyKind kind) {
  BindChosenSite();
  ProvideSavedTallies();
  return MakeSaveFiles(SampleTally(kind), SavedMemos{"北棟", "", ""});
}

std::unique_ptr<QWidget> MakeLoad(TallyKind kind) {
  BindChosenSite();
  ProvideSavedTallies();
  return std::make_unique<LoadFiles>(kind);
}

std::unique_ptr<QWidget> MakeBackUp() {
  BindChosenSite();
  BackUpParts parts;
  parts.volumes = {{"/", "/"}, {"/media/usb  [ＵＳＢ]", "/media/usb"}};
  parts.choose_folder = [](const std::filesystem::path&) { return std::filesystem::path("/media/usb/csv"); };
  return std::make_unique<FrmBackUp>(CsvOfTally{.result = SampleTally(TallyKind::page)}, std::move(parts));
}

void SelectFirst(QWidget& dialog) { dialog.findChild<QListWidget*>("List1")->item(0)->setSelected(true); }

FormEntry SaveEntry(TallyKind kind, std::string state) {
  return {.name = "SaveFiles",
          .make = [kind] { return MakeSave(kind); },
          .first_focus = "SaveNameText",
          .keys = SaveFiles::Keys(),
          .states = {{std::move(state), [](QWidget&) {}}}};
}

}  // namespace

std::vector<FormEntry> ArchiveForms() {
  return {SaveEntry(TallyKind::page, "pages"),
          SaveEntry(TallyKind::floor, "floors"),
          {.name = "LoadFiles",
           .make = [] { return MakeLoad(TallyKind::page); },
           .first_focus = "List1",
           .keys = LoadFiles::Keys(),
           .states = {{"list", [](QWidget&) {}},
                      {"selected", SelectFirst},
                      {"naming",
                       [](QWidget& dialog) {
                         SelectFirst(dialog);
                         dialog.findChild<QPushButton*>("RenameButton")->click();
                       }}}},
          {.name = "LoadFiles",
           .make = [] { return MakeLoad(TallyKind::part); },
           .first_focus = "List1",
           .keys = LoadFiles::Keys(),
           .states = {{"empty", [](QWidget&) {}}}},
          {.name = "FrmBackUp",
           .make = MakeBackUp,
           .first_focus = "btnSave",
           .keys = FrmBackUp::Keys(),
           .states = {{"folder", [](QWidget&) {}}}}};
}

}  // namespace rbt
