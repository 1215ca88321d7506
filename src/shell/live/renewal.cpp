// SPDX-License-Identifier: MIT
#include "shell/live/renewal.h"

#include <chrono>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "jet/import/import_file.h"
#include "platform/fault.h"
#include "platform/files/file_in_work.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "platform/files/system_error.h"
#include "platform/pass_over_faults.h"
#include "platform/system/long_reading.h"
#include "platform/system/message.h"
#include "platform/text/characters.h"
#include "shell/live/copy_lock.h"
#include "shell/live/joined_saved.h"
#include "shell/live/old_copy.h"
#include "shell/live/origins.h"
#include "shell/live/saved_here.h"
#include "shell/live/working_copy.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

constexpr int kMostReadAgain = 3;
constexpr std::string_view kTitle = "Jet ファイルの読み込み";

/// Tells of a long reading, once.
class LongReading {
 public:
  explicit LongReading(fs::path file) : file_(std::move(file)) {}

  /// Cheap enough for each row.
  void Look() {
    constexpr int kRowsBetween = 256;
    if (told_ || ++looks_ % kRowsBetween != 1) return;
    if (Clock::now() - begin_ < std::chrono::milliseconds(300)) return;
    told_ = true;
    TellOfLongReading(file_);
  }

 private:
  using Clock = std::chrono::steady_clock;
  fs::path file_;
  Clock::time_point begin_ = Clock::now();
  int looks_ = 0;
  bool told_ = false;
};

fs::path With(const fs::path& file, std::string_view ending) {
  fs::path name = file;
  name += ending;
  return name;
}

fs::path FreeBadName(const fs::path& copy) {
  fs::path bad = With(copy, ".bad");
  for (int number = 2; IsTaken(bad); ++number) bad = With(copy, fmt::format(".bad{}", number));
  return bad;
}

/// What is to be told when nothing is held any more.
using Messages = std::vector<std::string>;

/// It may hold tallies that nobody else has.
void SetAside(const fs::path& copy, const fs::path& jet_file, Messages& messages) {
  const fs::path bad = FreeBadName(copy);
  if (::rename(copy.c_str(), bad.c_str()) != 0) throw FileFault(copy, "cannot be renamed");
  std::error_code there_is_none;
  fs::rename(With(copy, "-journal"), With(bad, "-journal"), there_is_none);
  messages.push_back(
      fmt::format("{} は {} の作業用の写しとして使えないので、{} という名前で残し、写しを作り直します。\n"
                  "ここで保存した集計があった場合は、残したファイルの中だけにあります。",
                  copy.string(), jet_file.filename().string(), bad.filename().string()));
}

/// It is left to the user, as another program may need it.
std::string TextOfOtherThatStays(const fs::path& other, const fs::path& jet_file) {
  return fmt::format(
      "{} の作業用の写しがもう一つありますが、そこに保存した集計は引き継げませんでした。\n"
      "{} はそのまま残します。",
      jet_file.filename().string(), other.string());
}

/// The new tables do not take what was saved in the old ones.
class SavedNotTaken : public Fault {
 public:
  using Fault::Fault;
};

/// Rows that the store does not take are missing in every tally.
void NoteWhatIsMissing(const jet::ImportReport& report, Messages& messages) {
  if (report.Refused() == 0) return;
  std::string first;
  for (const jet::ImportedTable& table : report.tables) {
    if (first.empty() && table.refused > 0) first = table.name + "：" + table.refused_rows.front();
  }
  messages.push_back(fmt::format("{}：取り込めない行が {} 行あり、集計に入りません。\n\n{}",
                                 report.source.filename().string(), report.Refused(), first));
}

/// The copy that is made anew and that in the other place.
struct OldCopies {
  OldCopy copy;
  OldCopy other;
};

/// The making of a copy out of what was read.
class Making {
 public:
  /// What was saved in `other` is joined.
  Making(const fs::path& jet_file, const fs::path& copy, fs::path other, Messages& messages)
      : jet_file_(jet_file), copy_(copy), other_(std::move(other)), messages_(messages), reading_(jet_file) {}

  void Make(JetOriginal original) {
    SourceNote note = NoteOf(original);
    const auto jet = jet::JetFile::FromBytes(std::move(original.bytes), jet_file_.string());
    try {
      Import(*jet, note);
    } catch (const SavedNotTaken&) {
      TakesNothing();
      Import(*jet, note);
    }
  }

