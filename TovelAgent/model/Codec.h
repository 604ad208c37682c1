// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include <boost/system/result.hpp>

#include "model/AgentStatus.h"
#include "model/AlertsResponse.h"
#include "model/DecodeError.h"
#include "model/Field.h"
#include "model/InventoryData.h"
#include "model/NetworkResponse.h"

namespace quillmark {

template <Record R>
using Decoded = boost::system::result<R, DecodeError>;

/// Reads one JSON object into a record by the record's field table: the whole
/// record, or the first failure in table order. A text that is not JSON fails
/// before anything else. Keys outside the table are ignored, and of a key that is
/// there twice the last value counts. Throws `std::bad_alloc` only. Any thread.
template <Record R>
[[nodiscard]] Decoded<R> decode(std::string json);

/// The record as a JSON object, its keys in table order; an optional without
/// a value is left out. Strings are written as they are, so they must be
/// UTF-8 for the result to be JSON. Any thread.
template <Record R>
[[nodiscard]] std::string encode(const R& record);

// The codec is defined for these seven, and for no other.
#define QUILLMARK_FOR_EACH_RECORD(X) \
  X(AgentStatus)                     \
  X(ThreatAlert)                     \
  X(NetworkConnection)               \
  X(InstalledApp)                    \
  X(InventoryData)                   \
  X(AlertsResponse)                  \
  X(NetworkResponse)

#define QUILLMARK_DECLARE_CODEC(R)                \
  extern template Decoded<R> decode(std::string); \
  extern template std::string encode(const R&);
QUILLMARK_FOR_EACH_RECORD(QUILLMARK_DECLARE_CODEC)
#undef QUILLMARK_DECLARE_CODEC

}  // namespace quillmark
