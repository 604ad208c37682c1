// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace quillmark::sample {

/// The answers to the four requests as one scan found them, ready to be sent.
/// Shared between threads as an immutable value.
struct Snapshot {
  std::string status;
  std::string alerts;
  std::string network;
  std::string inventory;
};

}  // namespace quillmark::sample
