// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include <boost/system/result.hpp>

#include "model/DecodeError.h"
#include "model/Field.h"
#include "model/JsonReader.h"
#include "model/JsonShape.h"

namespace quillmark {

template <Record R>
using Decoded = boost::system::result<R, DecodeError>;

/// Reads one JSON object into a record while it comes, by the record's field
/// table: the whole record, or the first failure in table order. Keys outside
/// the table are ignored, whatever they hold. Throws `std::bad_alloc` only.
/// Any thread, one at a time.
template <Record R>
class Decoder final {
 public:
  /// Takes the next piece of the text, cut wherever. Knowing how many bytes are
  /// `left` behind it saves memory.
  void take(std::string_view piece, std::optional<std::size_t> left = {}) {
    reader_.take(piece, left);
  }

  /// What the text was, now that it is over; once.
  [[nodiscard]] Decoded<R> finish() {
    if (auto failure = reader_.finish()) {
      return std::move(*failure);
    }
    return std::move(record_);
  }

 private:
  R record_{};
  JsonReader reader_{JsonShapeOf<R>::shape, &record_};
};

}  // namespace quillmark
