// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include "Finding.h"

namespace quillmark::doctor {

enum class Colour { none, terminal };

/// For a person: one line per finding, then the conclusion and the next step.
[[nodiscard]] std::string asText(const Report& report, Colour colour);

/// For a program: one JSON object on one line. docs/doctor.md describes it.
[[nodiscard]] std::string asJson(const Report& report);

/// 0 when nothing is wrong, else 1.
[[nodiscard]] int exitCode(const Report& report);

}  // namespace quillmark::doctor
