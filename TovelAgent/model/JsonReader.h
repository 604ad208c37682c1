// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

#include "model/DecodeError.h"
#include "model/JsonShape.h"

namespace quillmark {

/// Fills the value at `place`, which has this shape, from a JSON text that comes
/// in pieces, cut wherever. Values go from the parser straight to their places,
/// without the text or a document in between: a body of any size costs its
/// records and little more. After a failure what the place holds is of no use.
/// Throws `std::bad_alloc` only. Any thread, one at a time.
class JsonReader final {
 public:
  JsonReader(const JsonShape& shape, void* place);
  ~JsonReader();
  JsonReader(const JsonReader&) = delete;
  JsonReader& operator=(const JsonReader&) = delete;

  /// Takes the next piece, which `left` more bytes will follow, or nobody knows
  /// how many. A help alone: it may be wrong.
  void take(std::string_view piece, std::optional<std::size_t> left);

  /// The text is over: what kept the value from being filled.
  [[nodiscard]] std::optional<DecodeError> finish();

 private:
  class Parser;

  const std::unique_ptr<Parser> parser_;
};

}  // namespace quillmark
