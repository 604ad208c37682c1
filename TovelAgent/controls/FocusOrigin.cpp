// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/FocusOrigin.h"

#include <QFocusEvent>

namespace quillmark {
namespace {

/// Whether `reason` says nothing about the origin, which then stays the same.
bool keepsOrigin(Qt::FocusReason reason) {
  return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
         reason == Qt::OtherFocusReason;
}

}  // namespace

void FocusOrigin::setTarget(QQuickItem* target) {
  if (target_) {
    target_->removeEventFilter(this);
  }
  target_ = target;
  if (target_) {
    target_->installEventFilter(this);
  }
}

void FocusOrigin::setFromPointer(bool fromPointer) {
  if (fromPointer != fromPointer_) {
    fromPointer_ = fromPointer;
    Q_EMIT fromPointerChanged();
  }
}

bool FocusOrigin::eventFilter(QObject* watched, QEvent* event) {
  if (watched == target_ && event->type() == QEvent::FocusIn) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    if (!keepsOrigin(reason)) {
      setFromPointer(reason == Qt::MouseFocusReason);
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace quillmark
