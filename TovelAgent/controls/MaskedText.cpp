// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/MaskedText.h"

namespace quillmark {
namespace {

bool isTextEvent(const QAccessibleEvent& event) {
  return event.type() == QAccessible::TextInserted || event.type() == QAccessible::TextRemoved ||
         event.type() == QAccessible::TextUpdated;
}

void forwardUnlessMasked(QAccessibleEvent* event) {
  if (containsMaskedText(*event)) {
    return;
  }
  // Without a handler Qt forwards the event to the platform.
  const auto self = QAccessible::installUpdateHandler(nullptr);
  QAccessible::updateAccessibility(event);
  QAccessible::installUpdateHandler(self);
}

}  // namespace

bool containsMaskedText(const QAccessibleEvent& event) {
  if (!isTextEvent(event)) {
    return false;
  }
  const auto* const source = event.accessibleInterface();
  return source != nullptr && source->state().passwordEdit;
}

void hideMaskedText() { QAccessible::installUpdateHandler(forwardUnlessMasked); }

}  // namespace quillmark
