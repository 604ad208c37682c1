// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Announcement.h"

#include <QAccessible>

namespace quillmark {

void Announcement::announce(const QString& text) {
  if (text.isEmpty() || !QAccessible::isActive()) {
    return;
  }
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  // Polite by default: the screen reader first finishes what it is saying.
  QAccessibleAnnouncementEvent event(this, text);
#else
  text_ = text;
  Q_EMIT textChanged();
  QAccessibleEvent event(this, QAccessible::ObjectShow);
#endif
  QAccessible::updateAccessibility(&event);
}

}  // namespace quillmark
