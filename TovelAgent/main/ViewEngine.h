// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QQmlEngine;

namespace quillmark {

/// Prepares `engine` for the panel's views: the modules' import path, the icons, and no
/// network. Also filters accessibility events of the whole process, see `hideMaskedText`.
/// Call before the first component is created; UI thread.
void prepareForViews(QQmlEngine& engine);

}  // namespace quillmark
