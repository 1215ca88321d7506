// SPDX-License-Identifier: MIT
#include "screens/panels/reading_notice.h"

#include <string>

#include <QApplication>
#include <QWidget>

#include "desktop/form.h"
#include "screens/panels/busy_notice.h"

namespace rbt {

namespace {

std::string WordsFor(const std::filesystem::path& file) {
  return "「" + file.filename().string() + "」を読み込んでいます。しばらくお待ち下さい。";
}

/// The window that the user looks at: the one in front, or any that shows.
QWidget* WindowInSight() {
  if (QWidget* window = QApplication::activeWindow()) return window;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible()) return window;
  }
  return nullptr;
}

void ShowIn(QWidget& window, const std::string& words) {
  auto* notice = new BusyNotice(&window);
  notice->setAutoFillBackground(true);
  notice->Tell(words);
  notice->ShowOver(window.rect(), true);
  window.repaint();
  // Served when the action has ended.
  notice->deleteLater();
}

}  // namespace

LongReadingHook ShowLongReadings() {
  return [](const std::filesystem::path& file) {
    QWidget* window = WindowInSight();
    if (window == nullptr) return;
    if (auto* start = dynamic_cast<BusyNotice*>(window)) {
      start->Tell(WordsFor(file));
      start->adjustSize();
      Center_Form(*start);
      start->repaint();
    } else {
      ShowIn(*window, WordsFor(file));
    }
  };
}

}  // namespace rbt
