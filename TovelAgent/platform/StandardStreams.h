// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quillmark {

/// Opens /dev/null in place of each standard stream that was closed when the program
/// started. Otherwise the next file or socket would get its number, and what a
/// library prints would go there. Call first in `main`.
void openClosedStandardStreams();

}  // namespace quillmark
