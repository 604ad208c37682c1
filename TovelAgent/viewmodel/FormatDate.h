// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quillmark {

/// An RFC 3339 time of whole seconds ("2024-01-15T10:30:00Z", or an offset such
/// as "+01:00") as short date and time of the user's locale and time zone.
/// Every other text comes back unchanged. UI thread.
[[nodiscard]] QString formatDate(const QString& text);

}  // namespace quillmark
