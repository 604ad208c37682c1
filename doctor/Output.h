// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include "Examination.h"

namespace quillmark::doctor {

enum class Colour { none, terminal };

/// For a person: one line per finding, then the conclusion and the next step.
[[nodiscard]] std::string asText(const Report& report, Colour colour);

/// For a program: one JSON object on one line. docs/doctor.md describes it.
[[nodiscard]] std::string asJson(const Report& report);

/// Exit code if something is wrong or the program cannot do its work.
inline constexpr int somethingWrong = 1;

/// 0 when nothing is wrong, else `somethingWrong`.
[[nodiscard]] int exitCode(const Report& report);

}  // namespace quillmark::doctor
