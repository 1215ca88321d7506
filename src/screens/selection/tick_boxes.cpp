// SPDX-License-Identifier: MIT
#include "screens/selection/tick_boxes.h"

#include <QCheckBox>

#include "desktop/form.h"
#include "screens/panels/form_actions.h"

namespace rbt {

TickBoxes::TickBoxes(QWidget& dialog, const std::array<QCheckBox*, 4>& boxes, SelectionChoice& choice,
                     const std::function<void()>& show)
    : dialog_(dialog), boxes_(boxes) {
  PrepareForm(dialog);
  for (std::size_t box = 0; box < boxes_.size(); ++box) {
    QObject::connect(boxes_[box], &QCheckBox::toggled, &dialog,
                     [&choice, box](bool ticked) { choice.Tick(box, ticked); });
  }
  const auto take = [&choice, show] {
    choice.Take();
    show();
  };
  new FormActions(dialog, {{"Command1", 0, take}, {"", Qt::Key_Escape, [&dialog] { dialog.close(); }}},
                  KeysAct::always);
}

void TickBoxes::Show(const ChoiceView& view) {
  for (std::size_t box = 0; box < boxes_.size(); ++box) boxes_[box]->setChecked(view.ticks[box]);
  if (view.back_to_first) boxes_.front()->setFocus(Qt::OtherFocusReason);
  if (view.done) dialog_.hide();
}

}  // namespace rbt
