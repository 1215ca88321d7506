// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <span>

#include <QObject>
#include <QString>

#include "session/panels/views.h"

class QLabel;
class QWidget;

namespace rbt {

/// Tells in a label of a form what its focused control does; every control has the same words as its tool
/// tip.
class HintLine : public QObject {
 public:
  /// Controls that the form does not have are left out.
  HintLine(QWidget& form, QLabel& line, std::span<const ControlHint> hints);

 private:
  void Tell(const QWidget* focused);

  QWidget& form_;
  QLabel& line_;
  std::map<const QWidget*, QString> hints_;
};

}  // namespace rbt
