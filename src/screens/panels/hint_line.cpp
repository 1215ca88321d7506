// SPDX-License-Identifier: MIT
#include "screens/panels/hint_line.h"

#include <QApplication>
#include <QLabel>

#include "desktop/texts.h"

namespace rbt {

HintLine::HintLine(QWidget& form, QLabel& line, std::span<const ControlHint> hints,
                   std::string_view otherwise)
    : QObject(&form), form_(form), line_(line), otherwise_(Text(otherwise)) {
  for (const ControlHint& row : hints) {
    auto* control = form.findChild<QWidget*>(Text(row.control));
    if (control == nullptr) continue;
    control->setToolTip(Text(row.hint));
    hints_[control] = Text(row.hint);
  }
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* now) {
    if (now != nullptr && now->window() == &form_) Tell(now);
  });
}

void HintLine::Tell(const QWidget* focused) {
  const auto hint = hints_.find(focused);
  const QString unlisted = otherwise_.isEmpty() ? focused->toolTip() : otherwise_;
  line_.setText(hint == hints_.end() ? unlisted : hint->second);
}

}  // namespace rbt
