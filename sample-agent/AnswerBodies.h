// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace quillmark::sample {

/// The JSON bodies of the four endpoints from one scan. Immutable, shared between
/// threads.
struct AnswerBodies {
  std::string status;
  std::string alerts;
  std::string network;
  std::string inventory;
};

}  // namespace quillmark::sample
