// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

#include <QFrame>

#include "session/detail/detail_presenter.h"

class QLineEdit;

namespace Ui {
class DetailFields;
}

namespace rbt {

/// What a purchase list is printed with: three memos and their place, the installed weights, the place of the
/// date. Enter moves on.
class DetailFields : public QFrame {
 public:
  /// Carries an intent out and shows what has become of it.
  using Perform = std::function<void(const std::function<void(DetailPresenter& presenter)>& intent)>;

  explicit DetailFields(QWidget* parent = nullptr);
  ~DetailFields() override;

  void Bind(Perform perform);
  void Show(const DetailView& view);

 private:
  void BindMemos();
  /// A box of one digit: the presenter takes the key or leaves the box as it was.
  void BindDigit(QLineEdit& box, bool (DetailPresenter::*type)(std::string_view text));
  void BindDatePlaces();

  std::unique_ptr<Ui::DetailFields> ui_;
  std::array<QLineEdit*, 3> memos_;
  Perform perform_;
};

}  // namespace rbt
