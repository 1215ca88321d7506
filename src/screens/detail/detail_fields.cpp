// SPDX-License-Identifier: MIT
#include "screens/detail/detail_fields.h"

#include <utility>

#include <QLineEdit>
#include <QRadioButton>

#include "desktop/form.h"
#include "screens/panels/boxes.h"
#include "ui_detail_fields.h"

namespace rbt {

namespace {

/// The character that was typed last, a full-width digit as a half-width one; empty after a deletion.
QString TypedLast(const QLineEdit& box) {
  const int cursor = box.cursorPosition();
  if (cursor == 0) return {};
  const QChar typed = box.text().at(cursor - 1);
  return typed.digitValue() >= 0 ? QString::number(typed.digitValue()) : QString(typed);
}

}  // namespace

DetailFields::DetailFields(QWidget* parent)
    : QFrame(parent), ui_(std::make_unique<Ui::DetailFields>()), memos_{} {
  ui_->setupUi(this);
  memos_ = {ui_->txtSubKojNa, ui_->txtSubKojNa2, ui_->txtSubKojNa3};
}

DetailFields::~DetailFields() = default;

void DetailFields::Bind(Perform perform) {
  perform_ = std::move(perform);
  BindMemos();
  BindDigit(*ui_->txtMemoI, &DetailPresenter::TypeMemoPosition);
  BindDigit(*ui_->ToriJyuP, &DetailPresenter::TypeInstalled);
  BindDatePlaces();
  for (QLineEdit* box : findChildren<QLineEdit*>()) {
    connect(box, &QLineEdit::returnPressed, this, [box] { MoveFocusOn(*box); });
  }
}

void DetailFields::BindMemos() {
  for (std::size_t memo = 0; memo < memos_.size(); ++memo) {
    connect(memos_[memo], &QLineEdit::textEdited, this, [this, memo](const QString& text) {
      perform_([&](DetailPresenter& presenter) { presenter.TypeMemo(memo, text.toStdString()); });
    });
  }
}

void DetailFields::BindDigit(QLineEdit& box, bool (DetailPresenter::*type)(std::string_view text)) {
  SelectAtFocus(box);
  connect(&box, &QLineEdit::textEdited, this, [this, &box, type] {
    const std::string typed = TypedLast(box).toStdString();
    perform_([&](DetailPresenter& presenter) { (presenter.*type)(typed); });
    box.selectAll();
  });
}

void DetailFields::BindDatePlaces() {
  const std::pair<QRadioButton*, DatePlace> places[] = {{ui_->Option1, DatePlace::centre},
                                                        {ui_->Option2, DatePlace::right}};
  for (const auto& [option, place] : places) {
    connect(option, &QRadioButton::clicked, this, [this, place = place] {
      perform_([place](DetailPresenter& presenter) { presenter.ChooseDatePlace(place); });
    });
  }
}

void DetailFields::Show(const DetailView& view) {
  for (std::size_t memo = 0; memo < memos_.size(); ++memo) ShowText(*memos_[memo], view.memos[memo]);
  ShowText(*ui_->txtMemoI, view.memo_position);
  ShowText(*ui_->ToriJyuP, view.installed);
  (view.date_place == DatePlace::right ? ui_->Option2 : ui_->Option1)->setChecked(true);
  setEnabled(view.fields_enabled);
}

}  // namespace rbt
