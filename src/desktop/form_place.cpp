// SPDX-License-Identifier: MIT
#include "desktop/form_place.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <string>

#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include "platform/fault.h"
#include "platform/pass_over_faults.h"
#include "platform/profile/registry.h"

namespace rbt {

namespace {

constexpr const char* kApplication = "rbtally1";
constexpr const char* kSection = "画面";
/// What a window manager puts above a window: told only once the window is shown.
constexpr int kTitleBar = 32;

std::optional<QRect> KeptPlace(const QString& name) {
  std::optional<std::string> text;
  PassOverFaults(FaultKind::file, [&] { text = RegistryText(kApplication, kSection, name.toStdString()); });
  if (!text) return std::nullopt;
  const QStringList numbers = QString::fromStdString(*text).split(QLatin1Char(' '));
  if (numbers.size() != 4) return std::nullopt;
  int place[4] = {};
  for (int i = 0; i < 4; ++i) {
    bool readable = false;
    place[i] = numbers[i].toInt(&readable);
    if (!readable) return std::nullopt;
  }
  return QRect(place[0], place[1], place[2], place[3]);
}

/// A place that cannot be kept, be it for want of rights or because another program holds the settings, is
/// none.
void KeepPlace(const QString& name, const QRect& place) {
  const QString text =
      QStringLiteral("%1 %2 %3 %4").arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height());
  PassOverFaults([&] { SetRegistryText(kApplication, kSection, name.toStdString(), text.toStdString()); });
}

/// A form that the screen cannot hold begins at its edge: `last` then lies before `first`.
int Within(int at, int first, int last) { return std::max(first, std::min(at, last)); }

/// Place of the frame, size of what it holds: as `move` and `resize` take them.
QRect PlaceOf(const QWidget& form) { return {form.pos(), form.size()}; }

/// Keeps where the user has brought a form, when it goes out of sight. What the window manager does to it at
/// its first show is not the user's doing.
class PlaceKeeper : public QObject {
 public:
  explicit PlaceKeeper(QWidget& form) : QObject(&form), form_(form) { form.installEventFilter(this); }

  bool eventFilter(QObject*, QEvent* event) override {
    constexpr std::chrono::milliseconds kShowSettled{200};
    if (event->type() == QEvent::Show && !event->spontaneous()) {
      settled_.reset();
      QTimer::singleShot(kShowSettled, this, [this] { settled_ = PlaceOf(form_); });
    }
    if (event->type() == QEvent::Hide && !event->spontaneous()) Keep();
    return false;
  }

 private:
  void Keep() const {
    if (!settled_ || form_.isMaximized() || form_.isMinimized()) return;
    if (PlaceOf(form_) != *settled_) KeepPlace(form_.objectName(), PlaceOf(form_));
  }

  QWidget& form_;
  std::optional<QRect> settled_;
};

}  // namespace

void PlaceForm(QWidget& form) {
  form.ensurePolished();
  if (form.layout() != nullptr) form.layout()->activate();
  const QRect area = form.screen()->availableGeometry();
  const QSize largest(area.width(), area.height() - kTitleBar);
  const QString name = form.objectName();
  const std::optional<QRect> kept = name.isEmpty() ? std::nullopt : KeptPlace(name);
  const QSize wanted = (kept ? kept->size() : form.size()).expandedTo(form.minimumSizeHint());
  form.resize(wanted.boundedTo(largest));
  const QSize taken = form.size();
  QPoint corner(area.left() + (area.width() - taken.width()) / 2,
                area.top() + (largest.height() - taken.height()) / 2);
  if (kept) corner = kept->topLeft();
  // The screen may be another one than the place was kept on.
  corner.setX(Within(corner.x(), area.left(), area.left() + area.width() - taken.width()));
  corner.setY(Within(corner.y(), area.top(), area.top() + largest.height() - taken.height()));
  form.move(corner);
  if (!name.isEmpty()) new PlaceKeeper(form);
}

}  // namespace rbt
