// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <span>
#include <string_view>

#include <QObject>
#include <QString>

#include "session/panels/views.h"

class QLabel;
class QWidget;

namespace rbt {

/// Tells in a label of a form what its focused control does; of one without a hint `otherwise`, or where that
/// is empty its tool tip. Every hint is its control's tool tip too.
class HintLine : public QObject {
 public:
  /// Controls that the form does not have are left out.
  HintLine(QWidget& form, QLabel& line, std::span<const ControlHint> hints, std::string_view otherwise = {});

 private:
  void Tell(const QWidget* focused);

  QWidget& form_;
  QLabel& line_;
  QString otherwise_;
  std::map<const QWidget*, QString> hints_;
};

}  // namespace rbt
