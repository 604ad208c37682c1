// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

namespace quillmark::fuzz {

/// The input as text.
inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Aborts the run, so that libFuzzer keeps the input, unless `holds` is true.
inline void require(bool holds, std::string_view what) {
  if (!holds) {
    std::cerr << "does not hold: " << what << std::endl;
    std::abort();
  }
}

}  // namespace quillmark::fuzz

/// Called by libFuzzer with one input after the other; always returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
