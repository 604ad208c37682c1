// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/IconUrl.h"

namespace quillmark {

QString IconUrl::of(const QString& name, const QColor& color) {
  return QStringLiteral("image://icon/") + name + color.name();
}

}  // namespace quillmark
