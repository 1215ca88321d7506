// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

namespace rbt {

/// The ticks of a selection dialog's four boxes, in the order of the mask's codes.
using Ticks = std::array<bool, 4>;

/// What a selection dialog shows.
struct ChoiceView {
  Ticks ticks{};
  bool ulbon = false;          ///< Ulbon is ticked, or is the option that is chosen
  bool ticks_shown = true;     ///< the four boxes are in sight
  bool back_to_first = false;  ///< the focus goes to the first box; asked for once
  bool done = false;           ///< the choice stands in the selection: the dialog goes
};

/// A dialog on the selection without its window. Nothing is taken but by `Take`, and nothing ticked is
/// refused with a message.
class SelectionChoice {
 public:
  virtual ~SelectionChoice() = default;

  ChoiceView View();
  void Tick(std::size_t box, bool ticked) { view_.ticks.at(box) = ticked; }
  virtual void Take() = 0;

 protected:
  explicit SelectionChoice(const ChoiceView& view) : view_(view) {}
  ChoiceView& Shown() { return view_; }
  void Finish() { view_.done = true; }
  void Refuse(const char* message);

 private:
  ChoiceView view_;
};

/// The material kinds and the Ulbon lines that a tally takes in. Opens on the selection, whose kinds become
/// `PrevMaterialKindMask`.
class KindChoice : public SelectionChoice {
 public:
  KindChoice();
  void TickUlbon(bool ticked) { Shown().ulbon = ticked; }
  void Take() override;
};

/// The material kinds of the floor and part screens, or Ulbon alone.
class FloorPartKindChoice : public SelectionChoice {
 public:
  FloorPartKindChoice();
  /// Ulbon alone takes the first three ticks away; スリット筋 keeps its tick for the way back.
  void ChooseUlbonAlone(bool alone);
  void Take() override;
};

/// The material forms that a tally takes in. A refusal ticks them all again.
class FormChoice : public SelectionChoice {
 public:
  FormChoice();
  void Take() override;
};

}  // namespace rbt
