// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace quillmark::sample {

/// Why the agent cannot start, in one line for the person who reads its log.
struct Failure {
  std::string text;
};

}  // namespace quillmark::sample
