// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "session/settings/setting_options.h"

namespace rbt {

/// What the settings show.
struct SettingsView {
  std::vector<std::string_view>
      chosen;  ///< options, by control name; a stored number that none has is left out
  bool counts_hoop_welds = false;
  std::string title;
};

/// The settings of dates, reports and grids without their window. A choice is saved at once; one that cannot
/// be saved is to be taken back. The title is written at the end. Stored texts that are no numbers are told
/// in one message and left without a chosen option, to be mended here. Faults: `file` of what cannot be
/// written.
class SettingsPresenter {
 public:
  /// Opens on what is stored.
  SettingsPresenter();

  SettingsView View() const;
  /// The option that the focus is on at first.
  std::string_view FirstOption() const;
  /// True while the title is the user's own.
  bool HasOwnTitle() const;

  /// Saves what an option stands for.
  void Choose(std::string_view control);
  /// Shows again what is stored, after a choice that could not be saved.
  void TakeBack(std::string_view control);
  void CountHoopWelds(bool count);
  void TakeBackHoopWelds();

  /// As much of a title as a report has room for; a part of the text.
  static std::string_view KeptTitle(std::string_view text);
  /// Stores the title where it is the user's own. False, after a message, when it has a character that the
  /// family's files cannot hold.
  bool WriteTitle(const std::string& title) const;
  /// What the settings may have changed, as it is stored now.
  static void Reread();

 private:
  void ReadOrNote(const NumberKey& key);
  void TellUnreadable() const;
  void Save(const NumberKey& key, std::int32_t value);

  std::map<std::string_view, std::int32_t> values_;  ///< by the key's name
  std::string stored_title_;
  std::string unreadable_;  ///< places of settings that cannot be read, a line each
};

}  // namespace rbt
