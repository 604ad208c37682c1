// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace quillmark {

/// Whether `bytes` are well-formed UTF-8: no overlong form, no surrogate, no
/// value beyond U+10FFFF. Any thread.
[[nodiscard]] bool isUtf8(std::string_view bytes);

/// `bytes` as UTF-8: each byte that belongs to no character becomes U+FFFD.
/// File and program names are bytes to the system, but text in JSON. Any thread.
[[nodiscard]] std::string asUtf8(std::string_view bytes);

/// `text`, which must be UTF-8, without the white space at both of its ends:
/// every character with the Unicode property White_Space, line breaks included.
/// A view into `text`. Any thread.
[[nodiscard]] std::string_view trimWhiteSpace(std::string_view text);

/// Like `trimWhiteSpace`, but removes only spaces of all kinds and tabs, not line
/// breaks. Any thread.
[[nodiscard]] std::string_view trimSpacesAndTabs(std::string_view text);

}  // namespace quillmark
