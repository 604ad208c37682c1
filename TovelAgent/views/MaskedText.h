// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quillmark {

/// Keeps what is in masked fields from assistive technology: Qt announces a
/// change of text with the text itself, also where everyone else sees dots.
/// For the life of the program; UI thread.
void silenceMaskedText();

}  // namespace quillmark
