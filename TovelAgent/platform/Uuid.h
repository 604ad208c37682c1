// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include <boost/uuid/uuid.hpp>

namespace quillmark {

using Uuid = boost::uuids::uuid;

/// A new random (version 4) UUID. Throws `boost::uuids::entropy_error`. Any thread.
[[nodiscard]] Uuid randomUuid();

/// The 36-character form: upper-case hexadecimal, 8-4-4-4-12. Any thread.
[[nodiscard]] std::string upperCaseText(const Uuid& uuid);

}  // namespace quillmark
