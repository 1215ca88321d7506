// SPDX-License-Identifier: MIT
#include "desktop/key_card.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "desktop/form.h"
#include "desktop/key_table.h"

namespace rbt {

KeyCard::KeyCard(const QString& form_title, const std::vector<KeyCardRow>& rows) {
  constexpr int kColumns = 3;
  setObjectName(QStringLiteral("keyCard"));
  setWindowTitle(QStringLiteral("キー一覧"));
  auto* layout = new QGridLayout(this);
  layout->setHorizontalSpacing(18);
  auto* title = new QLabel(form_title);
  QFont bold = title->font();
  bold.setBold(true);
  title->setFont(bold);
  layout->addWidget(title, 0, 0, 1, kColumns);
  int line = 1;
  for (const KeyCardRow& row : rows) {
    int column = 0;
    for (const QString& text : {row.key, row.caption, row.hint}) {
      auto* label = new QLabel(text);
      label->setTextFormat(Qt::PlainText);
      if (column == 0) label->setFont(bold);
      layout->addWidget(label, line, column++);
    }
    ++line;
  }
  auto* close = new QPushButton(QStringLiteral("閉じる （Esc）"));
  close->setObjectName(QStringLiteral("cmdEnd"));
  layout->addWidget(close, line, 0, 1, kColumns, Qt::AlignRight);
  PrepareForm(*this);
  connect(close, &QPushButton::clicked, this, &QWidget::hide);
  new KeyPreview(*this, [this](const QKeyEvent& press) {
    const bool ours = IsPress(press, Qt::Key_Escape) || IsPress(press, Qt::Key_F1);
    if (ours) hide();
    return ours;
  });
  close->setFocus();
}

void ShowKeyCard(const QString& form_title, const std::vector<KeyCardRow>& rows) {
  KeyCard card(form_title, rows);
  ShowModally(card);
}

}  // namespace rbt
