// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quillmark {

/// Converts an RFC 3339 time of whole seconds ("2024-01-15T10:30:00Z", or with an
/// offset such as "+01:00") to the short date and time of the user's locale and
/// time zone: "1/15/24, 10:30 AM" in US English. Other text is returned unchanged.
/// The first call in a process reads ICU's data, which may take a tenth of a
/// second. Any thread.
[[nodiscard]] QString formatDate(const QString& text);

}  // namespace quillmark
