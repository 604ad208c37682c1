// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QQmlEngine;

namespace quillmark {

/// Makes `engine` one that can build this library's views: where their modules
/// lie, the icons, no network, and no word of what is masked. Before the first component; UI
/// thread.
void prepareForViews(QQmlEngine& engine);

}  // namespace quillmark
