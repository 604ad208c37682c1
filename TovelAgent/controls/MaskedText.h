// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessible>

namespace quillmark {

/// Whether `event` contains the text of a masked field. UI thread.
[[nodiscard]] bool containsMaskedText(const QAccessibleEvent& event);

/// Keeps the text of masked fields out of accessibility events: Qt's text events
/// contain the text itself, even if the field shows dots. In effect until the
/// program ends; UI thread.
void hideMaskedText();

}  // namespace quillmark
