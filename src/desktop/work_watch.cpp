// SPDX-License-Identifier: MIT
#include "desktop/work_watch.h"

#include <chrono>
#include <memory>

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QThread>
#include <QWindow>

#include "desktop/pending_events.h"
#include "desktop/work_panel.h"
#include "shell/context/run_state.h"

namespace rbt {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kShownAfter{1};
constexpr std::chrono::milliseconds kPanelPaintedFor{50};

/// The window that the running action works in; null before there is one.
QWidget* WindowAtWork() {
  const auto fits = [](const QWidget* window) {
    return window != nullptr && window->isVisible() && !window->isMinimized() &&
           (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog);
  };
  for (QWidget* window : {QApplication::activeModalWidget(), QApplication::activeWindow()}) {
    if (fits(window)) return window;
  }
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (fits(window)) return window;
  }
  return nullptr;
}

/// Lets the windows be painted, and the panel be clicked.
class EventsOfPanel : public QObject {
 public:
  explicit EventsOfPanel(const QWidget& panel) : panel_(panel) { qApp->installEventFilter(this); }
  EventsOfPanel(const EventsOfPanel&) = delete;
  EventsOfPanel& operator=(const EventsOfPanel&) = delete;
  ~EventsOfPanel() override { qApp->removeEventFilter(this); }

  bool SawEsc() const { return saw_esc_; }

  bool eventFilter(QObject* receiver, QEvent* event) override {
    // What falls due waits for the end: it could use the file in the midst of a statement. A window's own
    // timer is for its painting.
    if (event->type() == QEvent::Timer) return qobject_cast<QWindow*>(receiver) == nullptr;
    if (!IsInput(*event)) return false;
    if (IsKey(*event)) {
      saw_esc_ = saw_esc_ || static_cast<const QKeyEvent&>(*event).key() == Qt::Key_Escape;
    } else if (event->type() != QEvent::Close && MayPass(*receiver)) {
      return false;
    }
    event->ignore();
    return true;
  }

 private:
  static bool IsKey(const QEvent& event) {
    return event.type() == QEvent::KeyPress || event.type() == QEvent::ShortcutOverride;
  }
  /// A window hands a click on to what lies under the pointer.
  bool MayPass(const QObject& receiver) const {
    const auto* const widget = qobject_cast<const QWidget*>(&receiver);
    if (widget == nullptr) return qobject_cast<const QWindow*>(&receiver) != nullptr;
    return widget == &panel_ || panel_.isAncestorOf(widget);
  }

  const QWidget& panel_;
  bool saw_esc_ = false;
};

/// One for the application, whose child it is.
class WorkWatch : public QObject {
 public:
  WorkWatch() : QObject(qApp) {}

  /// Null before there was work to watch.
  static WorkWatch* Find() {
    if (qApp == nullptr) return nullptr;
    for (QObject* child : qApp->children()) {
      if (auto* const watch = dynamic_cast<WorkWatch*>(child)) return watch;
    }
    return nullptr;
  }

  bool Look(const WorkNews& news) {
    // A thread of its own keeps nobody waiting, and what an event brings about is no news.
    if (QThread::currentThread() != thread() || looking_ || RunState.RunningActions == 0) return false;
    const Clock::time_point now = Clock::now();
    if (now - RunState.WorkBegan < kShownAfter) return false;
    const bool may_stop = news.may_stop && !RunState.WorkStopped;
    if (panel_ && panel_->OffersStop() == may_stop && now - painted_ < kPanelPaintedFor) return false;
    Paint(may_stop, news.page,
          std::chrono::duration_cast<std::chrono::milliseconds>(now - RunState.WorkBegan));
    // Asked for too late it is asked for in vain.
    const bool stops = panel_ && panel_->TakeStop() && may_stop;
    RunState.WorkStopped = RunState.WorkStopped || stops;
    return stops;
  }

  /// False where none shows.
  bool LookAtPanel() {
    if (!panel_ || looking_) return false;
    looking_ = true;
    Process();
    looking_ = false;
    return true;
  }

  void Hide() {
    RunState.WorkBegan = Clock::now();
    if (!panel_ || looking_) return;
    // What was typed while the panel stood must not start another action.
    RunState.HasWaited = true;
    delete panel_.data();
  }

 private:
  void Paint(bool may_stop, std::int64_t page, std::chrono::milliseconds worked) {
    looking_ = true;
    if (!panel_) panel_ = new WorkPanel(WindowAtWork(), RunState.FaultEndsProgram);
    panel_->Tell(may_stop, page, worked);
    panel_->Rise();
    panel_->repaint();
    Process();
    painted_ = Clock::now();
    looking_ = false;
  }

  void Process() {
    const EventsOfPanel events(*panel_);
    QCoreApplication::processEvents();
    if (panel_ && events.SawEsc()) panel_->AskStop();
  }

  QPointer<WorkPanel> panel_;  ///< goes with its window
  Clock::time_point painted_;
  bool looking_ = false;
};

}  // namespace

WorkHook ShowWork() {
  return [](const WorkNews& news) {
    if (RunState.RunningActions == 0) return false;
    WorkWatch* const watch = WorkWatch::Find();
    return (watch != nullptr ? watch : new WorkWatch())->Look(news);
  };
}

void ProcessEventsOfWork() {
  WorkWatch* const watch = WorkWatch::Find();
  if (watch == nullptr || !watch->LookAtPanel()) ProcessEventsWithoutInput();
}

void HideWork() {
  RunState.WorkBegan = Clock::now();
  if (WorkWatch* const watch = WorkWatch::Find()) watch->Hide();
}

}  // namespace rbt
