// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>

#include <boost/system/result.hpp>

#include "model/AgentStatus.h"
#include "model/AlertsResponse.h"
#include "model/DecodeError.h"
#include "model/Field.h"
#include "model/InventoryData.h"
#include "model/NetworkResponse.h"

namespace quillmark {

/// The record, or why it cannot be decoded.
template <Record R>
using Decoded = boost::system::result<R, DecodeError>;

/// Free capacity behind the text that `decode` needs to work without copying the text.
inline constexpr std::size_t decodePadding = 64;

/// Decodes one JSON object into a record, using the record's field table. Returns
/// the whole record or the first failure in table order; text that is not JSON
/// fails before any field is read. Keys that are not in the table are ignored.
/// For a duplicate key the last value is used. Throws only `std::bad_alloc`. Any
/// thread.
template <Record R>
[[nodiscard]] Decoded<R> decode(std::string json);

/// Encodes the record as a JSON object with its keys in table order; an optional
/// without a value is left out. The panel itself sends no records. Strings are not checked, so they
/// must be UTF-8 for the result to be valid JSON. Any thread.
template <Record R>
[[nodiscard]] std::string encode(const R& record);

// The codec is defined only for these seven records.
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