 private:
  /// What was saved stays where it is.
  void TakesNothing() {
    if (IsTaken(copy_)) SetAside(copy_, jet_file_, messages_);
    if (IsTaken(other_)) messages_.push_back(TextOfOtherThatStays(other_, jet_file_));
    other_.clear();
  }

  void Import(jet::JetFile& jet, SourceNote& note) {
    const WorkPlace place(FolderOf(copy_));
    FileInWork work(copy_, place, ReadOnlyTarget::replaced);
    OldCopies old;
    std::optional<OriginsWriter> origins;
    jet::ImportExtras extras;
    extras.begin = [&](Database& target) { origins.emplace(target); };
    extras.row_taken = [&](const jet::TakenRow& row) {
      reading_.Look();
      origins->Note(row);
    };
    extras.end = [&](Database& target, const jet::ImportReport& report) {
      origins->Finish();
      origins.reset();
      note.refused = static_cast<std::int64_t>(report.Refused());
      NamingCopy(work, [&] {
        WriteSourceNote(target, note);
        NoteTalliesOfOriginal(target);
        NoteMarksOfOriginal(target);
        const SavedAndJoined saved = SavedIn(old);
        TakeOver(target, saved.saved);
        if (!saved.joined.empty()) NoteJoined(target, saved.joined);
      });
    };
    const jet::ImportReport report = jet::ImportTables(jet, work, copy_, jet::OnDamage::refuse, extras);
    PutInPlace(work);
    NoteWhatIsMissing(report, messages_);
  }

  /// Runs a step whose faults name the copy in place of the file in work.
  template <typename Step>
  void NamingCopy(const FileInWork& work, Step step) const {
    try {
      step();
    } catch (const SavedNotTaken&) {
      throw;
    } catch (const Fault& fault) {
      throw jet::TargetFault(fault.Kind(), ReplaceAll(fault.Where(), work.Path().string(), copy_.string()));
    }
  }

  SavedAndJoined SavedIn(OldCopies& old) {
    std::optional<SavedAndJoined> saved = old.copy.TakeFrom(copy_);
    if (!saved && IsTaken(copy_)) SetAside(copy_, jet_file_, messages_);
    if (!IsTaken(other_)) return saved ? std::move(*saved) : SavedAndJoined{};
    const Standing standing = StandingOf(other_);
    const std::optional<SavedAndJoined> more = old.other.TakeFrom(other_);
    if (!more && !(saved && saved->joined.contains(standing.digest))) {
      messages_.push_back(TextOfOtherThatStays(other_, jet_file_));
    }
    if (!saved) saved = more ? SavedAndJoined{more->saved, {}} : SavedAndJoined{};
    if (more) Join(*saved, *more);
    // What cannot be read is told once.
    if (standing.settled || !more) saved->joined.insert(standing.digest);
    return std::move(*saved);
  }

  static void TakeOver(Database& target, const SavedHere& saved) {
    if (const auto fault = PassOverFaultsOfContent([&] { WriteSavedHere(target, saved); })) {
      throw SavedNotTaken(fault->Kind(), fault->Where());
    }
  }

  void PutInPlace(FileInWork& work) const {
    RequireNobodySaves();
    const fs::perms rights = RightsOfCopy();
    // Beside another file the journal of a killed save would put old pages into it.
    std::error_code error;
    fs::remove(With(copy_, "-journal"), error);
    work.Replace();
    fs::permissions(copy_, rights, error);
  }

  /// In a copy that may only be read nobody can be kept from writing, and what he writes would go into a file
  /// without a name.
  void RequireNobodySaves() const {
    if (!IsTaken(copy_) || MayBeReplaced(copy_) || !IsTaken(With(copy_, "-journal"))) return;
    throw jet::TargetFault(FaultKind::locked,
                           copy_.string() + ": another user's program is saving in it, or was killed there");
  }

  /// Whoever may write the Jet file may write the copy, whoever has made it.
  fs::perms RightsOfCopy() const {
    fs::perms rights = fs::perms::owner_read | fs::perms::owner_write;
    for (const fs::path* const file : {&jet_file_, &copy_}) {
      std::error_code error;
      const fs::perms of_file = fs::status(*file, error).permissions();
      if (!error && of_file != fs::perms::unknown) rights |= of_file;
    }
    return rights;
  }

