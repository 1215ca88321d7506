// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <QString>
#include <QWidget>

namespace rbt {

/// One key of a form and what it does.
struct KeyCardRow {
  QString key;
  QString caption;
  QString hint;
};

/// The keys of a form on one card: Esc, Enter and F1 put it away.
class KeyCard : public QWidget {
 public:
  KeyCard(const QString& form_title, const std::vector<KeyCardRow>& rows);
};

/// Shows the card over all windows and returns when it is put away.
void ShowKeyCard(const QString& form_title, const std::vector<KeyCardRow>& rows);

}  // namespace rbt
