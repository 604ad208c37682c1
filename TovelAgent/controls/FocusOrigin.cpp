// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/FocusOrigin.h"

#include <QFocusEvent>

namespace quillmark {
namespace {

/// Whether the focus only returns to the item: its origin stays the same then.
bool isReturn(Qt::FocusReason reason) {
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

bool FocusOrigin::eventFilter(QObject* watched, QEvent* event) {
  if (watched == target_ && event->type() == QEvent::FocusIn) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    const bool isPointer = isReturn(reason) ? isPointer_ : reason == Qt::MouseFocusReason;
    if (isPointer != isPointer_) {
      isPointer_ = isPointer;
      Q_EMIT isPointerChanged();
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace quillmark
