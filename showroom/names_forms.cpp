// SPDX-License-Identifier: MIT
#include "showroom/names_forms.h"

#include <QApplication>
#include <QKeyEvent>

#include "screens/names/names_forms.h"
#include "screens/names/touroku.h"

namespace rbt {

namespace {

void MarkTheFirst(QWidget& form) {
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(form.findChild<QWidget*>("tourokumei"), &enter);
}

}  // namespace

std::vector<FormEntry> NamesForms() {
  return {{.name = "touroku",
           .make = [] { return MakeTouroku(); },
           .first_focus = "tourokumei",
           .keys = Touroku::Keys(),
           .states = {{"list", [](QWidget&) {}}, {"marked", MarkTheFirst}}}};
}

}  // namespace rbt
