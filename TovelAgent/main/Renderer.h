// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quillmark {

/// Chooses how windows are drawn: in software, which is there at once and
/// works everywhere, unless `QT_QUICK_BACKEND` or `QSG_RHI_BACKEND` asks for
/// something else. Before the first window; UI thread.
void chooseRenderer();

/// Starts this program again, drawing in software. For when what the user
/// asked for cannot be had; does not return, and ends the program if the
/// start fails.
[[noreturn]] void restartInSoftware();

}  // namespace quillmark
