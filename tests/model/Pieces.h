// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

#include "model/Decoder.h"

namespace quillmark::test {

/// What `json` decodes to when it comes in pieces of this size, whether told how
/// much is left or not.
template <Record R>
[[nodiscard]] Decoded<R> decodedInPieces(std::string_view json, std::size_t pieceSize,
                                         bool isLengthTold) {
  Decoder<R> decoder;
  while (!json.empty()) {
    const auto piece = json.substr(0, pieceSize);
    json.remove_prefix(piece.size());
    decoder.take(piece, isLengthTold ? std::optional(json.size()) : std::nullopt);
  }
  return decoder.finish();
}

}  // namespace quillmark::test
