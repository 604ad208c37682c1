// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessible>

namespace quillmark {

/// Whether the event tells what is in a masked field. UI thread.
[[nodiscard]] bool tellsMaskedText(const QAccessibleEvent& event);

/// Keeps what is in masked fields from assistive technology: Qt announces a
/// change of text with the text itself, also where everyone else sees dots.
/// For the life of the program; UI thread.
void silenceMaskedText();

}  // namespace quillmark