  const fs::path& jet_file_;
  const fs::path& copy_;
  fs::path other_;
  Messages& messages_;
  LongReading reading_;
};

/// True where the copy holds what was saved in the other one, as far as that can be read; that this was
/// looked at is noted.
bool HoldsAllOf(OpenedCopy& copy, const fs::path& other) {
  if (HasJoined(copy.database, other)) return true;
  const Standing standing = StandingOf(other);
  std::optional<OpenedCopy> opened = OpenIfCopy(other, true);
  if (!opened) return false;
  const SavedAndJoined there = ReadSavedAndJoined(opened->database);
  if (!LackingTallies(ReadSavedAndJoined(copy.database), there).empty()) return false;
  if (standing.settled) NoteJoined(copy.database, {standing.digest});
  return true;
}

/// True where the copy stands for the bytes that were read; how the file stands is noted anew.
bool IsOnlyNoted(const fs::path& copy, const fs::path& other, const JetOriginal& original) {
  std::optional<OpenedCopy> opened = OpenIfCopy(copy, false);
  if (!opened || !opened->database.MayBeWritten() || !opened->note.TellsBytesOf(original)) return false;
  bool holds_all = false;
  // Without the note the bytes are compared again next time.
  const auto fault = PassOverFaults(FaultKind::locked, [&] {
    holds_all = HoldsAllOf(*opened, other);
    SourceNote& note = opened->note;
    const bool stands = note.stamp == original.stamp.text && note.settled == original.settled;
    if (!holds_all || stands) return;
    note.stamp = original.stamp.text;
    note.settled = original.settled;
    WriteSourceNote(opened->database, note);
  });
  return fault.has_value() || holds_all;
}

bool IsMadeMeanwhile(const fs::path& jet_file, const fs::path& copy, const fs::path& other) {
  std::optional<OpenedCopy> opened = OpenIfCopy(copy, true);
  return opened && opened->note.StandsFor(jet_file) && HasJoined(opened->database, other);
}

/// A file that was written a moment ago may be in the midst of being written: then it looks damaged.
bool LiesInTheJetFile(const Fault& fault) {
  return fault.Kind() == FaultKind::file && dynamic_cast<const jet::TargetFault*>(&fault) == nullptr;
}

void Renew(const fs::path& jet_file, const fs::path& copy, const fs::path& other,
           const ReadHook& behind_reading, Messages& messages) {
  constexpr std::chrono::milliseconds kPause{100};
  const CopyLock lock(copy);
  if (IsMadeMeanwhile(jet_file, copy, other)) return;
  Making making(jet_file, copy, other, messages);
  std::string digest_before;
  for (int again = 0;; ++again) {
    std::optional<JetOriginal> original = ReadOriginal(jet_file, behind_reading);
    if (original && IsOnlyNoted(copy, other, *original)) return;
    // Between two pages of a save a young file looks sound and holds half of it.
    const bool has_come_to_rest = original && (original->settled || original->digest == digest_before);
    digest_before = original ? original->digest : "";
    if (has_come_to_rest) {
      const bool settled = original->settled;
      const auto may_pass = [&](const Fault& fault) {
        return again < kMostReadAgain && !settled && LiesInTheJetFile(fault);
      };
      if (!PassOverFaultsIf(may_pass, [&] { making.Make(std::move(*original)); })) return;
    } else if (again == kMostReadAgain) {
      throw FileFaultText(jet_file, "keeps changing while it is read; try again when nobody writes it");
    }
    std::this_thread::sleep_for(kPause);
  }
}

void Tell(const Messages& messages) {
  for (const std::string& message : messages) MsgBox(message, kTitle);
}

}  // namespace

void RenewWorkingCopy(const fs::path& jet_file, const fs::path& copy, const fs::path& other,
                      const ReadHook& behind_reading) {
  MakeFolders(FolderOf(copy));
  Messages messages;
  try {
    Renew(jet_file, copy, other, behind_reading, messages);
  } catch (const Fault&) {
    Tell(messages);
    throw;
  }
  Tell(messages);
}

}  // namespace rbt
