// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

#include "model/AgentStatus.h"
#include "model/AlertsResponse.h"
#include "model/Decoder.h"
#include "model/Field.h"
#include "model/InventoryData.h"
#include "model/NetworkResponse.h"

namespace quillmark {

/// Reads one JSON object that is there whole, as `Decoder` does. Any thread.
template <Record R>
[[nodiscard]] Decoded<R> decode(std::string_view json);

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

#define QUILLMARK_DECLARE_CODEC(R)                     \
  extern template Decoded<R> decode(std::string_view); \
  extern template std::string encode(const R&);
QUILLMARK_FOR_EACH_RECORD(QUILLMARK_DECLARE_CODEC)
#undef QUILLMARK_DECLARE_CODEC

}  // namespace quillmark
