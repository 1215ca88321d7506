// SPDX-License-Identifier: MIT
#include "screens/result/filter_panel.h"

#include <initializer_list>

#include <QPushButton>

#include "desktop/texts.h"
#include "shell/context/run_state.h"
#include "tally/captions.h"
#include "tally/selection.h"
#include "ui_result_form.h"

namespace rbt {

namespace {

constexpr const char* kAllKindsAfterReset = "異形・高強度・ネジ・スリット";

}  // namespace

void FilterPanel::ShowKinds() {
  const std::string_view caption = KindCaption(Selection.MaterialKindMask);
  // On the bulk screen the slit word goes in the full program too; the total row keeps it there.
  const bool is_bulk = RangeOf(screen_) == TallyRange::whole_site;
  const bool strips = is_bulk ? Selection.StartMode.hides_slit_in_bulk_kinds : Selection.StartMode.hides_slit;
  ui_.Label8->setText(strips ? Text(StripSlitWord(caption)) : Text(caption));
}

void FilterPanel::ShowAllKinds() { ui_.Label8->setText(kAllKindsAfterReset); }

void FilterPanel::ShowForms() { ui_.Label9->setText(Text(screen_.form_caption(Selection.MaterialFormMask))); }

void FilterPanel::ShowModes() {
  ui_.cmdHoop->setText(Text(ShapeFilterCaption(Selection.HoopMode)));
  ui_.Label4->setText(Selection.HoopMode == ShapeFilter::alone ? "(形状No87)" : "(形状No87)を");
  ui_.cmdTei->setText(Text(ShapeFilterCaption(Selection.AnchorPlateMode)));
}

void FilterPanel::OfferModes() {
  const bool plates = RunState.HasAnchorPlateRows && Selection.StartMode.offers_shape_filters;
  const bool hoops = RunState.HasHoopRows && Selection.StartMode.offers_shape_filters;
  for (QWidget* control : std::initializer_list<QWidget*>{ui_.cmdTei, ui_.Label5}) {
    control->setVisible(plates);
  }
  for (QWidget* control : std::initializer_list<QWidget*>{ui_.cmdHoop, ui_.Label3, ui_.Label4}) {
    control->setVisible(hoops);
  }
}

}  // namespace rbt
