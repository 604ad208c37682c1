// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

namespace quillmark::doctor {

struct Options {
  enum class Action { examine, help, version } action = Action::examine;
  enum class Format { text, json } format = Format::text;
  enum class Repetition { once, watch } repetition = Repetition::once;
};

/// What the command line asks for; no value when it is none of this program's,
/// which has then been said on standard error. To be called once.
[[nodiscard]] std::optional<Options> parseOptions(int argc, char** argv);

[[nodiscard]] const char* usage();

}  // namespace quillmark::doctor
