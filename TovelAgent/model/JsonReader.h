// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string_view>

#include "model/DecodeError.h"
#include "model/JsonShape.h"

namespace quillmark {

/// Fills the value at `place`, which has this shape, from a whole JSON text.
/// Values go from the parser straight to their places, without a document in
/// between: a body of any size costs its records and little more. After a
/// failure what the place holds is of no use. Throws `std::bad_alloc` only.
/// Any thread.
[[nodiscard]] std::optional<DecodeError> readJson(std::string_view json, const JsonShape& shape,
                                                  void* place);

}  // namespace quillmark
