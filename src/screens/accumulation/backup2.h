// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QWidget>

#include "session/accumulation/site_choice.h"

namespace Ui {
class BACKUP2;
}

namespace rbt {

/// The window in which the site is chosen that is added next: shows what its presenter gives and passes on
/// what the user does.
class BACKUP2 : public QWidget {
 public:
  /// Loads. Throws what keeps it from that.
  BACKUP2();
  ~BACKUP2() override;

  /// Every key of its table, of the Qt::Key enumeration.
  static std::vector<int> Keys();

  const SiteChoice& Choice() const { return presenter_.Choice(); }

 private:
  struct Action;
  static std::vector<Action> Actions();

  void BindFields();
  void BindActions();
  void Do(const std::function<void(SiteChoicePresenter&)>& intent);
  void Show();

  SiteChoicePresenter presenter_;
  std::unique_ptr<Ui::BACKUP2> ui_;
};

}  // namespace rbt
