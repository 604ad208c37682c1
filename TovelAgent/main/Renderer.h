// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quillmark {

/// Chooses how windows are drawn: in software, which starts at once and works
/// everywhere, unless `QT_QUICK_BACKEND` or `QSG_RHI_BACKEND` asks for
/// something else. Call before the first window is created; UI thread.
void chooseRenderer();

/// Restarts this program with software rendering, for when the renderer that the
/// user asked for does not work. Does not return; ends the program if the restart
/// fails. UI thread.
[[noreturn]] void restartInSoftware();

}  // namespace quillmark
