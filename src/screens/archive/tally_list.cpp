// SPDX-License-Identifier: MIT
#include "screens/archive/tally_list.h"

#include <algorithm>

#include <QKeyEvent>
#include <QSignalBlocker>

#include "desktop/texts.h"

namespace rbt {

void TallyList::OnSelection(std::function<void(std::vector<std::size_t> entries)> changed) {
  connect(this, &QListWidget::itemSelectionChanged, this,
          [this, changed = std::move(changed)] { changed(Selected()); });
}

std::vector<std::size_t> TallyList::Selected() const {
  std::vector<std::size_t> entries;
  entries.reserve(static_cast<std::size_t>(count()));
  for (int row = 0; row < count(); ++row) {
    if (item(row)->isSelected()) entries.push_back(static_cast<std::size_t>(row));
  }
  return entries;
}

void TallyList::Fill(const std::vector<std::string>& entries, std::string_view notice) {
  QStringList texts;
  texts.reserve(static_cast<qsizetype>(entries.size()) + 1);
  for (const std::string& entry : entries) texts.append(Text(entry));
  if (entries.empty() && !notice.empty()) texts.append(Text(notice));
  QStringList shown;
  shown.reserve(count());
  for (int row = 0; row < count(); ++row) shown.append(item(row)->text());
  // Lines that stay keep the current one.
  if (texts == shown) return;
  clear();
  addItems(texts);
  if (entries.empty() && count() > 0) item(0)->setFlags(Qt::NoItemFlags);
}

void TallyList::Show(const std::vector<std::string>& entries, std::span<const std::size_t> selected,
                     std::string_view notice) {
  const QSignalBlocker silent(this);
  Fill(entries, notice);
  for (int row = 0; row < count(); ++row) {
    item(row)->setSelected(std::ranges::find(selected, static_cast<std::size_t>(row)) != selected.end());
  }
}

void TallyList::keyPressEvent(QKeyEvent* event) {
  const bool is_arrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
  if (!is_arrow || !selectedItems().isEmpty() || currentItem() == nullptr) {
    return QListWidget::keyPressEvent(event);
  }
  currentItem()->setSelected(true);
}

}  // namespace rbt
