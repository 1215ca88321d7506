// SPDX-License-Identifier: MIT
#include "desktop/wait_sign.h"

#include <QCursor>
#include <QGuiApplication>

#include "desktop/work_watch.h"

namespace rbt {

namespace {

bool SignShows() { return QGuiApplication::overrideCursor() != nullptr; }

void ShowSign() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }

}  // namespace

WaitSign::WaitSign() : ours_(!SignShows()) {
  if (ours_) ShowSign();
}

WaitSign::~WaitSign() {
  if (ours_) QGuiApplication::restoreOverrideCursor();
}

WorkAtRest::WorkAtRest() : signed_(SignShows()) {
  HideWork();
  if (signed_) QGuiApplication::restoreOverrideCursor();
}

WorkAtRest::~WorkAtRest() {
  HideWork();
  if (signed_) ShowSign();
}

}  // namespace rbt
