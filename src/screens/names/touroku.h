// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QWidget>

#include "session/names/names_presenter.h"

namespace Ui {
class Touroku;
}

namespace rbt {

/// The window of the registered names, `touroku`: shows what its presenter gives and passes on what the user
/// does.
class Touroku : public QWidget {
 public:
  /// Loads. Throws what keeps it from that.
  explicit Touroku(NamesParts parts);
  ~Touroku() override;

  /// Every key of the form, of the Qt::Key enumeration.
  static std::vector<int> Keys();

  /// Called once the form has closed.
  void OnLeft(std::function<void()> left) { left_ = std::move(left); }

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  struct Action;
  static std::vector<Action> Actions();

  void BindFields();
  void BindActions();
  /// Passes an intent on and shows what has become of it, whatever ends it.
  void Do(const std::function<void(NamesPresenter&)>& intent);
  void Show();
  void ShowSelected(const std::vector<std::string>& lines);
  void Focus(std::string_view control);
  void Reach(const QWidget* focused);

  NamesPresenter presenter_;
  std::unique_ptr<Ui::Touroku> ui_;
  std::function<void()> left_;
};

}  // namespace rbt
