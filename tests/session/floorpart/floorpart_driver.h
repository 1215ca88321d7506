// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/fault.h"
#include "session/floorpart/floorpart_presenter.h"
#include "session/floorpart/floorpart_site.h"

namespace rbt::test {

inline const FloorPartScreen* const kBothScreens[] = {&kFloorScreen, &kPartScreen};

/// A floor or part presenter over the small site. What the dialogs do is told by the test.
class FloorPartPresented {
 public:
  explicit FloorPartPresented(const FloorPartScreen& screen) : screen_(screen) {
    parts.choose_kinds = [this] {
      if (kinds) kinds();
    };
    parts.choose_forms = [this] {
      if (forms) forms();
    };
    parts.print = [this](const FloorPartOrder& order) {
      if (spoils_print) throw Fault(FaultKind::division_by_zero, "print");
      printed += std::string(order.form.word);
      if (order.form.document_of != DocumentOf::result) printed += " " + std::to_string(order.floor_or_part);
      printed += order.tells_printing ? " telling|" : "|";
      last_date = order.date;
      last_total = std::visit([](const auto& tables) { return TotalOf(tables); }, order.result.tables);
    };
  }

  FloorPartPresenter& Open() {
    FloorPartSite::Load();
    presenter = std::make_unique<FloorPartPresenter>(screen_, parts);
    presenter->OnShow([this] { meanwhile.push_back(presenter->View()); });
    presenter->Activate();
    return *presenter;
  }
  FloorPartPresenter& Enter(const char* start, const char* end) const {
    presenter->TypeFloor(FloorInput::kStart, start);
    presenter->TypeFloor(FloorInput::kEnd, end);
    presenter->Run();
    return *presenter;
  }
  /// All floors by their button; questions as the site answers them.
  FloorPartPresenter& OpenWithAll() {
    Open().EnterAllFloors();
    presenter->Run();
    return *presenter;
  }
  /// All floors, raised; nothing special among them.
  FloorPartPresenter& OpenRaised(const char* percent) {
    OpenWithAll().BeginChange();
    presenter->TypeUplift(percent);
    presenter->TakeUplift();
    return *presenter;
  }
  FloorPartPresenter& OpenForCorrection() {
    OpenWithAll();
    site.Answer(MessageAnswer::no);
    presenter->BeginChange();
    return *presenter;
  }

  FloorPartView View() const { return presenter->View(); }
  /// The cells of the row with this label, parts 1 to 3, the others and the total; empty when there is none.
  std::string Row(const std::string& label) const {
    for (const std::vector<std::string>& row : View().grid.rows) {
      if (row.front() != label) continue;
      return row[1] + "|" + row[2] + "|" + row[3] + "|" + row[11] + "|" + row[12];
    }
    return "";
  }
  std::string Labels() const {
    std::string text;
    for (const std::vector<std::string>& row : View().grid.rows) text += row.front() + "|";
    return text;
  }
  /// Messages from number `from` on, each with its title.
  std::string Told(std::size_t from = 0) const {
    std::string text;
    for (std::size_t i = from; i < site.Messages().size(); ++i) {
      text += site.Messages()[i].title + ": " + site.Messages()[i].text + "|";
    }
    return text;
  }

  FloorPartSite site;
  FloorPartParts parts;
  std::function<void()> kinds;  ///< what the dialogs do
  std::function<void()> forms;
  std::unique_ptr<FloorPartPresenter> presenter;
  std::vector<FloorPartView> meanwhile;
  std::string printed;  ///< words of the sheets, with their floor or part
  bool spoils_print = false;
  DateTexts last_date;
  Currency last_total;

 private:
  static Currency TotalOf(const TallyTable& tables) { return tables.TotalStockWeight; }
  template <typename Tables>
  static Currency TotalOf(const Tables& tables) {
    return tables.SouGoukei;
  }

  const FloorPartScreen& screen_;
};

/// The main buttons that can be pressed.
inline std::string MainButtons(const FloorPartView& view) {
  const std::pair<const char*, const ButtonView*> buttons[] = {{"print", &view.open_print},
                                                               {"floors", &view.change_floors},
                                                               {"weights", &view.change_weights},
                                                               {"save", &view.save},
                                                               {"load", &view.load},
                                                               {"manage", &view.manage},
                                                               {"leave", &view.leave}};
  std::string text;
  for (const auto& [name, button] : buttons) {
    if (button->enabled) text += (text.empty() ? "" : " ") + std::string(name);
  }
  return text;
}

/// The filter buttons that are in sight and can be pressed.
inline std::string FilterButtons(const FloorPartView& view) {
  const std::pair<const char*, const ButtonView*> buttons[] = {{"kinds", &view.filters.choose_kinds},
                                                               {"forms", &view.filters.choose_forms},
                                                               {"worker", &view.filters.recalculate},
                                                               {"hoops", &view.filters.cycle_hoops},
                                                               {"plates", &view.filters.cycle_plates}};
  std::string text;
  for (const auto& [name, button] : buttons) {
    if (button->shown && button->enabled) text += (text.empty() ? "" : " ") + std::string(name);
  }
  return text;
}

}  // namespace rbt::test
