// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/fault.h"
#include "session/menu/menu_entries.h"
#include "session/startup/startup.h"

namespace rbt {

/// What the menu leans on.
struct MenuParts {
  std::function<LoadResult()> load;
  std::function<MenuState()> activate;
  std::function<void()> write_accumulated;  ///< at the exit, while an accumulation is on
  std::function<void(int status)> end_program;
};

/// The real load and activation of the site for a start mode; the end of the program is the caller's.
MenuParts MenuPartsFor(const StartOptions& options, std::function<void(int status)> end_program);

/// What the load leaves to be shown.
struct MenuLoadView {
  bool shows_plate_sheet = false;
  std::string date;  ///< "yyyymmdd"
  std::string time;  ///< "hhnnss"
};

/// What the menu asks of its window.
class MenuWindow {
 public:
  virtual ~MenuWindow() = default;

  virtual void ShowLoad(const MenuLoadView& view) = 0;
  virtual void ShowState(const MenuState& state) = 0;
  virtual void Hide() = 0;
  virtual void Minimise() = 0;
  /// In sight and in front, with an activation to come.
  virtual void ShowAgain() = 0;
  /// An activation once the running action has ended.
  virtual void AskForActivation() = 0;

  /// Forms are known by their object names. True when there is such a form.
  virtual bool HasForm(std::string_view form) const = 0;
  /// True while the screen of a tally is open.
  virtual bool HasOpenForm() const = 0;
  /// Brings the tally's screen that is open to the front; false when none is.
  virtual bool RaiseOpenForm() = 0;
  /// Makes and loads a form and shows it beside the menu; the menu is shown again when it is closed. Throws
  /// what keeps it from loading.
  virtual void OpenForm(std::string_view form) = 0;
  /// Shows a form over the menu and returns when it is ended.
  virtual void ShowFormModally(std::string_view form) = 0;
};

/// The menu without its window: load, activation, and what each entry starts. Entries act in whatever state
/// their buttons are, hidden ones included. A fault of load or activation is for the caller to end the
/// program with, unless it lies in a setting that the user mends in the settings when asked; one of an entry
/// leaves the menu in sight.
///
/// While the screen of a tally is open, the menu starts nothing and no activation runs: either would pull
/// selection and site from under what that screen shows.
class MenuPresenter {
 public:
  MenuPresenter(MenuParts parts, MenuWindow& window) : parts_(std::move(parts)), window_(window) {}

  /// Once, before the menu is shown. A newer site's program takes over, and this one ends.
  void Load();
  /// At every turn of the menu at the focus; with a screen open, at the turn after its end. A start mode that
  /// passes on runs its companion and ends.
  void Activate();
  /// What the entry of a control starts. With a screen open, that comes to the front instead.
  void Start(std::string_view control);
  /// A click beside the entries.
  void LeadBack() { window_.RaiseOpenForm(); }
  /// Writes an accumulation that is on, and ends the program.
  void Leave();

  void End(int status);
  bool HasEnded() const;

 private:
  class OutOfSight;

  void Begin(const OpensTally& tally);
  void Begin(const RunsSibling& entry);
  void Begin(const RunsNameCompanion& entry);
  void Begin(const RunsStockFitter& entry);
  void Begin(const OpensSettings& entry);
  void Begin(const Leaves& entry);

  template <typename Result>
  Result Vitally(const std::function<Result()>& step);
  bool MendsSetting(const Fault& fault);

  void HandOver(const std::string& program);
  void CallSibling(const Sibling& sibling);
  void PassOn(const std::string& command_line);
  bool RequireForm(std::string_view form, std::string_view caption) const;

  MenuParts parts_;
  MenuWindow& window_;
  bool ended_ = false;
};

}  // namespace rbt
