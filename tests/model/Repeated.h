// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace quillmark::test {

/// `piece`, repeated `count` times.
inline std::string repeated(int count, const std::string& piece) {
  std::string text;
  for (int i = 0; i < count; ++i) {
    text += piece;
  }
  return text;
}

}  // namespace quillmark::test
